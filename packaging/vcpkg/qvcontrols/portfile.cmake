# An overlay port: it builds the checkout that it lies in.
get_filename_component(SOURCE_PATH "${CURRENT_PORT_DIR}/../../.." ABSOLUTE)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        -DQV_TESTS=OFF
        -DQV_INSTALL_EXTRAS=OFF
)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME QVControls CONFIG_PATH lib/cmake/QVControls)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
# No licence is chosen; the owner decides on one.
file(WRITE "${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright" "No licence has been chosen yet.\n")
