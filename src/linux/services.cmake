find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
find_library(XCB_LIBRARY xcb REQUIRED)
target_link_libraries(vantrix_app PUBLIC Qt6::DBus PRIVATE ${XCB_LIBRARY})

# Optional, as not every distribution has it for Qt 6: without it the program draws on X11 under Wayland, too.
find_package(LayerShellQt 6 QUIET)
pkg_check_modules(WAYLAND_CLIENT QUIET IMPORTED_TARGET wayland-client)
if(LayerShellQt_FOUND AND WAYLAND_CLIENT_FOUND)
  file(GLOB LAYER_SHELL_FILES CONFIGURE_DEPENDS linux/layer_shell/layer_*.cpp)
  target_link_libraries(vantrix_app PRIVATE LayerShellQt::Interface PkgConfig::WAYLAND_CLIENT)
else()
  set(LAYER_SHELL_FILES linux/layer_shell/no_layer_shell.cpp)
endif()
target_sources(vantrix_app PRIVATE ${LAYER_SHELL_FILES})
