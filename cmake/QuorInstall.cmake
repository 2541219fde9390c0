# Installation: the program directory lib/quor under the prefix holds the programs, the companion
# programs, the default database, the synonym list and the help, as the build's program directory
# does; bin/ has links to the three programs, share/ the desktop entry and the icon. A program
# directory that its user cannot write sends the program to ~/.local/share/QUOR, which is filled on
# first start.
include(GNUInstallDirs)
set(QUOR_INSTALL_VERZEICHNIS lib/quor)

set(programme)
foreach(ziel quor quor-cli quor-plot cubpar Merlon_1 Tavik1W)
  if(TARGET ${ziel})
    list(APPEND programme ${ziel})
  endif()
endforeach()
install(TARGETS ${programme} RUNTIME DESTINATION ${QUOR_INSTALL_VERZEICHNIS})
if(TARGET Tavik1W)
  install(PROGRAMS ${QUOR_PROGRAMM_VERZEICHNIS}/Tavik1W_E DESTINATION ${QUOR_INSTALL_VERZEICHNIS})
endif()
install(FILES ${QUOR_PROGRAMM_VERZEICHNIS}/QUOR.Q07 ${QUOR_PROGRAMM_VERZEICHNIS}/SYNOM7.TXT
        DESTINATION ${QUOR_INSTALL_VERZEICHNIS})
install(DIRECTORY ${QUOR_PROGRAMM_VERZEICHNIS}/help DESTINATION ${QUOR_INSTALL_VERZEICHNIS})

# The programs on the search path: relative links into the program directory.
foreach(ziel quor quor-cli quor-plot)
  if(TARGET ${ziel})
    install(CODE "
      set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
      file(MAKE_DIRECTORY \"\${bin}\")
      file(CREATE_LINK \"../${QUOR_INSTALL_VERZEICHNIS}/${ziel}\" \"\${bin}/${ziel}\" SYMBOLIC)
      message(STATUS \"Installing: \${bin}/${ziel} -> ../${QUOR_INSTALL_VERZEICHNIS}/${ziel}\")")
  endif()
endforeach()

if(TARGET quor)
  # The desktop entry names the program by its full installed path, known only at install time.
  install(CODE "
    set(QUOR_PROGRAMM \"\${CMAKE_INSTALL_PREFIX}/${QUOR_INSTALL_VERZEICHNIS}/quor\")
    set(ziel \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/applications/quor.desktop\")
    configure_file(\"${PROJECT_SOURCE_DIR}/data/desktop/quor.desktop.in\" \"\${ziel}\" @ONLY)
    message(STATUS \"Installing: \${ziel}\")")
  install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/quor.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
