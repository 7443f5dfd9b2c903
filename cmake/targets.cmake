# What every target of the project shares: warnings, sanitizers, the test framework.

find_package(Threads REQUIRED)

add_library(qv_options INTERFACE)
if(MSVC)
    # The members of exported classes need not be exported themselves.
    target_compile_options(qv_options INTERFACE /W3 /EHsc /bigobj /Zc:__cplusplus /wd4251 /wd4275)
    target_compile_definitions(qv_options INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
    target_compile_options(qv_options INTERFACE -Wall -Wextra -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # The framework has its Create beside CWnd's, a VARTYPE before "...", and operator== that take a
    # RECT, which C++20 allows beside an operator!= since this compiler. Functions that GCC is kept from
    # looking into need no such word here.
    target_compile_options(qv_options INTERFACE -Wno-overloaded-virtual -Wno-varargs
                           -Wno-ambiguous-reversed-operator -Wno-unknown-attributes)
elseif(NOT MSVC)
    target_compile_options(qv_options INTERFACE -Wshadow=local)
endif()
if(QV_SANITIZE)
    target_compile_options(qv_options INTERFACE -fsanitize=address,undefined
                           -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(qv_options INTERFACE -fsanitize=address,undefined)
    if(QV_LIBFUZZER)
        # libFuzzer goes by what its inputs reach in core, not in the fuzzer alone.
        target_compile_options(qv_options INTERFACE -fsanitize=fuzzer-no-link)
    else()
        target_compile_options(qv_options INTERFACE -O1)
    endif()
endif()
if(WIN32)
    # The library's modules export by declaration, and Windows 7 is the oldest system they run on.
    target_compile_definitions(qv_options INTERFACE _WIN32_WINNT=0x0601 WINVER=0x0601
                               _WIN32_IE=0x0700 NOMINMAX _AFXDLL _MBCS)
endif()

# A portable core library: no include path but src itself, so that a window header cannot slip in.
function(qv_add_core name)
    cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    if(NOT sources)
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${ARG_DEPENDS})
        return()
    endif()
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PRIVATE qv_options PUBLIC ${ARG_DEPENDS})
endfunction()

# Headers that most sources of a target include, read by the compiler once. Sources still include
# what they use: tests/outside compiles each public header by itself.
set(QV_STD_HEADERS <algorithm> <array> <functional> <memory> <string> <string_view> <utility> <vector>)
set(QV_FRAMEWORK_HEADERS <afxwin.h> <afxcmn.h> <afxdlgs.h> <afxext.h> <afxtempl.h>)

# Tests are compiled once and run a few times: what takes time in them is the modules under test,
# and it is these whose undefined behaviour is looked for.
add_library(qv_test_options INTERFACE)
target_compile_options(qv_test_options INTERFACE -O0 -g1)
if(QV_SANITIZE)
    target_compile_options(qv_test_options INTERFACE -fno-sanitize=undefined)
endif()
function(qv_add_tests target)
    target_link_libraries(${target} PRIVATE qv_options qv_test_options)  # the latter's word is last
    target_precompile_headers(${target} PRIVATE <gtest/gtest.h> ${QV_STD_HEADERS} ${ARGN})
endfunction()

# GoogleTest from the distribution's sources, built with whichever compiler this tree uses.
if(QV_TESTS)
    set(INSTALL_GTEST OFF)
    set(gtest_force_shared_crt ON)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
    foreach(target gtest gtest_main gmock gmock_main)
        set_target_properties(${target} PROPERTIES CXX_STANDARD 17)
        target_compile_options(${target} PRIVATE -O0)
    endforeach()
endif()

# What the system shows of a module: version, name, description.
function(qv_describe target description)
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
        set(name ${target})
    endif()
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL EXECUTABLE)
        set(file ${name}.exe)
        set(type VFT_APP)
    else()
        set(file ${name}.dll)
        set(type VFT_DLL)
    endif()
    set(rc ${CMAKE_BINARY_DIR}/generated/${name}.version.rc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/module.rc.in ${rc} @ONLY)
    target_sources(${target} PRIVATE ${rc})
endfunction()
