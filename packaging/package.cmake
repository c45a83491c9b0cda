# The Debian package, made by CPack:
#
#   tools/package.sh build/release
#
# CPack packs what `cmake --install` installs, from any build, and lets dpkg-shlibdeps find the libraries.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orbisol)
set(CPACK_PACKAGE_VENDOR Corvalen)
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without these the program runs, but Qt's own dialogs are in English, a Wayland session shows it through its X server,
# and pictures in TIFF are not read.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, qt6-image-formats-plugins")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "perpetual calendar with holidays, the moon and historical dates")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Orbisol shows any month from the year -3999 to the year 3999 with its public
holidays, the user's own events, vacation periods and the phases of the moon.
Dates are given in the Julian, the Gregorian and the French Republican
calendar, with the day of the Gregorian reform and the first days of civil
years as each country had them. Years, quarters and months can be printed.
.
The windows and the help are in French.")
include(CPack)
