# The Debian package: `cpack -G DEB` in the build folder. build.sh does all of it.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/debian/changelog first LIMIT_COUNT 1)
if(NOT first MATCHES "^zpsg \\(([^-]+)-([^)]+)\\)" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(WARNING "No Debian package: packaging/linux/debian/changelog must begin with an entry for ${PROJECT_VERSION}")
    return()
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zpsg)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES TRUE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/stage.cmake)

set(CPACK_DEBIAN_PACKAGE_MAINTAINER
    "The ZPS G developers <maintainers@users.noreply.c-seed-4b69ed28.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "monitor for digital PC power supplies, with fan and lights")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"ZPS G reads the digital power supplies of the ZPS G family over USB: the
volts and amps of each rail, output power, efficiency, temperature and fan
speed. It shows them in a window and from the tray, keeps a history of days
and minutes, counts energy and cost, raises alarms, and sets the fan and the
ring lights.

Other programs get readings as lines of JSON, over MQTT, or from a metrics
page. A simulated supply shows all of it without a device.")

# What is linked is found in the programs; what they load while they run is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt5sql5-sqlite)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter, libpulse0, udev")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk, qtwayland5")

set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_LIST_DIR}/debian/postinst ${CMAKE_CURRENT_LIST_DIR}/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
