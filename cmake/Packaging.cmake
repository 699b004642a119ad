# The Debian package that "packaging/release package" makes.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantle)
set(CPACK_PACKAGE_CONTACT "The Vantle authors <maintainers@vantle.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://vantle.org)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "keeps each new screenshot at hand")
set(CPACK_PACKAGE_DESCRIPTION
    "Vantle waits in the background of a desktop. Each new screenshot or
recording, taken with whatever tool, appears as a tile on a small card in
the corner of the screen, from where it can be dragged into other programs,
copied, opened, shared, or moved to the Trash.")

# dpkg-shlibdeps finds the linked libraries. QML modules are loaded by name and must be listed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
file(STRINGS scripts/packages/run.list modules REGEX "^qml6-module-")
list(TRANSFORM modules REPLACE " .*" "")
list(JOIN modules ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS scripts/packages/run.list)
# Vantle works without these, but does less: see docs/dependencies.md.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "ca-certificates, default-dbus-session-bus | dbus-session-bus, file, libcanberra-pulse, libcanberra0, libglib2.0-bin, qt6-wayland, tesseract-ocr, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
    "gnome-shell-extension-gsconnect | kdeconnect, gnome-bluetooth-sendto | blueman | bluedevil, packagekit, qt6-translations-l10n, xdg-desktop-portal")

include(CPack)
