# libIOReport and the HID event system are looked up at run time. Objective-C uses automatic reference counting.
find_package(Threads REQUIRED)
target_compile_options(vantrix_sources PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
foreach(framework AppKit CoreFoundation CoreLocation CoreWLAN Foundation IOKit Security SystemConfiguration)
  target_link_libraries(vantrix_sources PUBLIC "-framework ${framework}")
endforeach()
target_link_libraries(vantrix_sources PUBLIC -lobjc Threads::Threads)
