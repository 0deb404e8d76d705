# Makes the program an application bundle with its icon and its Info.plist in every language, signed for this machine.
set(VANTRIX_BUNDLE_IDENTIFIER "app.vantrix.Vantrix" CACHE STRING "Identifier of the application bundle")
set(VANTRIX_APPLICATION_GROUP "" CACHE STRING "Group that shares with widgets, TEAMID.something; none without one")
set(VANTRIX_SIGNING_IDENTITY "-" CACHE STRING "Who signs the bundle; - signs it for this machine alone")

function(vantrix_make_bundle target)
  set(source ${PROJECT_SOURCE_DIR}/resources/macos)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/bundle)
  set(application_group "")
  if(VANTRIX_APPLICATION_GROUP)
    string(CONCAT application_group "\t<key>com.apple.security.application-groups</key>\n"
                  "\t<array>\n\t\t<string>${VANTRIX_APPLICATION_GROUP}</string>\n\t</array>\n")
  endif()
  configure_file(${source}/Vantrix.entitlements.in ${made}/Vantrix.entitlements @ONLY)
  set_target_properties(
    ${target}
    PROPERTIES MACOSX_BUNDLE ON
               OUTPUT_NAME Vantrix
               MACOSX_BUNDLE_INFO_PLIST ${source}/Info.plist.in
               MACOSX_BUNDLE_GUI_IDENTIFIER ${VANTRIX_BUNDLE_IDENTIFIER}
               MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
               MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
               # What rewrites the program where it is installed would break its signature. Of the folders that it is
               # linked from, only Qt's is there on other machines; Swift's libraries are found by their own names.
               BUILD_WITH_INSTALL_RPATH ON
               INSTALL_RPATH "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBS}")

  add_executable(draw_iconset ${source}/draw_iconset.cpp)
  target_link_libraries(draw_iconset PRIVATE Qt6::Gui Qt6::Svg)
  add_custom_command(
    OUTPUT ${made}/Vantrix.icns
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:draw_iconset>
            ${PROJECT_SOURCE_DIR}/resources/vantrix.svg ${made}/Vantrix.iconset
    COMMAND iconutil --convert icns --output ${made}/Vantrix.icns ${made}/Vantrix.iconset
    DEPENDS draw_iconset ${PROJECT_SOURCE_DIR}/resources/vantrix.svg
    VERBATIM)
  file(GLOB tables CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/translations/macos/*.ts)
  add_custom_command(
    OUTPUT ${made}/lproj.stamp
    COMMAND ${CMAKE_COMMAND} -D TABLES=${PROJECT_SOURCE_DIR}/resources/translations/macos -D PLIST=${source}/Info.plist.in
            -D OUTPUT=${made}/lproj -P ${PROJECT_SOURCE_DIR}/cmake/info_plist_strings.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${made}/lproj.stamp
    DEPENDS ${tables} ${source}/Info.plist.in ${PROJECT_SOURCE_DIR}/cmake/info_plist_strings.cmake
    VERBATIM)
  add_custom_target(bundle_parts DEPENDS ${made}/Vantrix.icns ${made}/lproj.stamp)
  add_dependencies(${target} bundle_parts)

  # These commands run when the program is linked, which is whenever anything that they copy or sign has changed. One
  # after the other: a signature covers everything that is in the bundle by then.
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${made}/Vantrix.icns ${made}/lproj.stamp
                                                ${made}/Vantrix.entitlements ${source}/Info.plist.in)
  add_custom_command(
    TARGET ${target}
    POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Resources
    COMMAND ${CMAKE_COMMAND} -E copy ${made}/Vantrix.icns $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Resources
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${made}/lproj $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Resources
    COMMAND codesign --force --sign ${VANTRIX_SIGNING_IDENTITY} --identifier ${VANTRIX_BUNDLE_IDENTIFIER}
            --entitlements ${made}/Vantrix.entitlements $<TARGET_BUNDLE_DIR:${target}>
    VERBATIM)
endfunction()
