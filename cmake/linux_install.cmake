# What a Linux desktop wants of a program besides the program, in the places where it looks under any prefix.
set(VANTRIX_ZSH_COMPLETIONS share/zsh/site-functions CACHE STRING "Where zsh looks for completions, under the prefix")
set(VANTRIX_LINUX_RESOURCES ${PROJECT_SOURCE_DIR}/resources/linux)

install(FILES ${VANTRIX_LINUX_RESOURCES}/app.vantrix.Vantrix.desktop DESTINATION share/applications)
install(FILES ${VANTRIX_LINUX_RESOURCES}/app.vantrix.Vantrix.service DESTINATION share/dbus-1/services)
# A bus starts programs by their full names alone, and a desktop's search path need not know the prefix.
install(CODE [[
  get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
  set(entries share/dbus-1/services/app.vantrix.Vantrix.service)
  if(NOT prefix MATCHES "^/usr(/local)?$")
    list(APPEND entries share/applications/app.vantrix.Vantrix.desktop)
  endif()
  foreach(entry IN LISTS entries)
    set(entry "$ENV{DESTDIR}${prefix}/${entry}")
    file(READ "${entry}" text)
    string(REPLACE "Exec=vantrix" "Exec=\"${prefix}/bin/vantrix\"" text "${text}")
    file(WRITE "${entry}" "${text}")
  endforeach()
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
