# add_phone_library(name sources options): NAME.dylib for iOS 7 and later on arm64, from Linux.
#
# CMake knows no iOS linker outside Xcode, so the objects are compiled by CMake and linked by a script of our own.

set(phoneFrameworks Foundation CoreFoundation UIKit AppSupport libobjc.A libSystem.B CydiaSubstrate rocketbootstrap)
# First in iOS 8: the library loads without them.
set(phoneWeakFrameworks Photos LocalAuthentication)

function(add_phone_library name sources options)
    add_library(${name}_objects OBJECT ${sources})
    target_include_directories(${name}_objects PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_compile_definitions(${name}_objects PRIVATE _GNU_SOURCE)
    # The order of the headers is meant: our configuration of libc++, libc++, then a C library; musl declares the few
    # plain C functions that we import just as the phone does.
    target_compile_options(${name}_objects PRIVATE ${options} -Os -fno-stack-protector
        -nostdinc++ -nostdlibinc
        "SHELL:-isystem ${CMAKE_SOURCE_DIR}/cmake/phone-libcxx"
        "SHELL:-isystem /usr/lib/llvm-19/include/c++/v1"
        "SHELL:-isystem ${ROLLKEEPER_SYSROOT}/usr/include/aarch64-linux-musl")
    target_link_libraries(${name}_objects PRIVATE warnings)

    set(library "${CMAKE_BINARY_DIR}/${name}.dylib")
    set(stubs ${phoneFrameworks} ${phoneWeakFrameworks})
    list(TRANSFORM stubs REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/package/stubs/\\1.tbd")
    set(stubArguments ${stubs})
    foreach(framework IN LISTS phoneWeakFrameworks)
        list(TRANSFORM stubArguments REPLACE "(.*/${framework}.tbd)" "-weak_library;\\1")
    endforeach()
    # Nothing will ever be encrypted: without that possibility the load commands need no page of their own.
    add_custom_command(OUTPUT "${library}"
        COMMAND ld64.lld-19 -arch arm64 -platform_version ios 7.0 12.0 -dylib -adhoc_codesign -dead_strip -x
                -no_encryption -fatal_warnings -o "${library}"
                -install_name /Library/MobileSubstrate/DynamicLibraries/${name}.dylib
                "$<TARGET_OBJECTS:${name}_objects>" ${stubArguments}
        COMMAND_EXPAND_LISTS VERBATIM
        DEPENDS "$<TARGET_OBJECTS:${name}_objects>" ${stubs}
        COMMENT "Linking ${name}.dylib for the phone")
    add_custom_target(${name} ALL DEPENDS "${library}")
endfunction()
