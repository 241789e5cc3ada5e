# The Debian package: `cpack` in a configured build tree (tools/package.sh).
# It holds what `cmake --install` lays out, under /usr.

set(TALLIX_PACKAGE_MAINTAINER "Tallix developers <tallix@example.com>"
  CACHE STRING "Maintainer field of the Debian package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tallix)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "Tallix")
set(CPACK_PACKAGE_CONTACT "${TALLIX_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "storage planner for video-surveillance sites")
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
  "Lists the cameras of a site as rows (channels, codec, scene, resolution,"
  "frame rate, audio), estimates each row's bit rate and answers how much disk"
  "a number of days needs, how long a disk or SD card records, what a RAID"
  "device offers and how many devices the days need.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the linker cannot tell: Qt loads its display plugins at run time, the
# style sheet asks for the CJK and DejaVu fonts (the Chinese dictionary needs
# the CJK one), and the icon goes into the hicolor theme.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qt6-qpa-plugins, fonts-noto-cjk, fonts-dejavu-core, hicolor-icon-theme")

include(CPack)
