# Automatic reference counting.
target_compile_options(vantrix_app PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
foreach(framework AppKit CoreBluetooth CoreGraphics Foundation IOBluetooth ServiceManagement UserNotifications)
  target_link_libraries(vantrix_app PUBLIC "-framework ${framework}")
endforeach()

# A library of its own, as a target cannot mix Swift and C++. The C++ compiler still links everything, so it has to be
# told where Swift's libraries are.
set_target_properties(vantrix_app PROPERTIES LINKER_LANGUAGE CXX)
file(GLOB SWIFT_FILES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/macos/services/*.swift)
add_library(vantrix_swift STATIC ${SWIFT_FILES})
set_target_properties(vantrix_swift PROPERTIES Swift_MODULE_NAME VantrixSwift)
# Otherwise a single file is taken for a main program and built for the newest system.
target_compile_options(vantrix_swift PRIVATE -parse-as-library
                       "SHELL:-target ${CMAKE_SYSTEM_PROCESSOR}-apple-macosx${CMAKE_OSX_DEPLOYMENT_TARGET}")
# The compiler in /usr/bin is only a launcher; the libraries are next to the real one.
execute_process(COMMAND xcrun --find swiftc OUTPUT_VARIABLE SWIFTC OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND xcrun --sdk macosx --show-sdk-path OUTPUT_VARIABLE SDK OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET SWIFTC PARENT_PATH SWIFT_PROGRAMS)
set(SWIFT_LIBRARIES ${SDK}/usr/lib/swift ${SWIFT_PROGRAMS}/../lib/swift/macosx)
foreach(folder IN LISTS SWIFT_LIBRARIES)
  if(NOT IS_DIRECTORY ${folder})
    message(FATAL_ERROR "Swift's libraries are not in ${folder}")
  endif()
endforeach()
target_link_directories(vantrix_app PUBLIC ${SWIFT_LIBRARIES})
target_link_libraries(vantrix_app PUBLIC vantrix_swift "-framework WidgetKit")
