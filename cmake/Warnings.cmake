# Warnings are errors in everything that is ours.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Werror)
