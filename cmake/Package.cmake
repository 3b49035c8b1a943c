# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package, as `cpack` makes it of what is installed.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrova)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
# The times of the files are set to SOURCE_DATE_EPOCH where it is given.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/SettleTimes.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Kestrova maintainers <maintainers@kestrova.org>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${PROJECT_HOMEPAGE_URL})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "picture calendar and personal diary")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Kestrova shows a month beside that month's picture. A double click on a date
opens the diary's page of that day: up to ten timed events, each with a
message, a repeat, a reminder and a note of any length.
.
Reminders come on the screen, spoken by a drawn character, by mail, by
telephone through a voice modem, or with a film, a sound or music, also while
the window is closed. Every month and every day can have a picture of your
own. The diaries of other users can be shown, too.")

# Of the libraries that are linked, the modules' among them, dpkg-shlibdeps finds the packages. What
# it cannot see: the manual is opened by xdg-open, the keyring's library is loaded by name, the
# voices and the toolkit's own texts are files.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "espeak-ng-data, libsecret-1-0, qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "gnome-keyring | kwalletmanager, qt6-wayland")

include(CPack)
