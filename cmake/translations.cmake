# Compiles the tables of resources/translations into the program: `:/translations/LANGUAGE.qm`, and under
# `:/translations/platform/` those that this operating system words differently. The common ones are a Mac's words; its
# own tables are the texts of Info.plist, which are no part of the program.
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

function(vantrix_add_translations target)
  set(source ${PROJECT_SOURCE_DIR}/resources/translations)
  set(compiled ${CMAKE_CURRENT_BINARY_DIR}/translations)
  file(GLOB common CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.ts)
  set(platform "")
  if(NOT VANTRIX_WING STREQUAL "macos")
    file(GLOB platform CONFIGURE_DEPENDS RELATIVE ${source} ${source}/${VANTRIX_WING}/*.ts)
  endif()
  foreach(table IN LISTS common platform)
    string(REGEX REPLACE "\\.ts$" ".qm" name ${table})
    string(REGEX REPLACE "^${VANTRIX_WING}/" "platform/" name ${name})
    cmake_path(GET name PARENT_PATH folder)
    file(MAKE_DIRECTORY ${compiled}/${folder})
    add_custom_command(
      OUTPUT ${compiled}/${name}
      COMMAND ${LRELEASE} -silent ${source}/${table} -qm ${compiled}/${name}
      DEPENDS ${source}/${table}
      VERBATIM)
    list(APPEND files ${compiled}/${name})
  endforeach()
  qt_add_resources(${target} translations PREFIX /translations BASE ${compiled} FILES ${files})
endfunction()
