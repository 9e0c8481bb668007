# An installed program: executables, the decoding process for them, the shipped files in share/pixmosa (data/), what
# desktops and software centres read, manual pages and completions. Components: `ventana`, `ordenes`, and `comun` that both
# need, each installed alone by `cmake --install DIR --component NAME`. packaging/paquete makes the Debian package of it.
include(GNUInstallDirs)
if(NOT PIXMOSA_QT)
  return()
endif()
set(share ${CMAKE_INSTALL_DATADIR})
install(TARGETS pixmosa RUNTIME COMPONENT ventana)
install(TARGETS pixmosa-cli RUNTIME COMPONENT ordenes)
install(TARGETS pixmosa-decodificador RUNTIME DESTINATION libexec/pixmosa COMPONENT comun)

set(icons ${share}/icons/hicolor)
install(FILES packaging/pixmosa.desktop DESTINATION ${share}/applications COMPONENT ventana)
install(FILES packaging/org.pixmosa.pixmosa.metainfo.xml DESTINATION ${share}/metainfo COMPONENT ventana)
install(FILES data/icons/pixmosa.svg DESTINATION ${icons}/scalable/apps COMPONENT ventana)
install(FILES packaging/pixmosa-symbolic.svg DESTINATION ${icons}/symbolic/apps COMPONENT ventana)
foreach(size IN LISTS PIXMOSA_ICON_SIZES)
  install(FILES ${CMAKE_BINARY_DIR}/iconos/${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME pixmosa.png COMPONENT ventana)
endforeach()

# The pages are in Spanish; the first folder is where a system of another language finds them.
set(manuals ${CMAKE_BINARY_DIR}/manuales)
foreach(folder man1 es/man1)
  install(FILES ${manuals}/pixmosa.1 ${manuals}/pixmosa-cli.1 DESTINATION ${share}/man/${folder} COMPONENT ordenes)
endforeach()
install(FILES ${manuals}/pixmosa-cli DESTINATION ${share}/bash-completion/completions COMPONENT ordenes)
install(FILES ${manuals}/_pixmosa-cli DESTINATION ${share}/zsh/site-functions COMPONENT ordenes)
install(FILES ${manuals}/pixmosa-cli.fish DESTINATION ${share}/fish/vendor_completions.d COMPONENT ordenes)
install(FILES packaging/copyright CHANGELOG.md DESTINATION ${share}/doc/pixmosa COMPONENT comun)
