# What a toolchain file runs programs with: cmake -DTOOLCHAIN=FILE -P emulator.cmake
include(${TOOLCHAIN})
execute_process(COMMAND ${CMAKE_COMMAND} -E echo "${CMAKE_CROSSCOMPILING_EMULATOR}")
