# cmake -D OBJECTS=FILE;… -D FOLDER=… -D LIBRARY=… -D INSTALL_NAME=… -D STUBS=…;… -P LinkPhoneLibrary.cmake
#
# Links a library for the phone. Where the compiler wrote compact unwind information beside DWARF's, the linker would
# drop DWARF's, which alone can be read everywhere that the library runs: so the compact kind is taken out first.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
set(stripped "")
set(number 0)
foreach(object IN LISTS OBJECTS)
    math(EXPR number "${number} + 1")
    set(copy "${FOLDER}/${number}.o")
    execute_process(COMMAND llvm-objcopy-19 --remove-section=__LD,__compact_unwind "${object}" "${copy}"
        COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND stripped "${copy}")
endforeach()

execute_process(COMMAND ld64.lld-19 -arch arm64 -platform_version ios 7.0 12.0 -dylib -adhoc_codesign -dead_strip -x -no_encryption
    -fatal_warnings -install_name "${INSTALL_NAME}" -o "${LIBRARY}" ${stripped} ${STUBS}
    COMMAND_ERROR_IS_FATAL ANY)
