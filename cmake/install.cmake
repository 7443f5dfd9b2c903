# What a program that uses the library gets: see docs/package.md for the layout.
include(CMakePackageConfigHelpers)

set(modules Controls Common qvafx qvocx qvafx_entry)
set_target_properties(qvafx PROPERTIES EXPORT_NAME Framework)
set_target_properties(qvocx PROPERTIES EXPORT_NAME AutomationControls)
set_target_properties(qvafx_entry PROPERTIES EXPORT_NAME Entry)
install(TARGETS ${modules} EXPORT QVControlsTargets
        RUNTIME DESTINATION bin ARCHIVE DESTINATION lib LIBRARY DESTINATION lib)
install(DIRECTORY ${QV_INCLUDE}/qvcontrols DESTINATION include)
if(QV_STAND_IN)
    install(DIRECTORY ${QV_INCLUDE}/qvafx DESTINATION include)
endif()

# What a program needs beside it besides the library: the stand-in, the compiler's runtime. Visual C++ has
# an installer for its own.
set(QV_RUNTIME)
if(QV_STAND_IN)
    list(APPEND QV_RUNTIME qvafx.dll)
endif()
if(NOT DEFINED QV_MINGW_DRIVER)
    set(QV_MINGW_DRIVER ${CMAKE_CXX_COMPILER})
endif()
set(runtime libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libgcc_s_sjlj-1.dll libstdc++-6.dll libwinpthread-1.dll)
if(MSVC)
    set(runtime)
endif()
foreach(name ${runtime})
    execute_process(COMMAND ${QV_MINGW_DRIVER} -print-file-name=${name}
                    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(IS_ABSOLUTE "${file}" AND EXISTS "${file}")
        file(REAL_PATH ${file} file)
        install(FILES ${file} DESTINATION bin RENAME ${name})
        list(APPEND QV_RUNTIME ${name})
        # The compiler's copy has its debugging information.
        install(CODE "if(CMAKE_INSTALL_DO_STRIP)
            execute_process(COMMAND \"${CMAKE_STRIP}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/${name}\")
        endif()")
    endif()
endforeach()

# --- What finds it

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(QV_WINMAIN WinMain)
else()
    set(QV_WINMAIN _WinMain@16)
endif()
set(config lib/cmake/QVControls)
set(QV_BIN bin)
configure_package_config_file(packaging/config/QVControlsConfig.cmake.in
                              ${CMAKE_BINARY_DIR}/package/QVControlsConfig.cmake
                              INSTALL_DESTINATION ${config} PATH_VARS QV_BIN)
# The width of pointers is checked in the configuration itself, which says what to do.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/QVControlsConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion ARCH_INDEPENDENT)
configure_file(packaging/config/qvcontrols.pc.in ${CMAKE_BINARY_DIR}/package/qvcontrols.pc @ONLY)
install(EXPORT QVControlsTargets NAMESPACE QVControls:: DESTINATION ${config})
install(FILES ${CMAKE_BINARY_DIR}/package/QVControlsConfig.cmake
              ${CMAKE_BINARY_DIR}/package/QVControlsConfigVersion.cmake DESTINATION ${config})
install(FILES ${CMAKE_BINARY_DIR}/package/qvcontrols.pc DESTINATION lib/pkgconfig)

# --- What is there to read and to try

if(QV_INSTALL_EXTRAS)
    install(TARGETS inventory RUNTIME DESTINATION bin)
    install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION .)
    install(DIRECTORY docs DESTINATION .)
    install(DIRECTORY examples DESTINATION .)
endif()
