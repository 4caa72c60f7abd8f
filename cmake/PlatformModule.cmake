# add_platform_module(NAME SOURCES...): classes that only some processes of the device have, as a shared library of
# their own beside the device's. A host program loads the modules of its application at start, so that a class of one
# application does not exist in another's process.
function(add_platform_module name)
    add_library(${name} SHARED ${ARGN})
    target_link_libraries(${name} PUBLIC device PRIVATE warnings)
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY "$<TARGET_FILE_DIR:device>"
        BUILD_RPATH "$ORIGIN")
endfunction()
