include(GNUInstallDirs)

install(TARGETS campora campora-cli RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
# Where the programs look for their data files, from the folder they are in; the icons are inside them.
install(DIRECTORY data/ DESTINATION "${CMAKE_INSTALL_DATADIR}/campora" PATTERN icons EXCLUDE)
install(FILES LICENSE README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
