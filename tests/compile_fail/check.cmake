# cmake -D COMPILER=… -D INCLUDE=… -D FILE=… -P check.cmake
#
# Passes when FILE compiles as it is, fails to compile with MUST_FAIL defined, and the compiler then says what the
# file's first line announces: "// expect: TEXT".
file(STRINGS "${FILE}" firstLine LIMIT_COUNT 1)
if(NOT firstLine MATCHES "^// expect: (.+)$")
    message(FATAL_ERROR "${FILE}: the first line must be \"// expect: TEXT\"")
endif()
set(expected "${CMAKE_MATCH_1}")

set(command "${COMPILER}" -std=c++20 -fblocks -fno-exceptions -fno-rtti -Wall -Wextra -Werror
    -Wno-cast-function-type-mismatch "-I${INCLUDE}" -fsyntax-only "${FILE}")

execute_process(COMMAND ${command} RESULT_VARIABLE status ERROR_VARIABLE output)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${FILE} does not even compile as it is:\n${output}")
endif()

execute_process(COMMAND ${command} -DMUST_FAIL RESULT_VARIABLE status ERROR_VARIABLE output)
if(status EQUAL 0)
    message(FATAL_ERROR "${FILE} compiles with MUST_FAIL")
endif()
string(FIND "${output}" "${expected}" position)
if(position EQUAL -1)
    message(FATAL_ERROR "${FILE} fails, but the compiler does not say \"${expected}\":\n${output}")
endif()
