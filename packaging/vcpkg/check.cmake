# cmake -P check.cmake: reads the port as vcpkg would, as far as that goes without it: the manifest is
# right and of the project's version, the portfile runs, and the build it asks for is configured.
cmake_minimum_required(VERSION 3.25)
set(CURRENT_PORT_DIR ${CMAKE_CURRENT_LIST_DIR}/qvcontrols)
set(CURRENT_PACKAGES_DIR ${WORK}/packages)
set(PORT qvcontrols)

file(READ ${CURRENT_PORT_DIR}/vcpkg.json manifest)
string(JSON name GET ${manifest} name)
string(JSON version GET ${manifest} version)
if(NOT name STREQUAL PORT OR NOT version STREQUAL VERSION)
    message(FATAL_ERROR "vcpkg.json is of ${name} ${version}, the project is at ${VERSION}.")
endif()

function(vcpkg_cmake_configure)
    cmake_parse_arguments(ARG "" "SOURCE_PATH" "OPTIONS" ${ARGN})
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${ARG_SOURCE_PATH} -B ${WORK}/build -G Ninja
                            -DCMAKE_TOOLCHAIN_FILE=${ARG_SOURCE_PATH}/cmake/win64.cmake ${ARG_OPTIONS}
                    COMMAND_ERROR_IS_FATAL ANY)
endfunction()
function(vcpkg_cmake_install)
    if(NOT EXISTS ${WORK}/build/cmake_install.cmake)
        message(FATAL_ERROR "There is nothing to install.")
    endif()
endfunction()
function(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(ARG "" "PACKAGE_NAME;CONFIG_PATH" "" ${ARGN})
    file(STRINGS ${WORK}/build/cmake_install.cmake lines REGEX "${ARG_CONFIG_PATH}")
    if(NOT lines)
        message(FATAL_ERROR "Nothing is installed in ${ARG_CONFIG_PATH}.")
    endif()
endfunction()
function(vcpkg_fixup_pkgconfig)
endfunction()

include(${CURRENT_PORT_DIR}/portfile.cmake)
if(NOT EXISTS ${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright)
    message(FATAL_ERROR "The port leaves no word about a licence.")
endif()
