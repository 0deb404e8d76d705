# The frameworks behind the interfaces; libIOReport and the HID event system are looked up while the program runs.
# Objective-C keeps count of its objects by itself.
find_package(Threads REQUIRED)
target_compile_options(vantrix_sources PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
foreach(framework AppKit CoreFoundation CoreLocation CoreWLAN Foundation IOKit Security SystemConfiguration)
  target_link_libraries(vantrix_sources PUBLIC "-framework ${framework}")
endforeach()
target_link_libraries(vantrix_sources PUBLIC -lobjc Threads::Threads)
