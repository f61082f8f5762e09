# What is installed on an office's computers, and the Debian package made of it (tools/package).
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

# The pictures that a new folder of data gets.
set(PICTURES ${CMAKE_BINARY_DIR}/pictures)
add_custom_command(OUTPUT ${PICTURES}/morvaneabc.jpg
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:pictures> ${PICTURES}
  DEPENDS pictures)
add_custom_target(package_pictures DEPENDS ${PICTURES}/morvaneabc.jpg)

install(TARGETS fee-office RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PICTURES}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/fee-office)
install(FILES packaging/fee-office.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/fee-office.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fee-office)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME fee-office)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION}+${CHANGES})
set(CPACK_PACKAGE_CONTACT "School fee office <fee-office@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Student fees, receipts and arrears of a school")
set(CPACK_PACKAGE_DESCRIPTION "The program in which a school's fee office works: students, payments, receipts, arrears, reports.\nIts interface is Chinese.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded or shown at run time, and so named by no library.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qt6-translations-l10n, fonts-noto-cjk, fonts-arphic-ukai, fonts-arphic-uming, fonts-cns11643-kai")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups, xdg-utils, qt6-wayland")
include(CPack)
