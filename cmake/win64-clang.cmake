# Clang with the headers, libraries and linker of the MinGW-w64 GCC, which tells where they are. The
# modules of the two compilers mix: it is the same interface, the same runtime.
set(QV_MINGW_TRIPLE x86_64-w64-mingw32)
set(QV_MINGW_DRIVER ${QV_MINGW_TRIPLE}-g++-posix)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-toolchain.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_TARGET ${QV_MINGW_TRIPLE})
endforeach()

execute_process(COMMAND ${QV_MINGW_DRIVER} -print-libgcc-file-name
                OUTPUT_VARIABLE gcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${QV_MINGW_DRIVER} -dumpfullversion
                OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(gcc ${gcc} DIRECTORY)
string(REGEX MATCH "^[0-9]+" version ${version})

# GCC's standard library asks for GCC's version, and keeps its thread's variables as GCC does.
set(common "-fgnuc-version=${version} -femulated-tls -Wno-unused-command-line-argument")
set(CMAKE_C_FLAGS_INIT "${common}")
set(CMAKE_CXX_FLAGS_INIT
    "${common} -nostdinc++ -isystem ${gcc}/include/c++ -isystem ${gcc}/include/c++/${QV_MINGW_TRIPLE}")
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-B${gcc} -L${gcc} -pthread")
endforeach()
