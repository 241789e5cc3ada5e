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
  "device offers and how many devices the days need. tallix-plan gives the"
  "same answers on the command line for sites kept in CSV files.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

# Debian wants the licence in machine-readable form and the changelog gzipped
# without name or time stamp. The version has no Debian revision, so the
# package is native and its changelog is changelog.gz.
add_custom_command(OUTPUT package/changelog.gz
  COMMAND ${CMAKE_COMMAND} -E copy "${PROJECT_SOURCE_DIR}/data/changelog" package/changelog
  COMMAND gzip -9nf package/changelog
  DEPENDS "${PROJECT_SOURCE_DIR}/data/changelog"
  VERBATIM)
add_custom_target(tallix_package_docs ALL DEPENDS package/changelog.gz)
install(FILES "${PROJECT_SOURCE_DIR}/data/copyright" "${CMAKE_CURRENT_BINARY_DIR}/package/changelog.gz"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_PACKAGE_NAME}")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the linker cannot tell: Qt loads its display plugins at run time, the
# style sheet asks for the CJK and DejaVu fonts (the Chinese dictionary needs
# the CJK one), and the icon goes into the hicolor theme.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qt6-qpa-plugins, fonts-noto-cjk, fonts-dejavu-core, hicolor-icon-theme")

# CPack has postinst and postrm call ldconfig for any library under /usr/lib,
# but libvexplay is private to /usr/lib/tallix, where ldconfig never looks:
# the package is built again without scripts that do nothing else.
file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/package/DropLdconfig.cmake" @ONLY CONTENT [=[
foreach(deb IN LISTS CPACK_PACKAGE_FILES)
  set(tree "${deb}.tree")
  file(REMOVE_RECURSE "${tree}")
  execute_process(COMMAND dpkg-deb -R "${deb}" "${tree}" COMMAND_ERROR_IS_FATAL ANY)
  set(dropped NO)
  foreach(script postinst postrm)
    if(EXISTS "${tree}/DEBIAN/${script}")
      file(STRINGS "${tree}/DEBIAN/${script}" lines REGEX "[^ \t]")
      list(FILTER lines EXCLUDE REGEX "^(#!.*|set -e|if .*; then|fi)$")
      list(TRANSFORM lines STRIP)
      if(lines STREQUAL "ldconfig")
        file(REMOVE "${tree}/DEBIAN/${script}")
        set(dropped YES)
      endif()
    endif()
  endforeach()
  if(dropped)
    execute_process(COMMAND dpkg-deb --root-owner-group -Zgzip -b "${tree}" "${deb}"
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(REMOVE_RECURSE "${tree}")
endforeach()
]=])
set(CPACK_POST_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/package/DropLdconfig.cmake")

include(CPack)
