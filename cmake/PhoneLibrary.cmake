# add_phone_library(name sources options): NAME.dylib for iOS 7 and later on arm64, from Linux.
#
# CMake knows no iOS linker outside Xcode, so the objects are compiled by CMake and linked by a command of our own.

set(phoneStubs "${CMAKE_SOURCE_DIR}/package/stubs")
set(phoneFrameworks Foundation CoreFoundation UIKit AppSupport libobjc.A libSystem.B CydiaSubstrate rocketbootstrap)
# First in iOS 8: the library loads without them.
set(phoneWeakFrameworks Photos LocalAuthentication)

function(add_phone_library name sources options)
    add_library(${name}_objects OBJECT ${sources})
    target_include_directories(${name}_objects PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_compile_definitions(${name}_objects PRIVATE _GNU_SOURCE)
    # The order is meant: our configuration of libc++, its headers, then a C library's; musl's headers declare the
    # few plain C functions that we import just as the phone does.
    target_compile_options(${name}_objects PRIVATE ${options} -Os -fno-stack-protector -femit-dwarf-unwind=always
        -nostdinc++ -nostdlibinc
        "SHELL:-isystem ${CMAKE_SOURCE_DIR}/cmake/phone-libcxx"
        "SHELL:-isystem /usr/lib/llvm-19/include/c++/v1"
        "SHELL:-isystem ${ROLLKEEPER_SYSROOT}/usr/include/aarch64-linux-musl")
    target_link_libraries(${name}_objects PRIVATE warnings)

    set(library "${CMAKE_BINARY_DIR}/${name}.dylib")
    list(TRANSFORM phoneFrameworks PREPEND "${phoneStubs}/" OUTPUT_VARIABLE stubs)
    list(TRANSFORM stubs APPEND ".tbd")
    list(TRANSFORM phoneWeakFrameworks PREPEND "${phoneStubs}/" OUTPUT_VARIABLE weakStubs)
    list(TRANSFORM weakStubs APPEND ".tbd")
    list(TRANSFORM weakStubs PREPEND "-weak_library;" OUTPUT_VARIABLE weakOptions)
    add_custom_command(OUTPUT "${library}"
        COMMAND ld64.lld-19 -arch arm64 -platform_version ios 7.0 12.0 -dylib -adhoc_codesign -dead_strip
                -fatal_warnings -install_name /Library/MobileSubstrate/DynamicLibraries/${name}.dylib -o "${library}"
                "$<TARGET_OBJECTS:${name}_objects>" ${stubs} ${weakOptions}
        COMMAND_EXPAND_LISTS VERBATIM
        DEPENDS ${name}_objects "$<TARGET_OBJECTS:${name}_objects>" ${stubs} ${weakStubs}
        COMMENT "Linking ${name}.dylib for the phone")
    add_custom_target(${name} ALL DEPENDS "${library}")
endfunction()
