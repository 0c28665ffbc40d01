include(GNUInstallDirs)

install(TARGETS campora campora-cli RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
# Where the programs look for their data files, from the folder they are in; the icons are inside them.
install(DIRECTORY data/ DESTINATION "${CMAKE_INSTALL_DATADIR}/campora" PATTERN icons EXCLUDE PATTERN linux EXCLUDE PATTERN windows EXCLUDE)
if(WIN32)
  # Beside the program: the registry names them there.
  install(FILES data/windows/rpt.ico data/windows/pre.ico
    DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
if(UNIX AND NOT APPLE)
  set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable")
  install(FILES data/linux/campora.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES data/linux/campora.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
  install(FILES data/icons/campora.svg DESTINATION "${icons}/apps")
  install(FILES data/icons/rptfile.svg DESTINATION "${icons}/mimetypes"
    RENAME application-x-campora-report.svg)
  install(FILES data/icons/prefile.svg DESTINATION "${icons}/mimetypes"
    RENAME application-x-campora-prescription.svg)
endif()
install(FILES LICENSE README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
