# add_device_library(NAME FILE file IDENTIFIER identifier KIND -dylib;-install_name;… SOURCES … INCLUDE … FRAMEWORKS …
#                    WEAK …)
#
# What a device loads: on Linux a shared object whose imports the stand-ins satisfy; for the phone FILE, a library or
# bundle for iOS 7 and later on arm64, signed as IDENTIFIER. FRAMEWORKS and WEAK name the text stubs in package/stubs that satisfy it there.
function(add_device_library name)
    cmake_parse_arguments(PARSE_ARGV 1 device "" "FILE;IDENTIFIER" "KIND;SOURCES;INCLUDE;FRAMEWORKS;WEAK")
    set(options -fblocks -fno-exceptions -fno-rtti -fvisibility=hidden -fvisibility-inlines-hidden -funwind-tables)
    if(ROLLKEEPER_PHONE)
        add_library(${name}_objects OBJECT ${device_SOURCES})
        set(objects ${name}_objects)
    else()
        add_library(${name} SHARED ${device_SOURCES})
        set(objects ${name})
    endif()
    target_include_directories(${objects} PRIVATE ${device_INCLUDE})
    target_compile_options(${objects} PRIVATE ${options})
    target_link_libraries(${objects} PRIVATE warnings)
    target_precompile_headers(${objects} PRIVATE "${CMAKE_SOURCE_DIR}/src/platform/photos_ui.h")
    if(ROLLKEEPER_COVERAGE)
        count_coverage(${name})
    endif()
    if(NOT ROLLKEEPER_PHONE)
        return()
    endif()

    # The order of the headers is meant: our configuration of libc++, libc++, then a C library; musl declares the few
    # plain C functions that we import just as the phone does.
    target_compile_definitions(${objects} PRIVATE _GNU_SOURCE)
    target_compile_options(${objects} PRIVATE -Os -fno-stack-protector
        -nostdinc++ -nostdlibinc
        "SHELL:-isystem ${CMAKE_SOURCE_DIR}/cmake/phone-libcxx"
        "SHELL:-isystem /usr/lib/llvm-19/include/c++/v1"
        "SHELL:-isystem ${ROLLKEEPER_SYSROOT}/usr/include/aarch64-linux-musl")

    # CMake counts the precompiled header as an object.
    set(linked "$<FILTER:$<TARGET_OBJECTS:${objects}>,EXCLUDE,\\.pch$>")
    set(library "${CMAKE_BINARY_DIR}/${device_FILE}")
    set(stubs ${device_FRAMEWORKS} ${device_WEAK})
    list(TRANSFORM stubs REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/package/stubs/\\1.tbd")
    set(stubArguments ${stubs})
    foreach(framework IN LISTS device_WEAK)
        list(TRANSFORM stubArguments REPLACE "(.*/${framework}.tbd)" "-weak_library;\\1")
    endforeach()
    # CMake knows no iOS linker outside Xcode, so we call it. Nothing will ever be encrypted: without that possibility
    # the load commands need no page of their own.
    set(signer "${CMAKE_SOURCE_DIR}/cmake/sign.py")
    add_custom_command(OUTPUT "${library}"
        COMMAND ld64.lld-19 -arch arm64 -platform_version ios 7.0 12.0 ${device_KIND} -no_adhoc_codesign -dead_strip -x
                -no_encryption -fatal_warnings -o "${library}.unsigned" "${linked}" ${stubArguments}
        COMMAND "${Python3_EXECUTABLE}" -B "${signer}" ${device_IDENTIFIER} "${library}.unsigned" "${library}"
        COMMAND_EXPAND_LISTS VERBATIM
        BYPRODUCTS "${library}.unsigned"
        DEPENDS "${linked}" ${stubs} "${signer}"
        COMMENT "Linking ${device_FILE} for the phone")
    add_custom_target(${name} ALL DEPENDS "${library}")
endfunction()

# Which lines and branches are reached is counted in the file profiles/TARGET-*. It is mapped from the start, so that a
# process that is killed loses nothing.
function(count_coverage target)
    target_compile_options(${target} PRIVATE -fcoverage-mapping "SHELL:-mllvm -runtime-counter-relocation"
        "-fprofile-instr-generate=${CMAKE_BINARY_DIR}/profiles/${target}-%c%m")
    target_link_options(${target} PRIVATE -fprofile-instr-generate)
    target_sources(${target} PRIVATE "${CMAKE_SOURCE_DIR}/reliability/count_from_load.cpp")
endfunction()
