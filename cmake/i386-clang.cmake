# The same host by clang, whose sanitizers also know unsigned numbers that wrap. Its run-time library is not packaged for
# this host: what a sanitizer finds is a trap.
include("${CMAKE_CURRENT_LIST_DIR}/i386.cmake")
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET i686-linux-gnu)
set(CMAKE_CXX_COMPILER_TARGET i686-linux-gnu)
set(CMAKE_CXX_FLAGS_INIT "")
