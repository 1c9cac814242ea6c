# Installing Pilarix: the two programs, the desktop entry, the icon, the MIME type
# of a project and the manual pages; and its Debian package through CPack
# ("make deb", or "cpack" in the build folder).

include(GNUInstallDirs)

# "make install" / "cmake --install" install what is already built ("make install"
# of the Makefile builds the two programs first), so that cpack does not build the
# tests too.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

install(TARGETS pilarix-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_CURRENT_LIST_DIR}/pilarix-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
if(PILARIX_UI)
  install(TARGETS pilarix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/pilarix.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/pilarix.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/pilarix.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/pilarix.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
endif()

# ---- the Debian package ----
# The desktop, icon and MIME databases are brought up to date by the triggers of
# desktop-file-utils, hicolor-icon-theme and shared-mime-info: no maintainer scripts.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pilarix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Pilarix")
set(PILARIX_MAINTAINER "Equipe do Pilarix <pilarix@example.org>" CACHE STRING
  "The Maintainer field of the Debian package")
set(CPACK_PACKAGE_CONTACT "${PILARIX_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dimensionamento de pilares retangulares de concreto armado")
# The summary is the Description's first line; this, the text below it.
string(CONCAT CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Pilarix dimensiona e detalha um pilar retangular de concreto armado sob força\n"
  "normal e flexão em um eixo, pelo método das zonas de solicitação da NBR 6118:\n"
  "armadura, barras, estribos, ganchos e cobrimento, com a verificação da seção\n"
  "detalhada por compatibilidade de deformações, memorial de cálculo em PDF e o\n"
  "desenho da seção em DXF, SVG e PNG. Traz a janela (pilarix) e a linha de\n"
  "comando (pilarix-cli).")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# The libraries' packages come from dpkg-shlibdeps (dpkg-dev), or without it from
# the list it gives on Debian 12. Qt's own dialogs and buttons in Portuguese come
# from its translations.
find_program(PILARIX_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(PILARIX_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libgcc-s1, libstdc++6, libdxflib3, libqt6core6, libqt6gui6, libqt6svg6, libqt6widgets6")
endif()
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
include(CPack)
