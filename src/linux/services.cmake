find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
find_library(XCB_LIBRARY xcb REQUIRED)
target_link_libraries(vantrix_app PUBLIC Qt6::DBus PRIVATE ${XCB_LIBRARY})
