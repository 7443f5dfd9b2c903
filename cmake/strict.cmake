# Whether what ships stays within the framework's published interface: all sources that include the
# framework are compiled, and nothing is linked, against headers that have nothing beyond it.
set(src ${PROJECT_SOURCE_DIR}/src)
set(apps ${PROJECT_SOURCE_DIR}/apps/inventory)
file(GLOB sources CONFIGURE_DEPENDS
     ${src}/activex/*.cpp ${src}/boxes/*.cpp ${src}/buttons/*.cpp ${src}/common/*.cpp ${src}/containers/*.cpp
     ${src}/dialogs/*.cpp ${src}/frame/*.cpp ${src}/grid/*.cpp ${src}/list/*.cpp ${src}/ocx/*.cpp
     ${src}/print/*.cpp ${src}/text/*.cpp ${src}/tree/*.cpp
     ${apps}/*.cpp ${apps}/compare/*.cpp ${apps}/details/*.cpp ${apps}/dialogs/*.cpp ${apps}/pages/*.cpp
     ${apps}/sources/*.cpp ${apps}/walk/*.cpp)
add_library(strict OBJECT EXCLUDE_FROM_ALL ${sources})
target_compile_definitions(strict PRIVATE QVAFX_STRICT QVCONTROLS_BUILD QVCOMMON_BUILD QVOCX_BUILD)
target_include_directories(strict PRIVATE ${src} ${src}/afx/include ${apps} ${PROJECT_SOURCE_DIR}/tools ${QV_INCLUDE})
target_compile_options(strict PRIVATE -O0 -fno-delete-null-pointer-checks)
target_link_libraries(strict PRIVATE qv_options)
target_precompile_headers(strict PRIVATE ${QV_FRAMEWORK_HEADERS} ${QV_STD_HEADERS})
