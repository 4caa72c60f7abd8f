# `linux_build`: how code that stands on GNUstep and the stand-ins is compiled and linked.

# Two sets of headers are the same for every processor but lie among ones that are not: give them a folder of
# their own, so that a build for arm64 sees nothing else of this machine.
set(linuxHeaders "${CMAKE_BINARY_DIR}/linux-headers")
file(MAKE_DIRECTORY "${linuxHeaders}")
file(GLOB objcHeaders "/usr/lib/gcc/*-linux-gnu/12/include/objc")
if(NOT objcHeaders)
    message(FATAL_ERROR "the headers of the Objective-C runtime are missing: run script/setup")
endif()
list(GET objcHeaders 0 objcHeaders)
file(CREATE_LINK "${objcHeaders}" "${linuxHeaders}/objc" SYMBOLIC)
file(CREATE_LINK "/usr/include/nlohmann" "${linuxHeaders}/nlohmann" SYMBOLIC)

add_library(linux_build INTERFACE)
target_include_directories(linux_build SYSTEM INTERFACE
    "${CMAKE_SOURCE_DIR}/cmake/objc-compat" "${linuxHeaders}" /usr/include/GNUstep)
target_compile_definitions(linux_build INTERFACE _NATIVE_OBJC_EXCEPTIONS _GNU_SOURCE)
target_compile_options(linux_build INTERFACE -fblocks -fexceptions
    "$<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc;-fobjc-exceptions;-fconstant-string-class=NSConstantString>")
# BlocksRuntime comes first: gnustep-base has a _Block_copy too, which hands back the block on the stack.
target_link_libraries(linux_build INTERFACE
    BlocksRuntime -l:libgnustep-base.so.1.28 -l:libobjc.so.4 SQLiteCpp sqlite3 ffi png16 pthread dl m)
target_link_options(linux_build INTERFACE -fuse-ld=lld)
