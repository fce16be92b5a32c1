# Installing: the program in <prefix>/bin, its data (Benchlog.ini, the support files, the samples
# and the manual) in <prefix>/share/benchlog, where the program looks for them beside its own bin
# folder and copies them to the user's folder on first use; a desktop entry and an icon. Test
# executables, benchmarks and tools are not installed.
install(TARGETS benchlog RUNTIME DESTINATION bin)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/support/ DESTINATION share/benchlog)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/manual/ DESTINATION share/benchlog/manual)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/benchlog.desktop DESTINATION share/applications)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/benchlog.svg DESTINATION share/icons/hicolor/scalable/apps)

# The Debian package (scripts/package). dpkg-shlibdeps finds the libraries the executable links
# (libc, libstdc++, Qt Core, Gui, Widgets, PrintSupport). Qt Network and Sql are named here, since
# the linker drops them while no code of the program calls them yet, and so are the plugins loaded
# at run time: SQLite for the database output, the image formats for .tif pictures. The
# GTK platform theme gives the desktop's own file dialogs on GTK desktops, the portal theme those
# of xdg-desktop-portal.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME benchlog)
set(CPACK_PACKAGE_VENDOR "Benchlog team")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Geodetic control data utility")
set(CPACK_PACKAGE_DESCRIPTION "Keeps the data sheets of survey control marks in a text dataset with an index, fetches\n\
them from the agency's web service, and makes control listings, a database, drawing scripts,\n\
KML, a UTM plot, reference mark positions, hand-held GPS files, reports and printouts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Benchlog team <benchlog-support@benchlog.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "libqt6network6 (>= 6.4.0), libqt6sql6 (>= 6.4.0), libqt6sql6-sqlite, qt6-image-formats-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-gtk-platformtheme")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-xdgdesktopportal-platformtheme")
include(CPack)
