# add_phone_library(NAME FILE file KIND -dylib;-install_name;… SOURCES … OPTIONS … INCLUDE … FRAMEWORKS … WEAK …):
# a library or bundle for iOS 7 and later on arm64, from Linux. FRAMEWORKS and WEAK name text stubs in package/stubs.
#
# CMake knows no iOS linker outside Xcode, so the objects are compiled by CMake and linked by a command of our own.

function(add_phone_library name)
    cmake_parse_arguments(PARSE_ARGV 1 phone "" "FILE" "KIND;SOURCES;OPTIONS;INCLUDE;FRAMEWORKS;WEAK")
    add_library(${name}_objects OBJECT ${phone_SOURCES})
    target_include_directories(${name}_objects PRIVATE ${phone_INCLUDE})
    target_compile_definitions(${name}_objects PRIVATE _GNU_SOURCE)
    # The order of the headers is meant: our configuration of libc++, libc++, then a C library; musl declares the few
    # plain C functions that we import just as the phone does.
    target_compile_options(${name}_objects PRIVATE ${phone_OPTIONS} -Os -fno-stack-protector
        -nostdinc++ -nostdlibinc
        "SHELL:-isystem ${CMAKE_SOURCE_DIR}/cmake/phone-libcxx"
        "SHELL:-isystem /usr/lib/llvm-19/include/c++/v1"
        "SHELL:-isystem ${ROLLKEEPER_SYSROOT}/usr/include/aarch64-linux-musl")
    target_link_libraries(${name}_objects PRIVATE warnings)

    set(library "${CMAKE_BINARY_DIR}/${phone_FILE}")
    set(stubs ${phone_FRAMEWORKS} ${phone_WEAK})
    list(TRANSFORM stubs REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/package/stubs/\\1.tbd")
    set(stubArguments ${stubs})
    foreach(framework IN LISTS phone_WEAK)
        list(TRANSFORM stubArguments REPLACE "(.*/${framework}.tbd)" "-weak_library;\\1")
    endforeach()
    # Nothing will ever be encrypted: without that possibility the load commands need no page of their own.
    add_custom_command(OUTPUT "${library}"
        COMMAND ld64.lld-19 -arch arm64 -platform_version ios 7.0 12.0 ${phone_KIND} -adhoc_codesign -dead_strip -x
                -no_encryption -fatal_warnings -o "${library}" "$<TARGET_OBJECTS:${name}_objects>" ${stubArguments}
        COMMAND_EXPAND_LISTS VERBATIM
        DEPENDS "$<TARGET_OBJECTS:${name}_objects>" ${stubs}
        COMMENT "Linking ${phone_FILE} for the phone")
    add_custom_target(${name} ALL DEPENDS "${library}")
endfunction()
