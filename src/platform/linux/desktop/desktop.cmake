find_library(XCB_LIBRARY xcb REQUIRED)
target_link_libraries(vantrix_app PRIVATE ${XCB_LIBRARY})
