# Whose framework the library is built with. With the stand-in, src/afx is built and goes along. With
# mfc the compiler brings it: the same targets then carry its settings, and nothing is built for them.
if(QVCONTROLS_FRAMEWORK STREQUAL "stand-in")
    set(QV_STAND_IN ON)
    if(MSVC)
        message(FATAL_ERROR "Visual C++ has the framework itself: set QVCONTROLS_FRAMEWORK to mfc.")
    endif()
elseif(QVCONTROLS_FRAMEWORK STREQUAL "mfc")
    set(QV_STAND_IN OFF)
    if(NOT MSVC)
        message(FATAL_ERROR "The framework comes with Visual C++ alone: set QVCONTROLS_FRAMEWORK to stand-in.")
    endif()
    if(QV_TESTS)
        message(FATAL_ERROR "The tests look into the stand-in: set QV_TESTS to OFF.")
    endif()
    set(CMAKE_MFC_FLAG 2)  # the DLL, which the program shares with CONTROLS.dll
    add_library(qvafx INTERFACE)
    target_compile_definitions(qvafx INTERFACE _AFXDLL _MBCS)
    target_compile_features(qvafx INTERFACE cxx_std_17)
    add_library(qvafx_entry INTERFACE)  # the framework has a WinMain of its own
    # Modules that share the framework's DLL with the program.
    set(QV_EXTENSION_DEFINITIONS _AFXEXT)
else()
    message(FATAL_ERROR "QVCONTROLS_FRAMEWORK is ${QVCONTROLS_FRAMEWORK}, and has to be stand-in or mfc.")
endif()
