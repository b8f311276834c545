# A little-endian host with 32-bit addresses: Debian's cross compiler. An x86-64 machine runs what is built itself, by the
# cross compiler's own loader and libraries; qemu-i386 hangs where two threads meet.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
set(libraries /usr/i686-linux-gnu/lib)
set(CMAKE_CROSSCOMPILING_EMULATOR ${libraries}/ld-linux.so.2;--library-path;${libraries})
# gcc 12 finds fault with its own std::string there.
set(CMAKE_CXX_FLAGS_INIT -Wno-restrict)
