# What a Linux desktop wants of a program besides the program, in the places where it looks under any prefix.
set(VANTRIX_ZSH_COMPLETIONS share/zsh/site-functions CACHE STRING "Where zsh looks for completions, under the prefix")
set(VANTRIX_LINUX_RESOURCES ${PROJECT_SOURCE_DIR}/resources/linux)

install(FILES ${VANTRIX_LINUX_RESOURCES}/vantrix.desktop DESTINATION share/applications)
# A desktop's search path need not know the prefix, so the entry names the program in full.
install(CODE [[
  set(entry "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/share/applications/vantrix.desktop")
  get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
  if(NOT prefix MATCHES "^/usr(/local)?$")
    file(READ "${entry}" text)
    string(REPLACE "Exec=vantrix" "Exec=\"${prefix}/bin/vantrix\"" text "${text}")
    file(WRITE "${entry}" "${text}")
  endif()
]])
install(FILES ${VANTRIX_LINUX_RESOURCES}/app.vantrix.Vantrix.metainfo.xml DESTINATION share/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/resources/vantrix.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES ${VANTRIX_LINUX_RESOURCES}/vantrix-symbolic.svg DESTINATION share/icons/hicolor/symbolic/apps)
install(FILES ${VANTRIX_LINUX_RESOURCES}/vantrix.1 DESTINATION share/man/man1)
install(FILES ${VANTRIX_LINUX_RESOURCES}/completions/vantrix.bash
        DESTINATION share/bash-completion/completions RENAME vantrix)
install(FILES ${VANTRIX_LINUX_RESOURCES}/completions/vantrix.zsh DESTINATION ${VANTRIX_ZSH_COMPLETIONS} RENAME _vantrix)
install(FILES ${VANTRIX_LINUX_RESOURCES}/completions/vantrix.fish DESTINATION share/fish/vendor_completions.d)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION share/doc/vantrix RENAME copyright)
