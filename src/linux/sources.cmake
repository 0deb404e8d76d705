# Wi-Fi details come over generic netlink; only one file sees the library's headers.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
pkg_check_modules(LIBNL REQUIRED IMPORTED_TARGET libnl-3.0 libnl-genl-3.0)
target_link_libraries(vantrix_sources PRIVATE PkgConfig::LIBNL Threads::Threads)
