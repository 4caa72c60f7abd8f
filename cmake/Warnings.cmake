# Warnings are errors in everything that is ours.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Werror
    # A method's implementation has the type IMP, whatever its signature: casting it is what one does with it.
    -Wno-cast-function-type-mismatch)
