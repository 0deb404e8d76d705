# Flags that every target of the project shares; linked as an interface so that nothing leaks into imported targets.
add_library(vantrix_options INTERFACE)
# Leaving fields out of a designated initializer is how a record says "the rest is absent".
# The developers' presets take warnings for errors, never what a newer library deprecates.
set(flags -Wall -Wextra -Wconversion -Wno-missing-field-initializers -Wno-error=deprecated-declarations)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND flags -Wshadow=local)
else()
  list(APPEND flags -Wno-sign-conversion) # part of -Wconversion there alone; what else such a compiler finds is no error
  list(APPEND flags -ffp-contract=off) # a product and a sum rounded at once would give other last digits than elsewhere
endif()
target_compile_options(vantrix_options INTERFACE ${flags})
target_include_directories(vantrix_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# What the program reads comes from drivers, networks and other programs, so the one that people run is built to stop at
# a fault rather than go on with it. Flags from the environment (a distribution's) come first and are kept.
if(NOT APPLE)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection VANTRIX_HAS_FLOW_PROTECTION) # of some processors alone
  set(hardening -fPIE -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3
                $<$<BOOL:${VANTRIX_HAS_FLOW_PROTECTION}>:-fcf-protection>)
  target_compile_options(vantrix_options INTERFACE "$<$<CONFIG:Release>:${hardening}>")
  target_link_options(vantrix_options INTERFACE "$<$<CONFIG:Release>:-fPIE;-pie;-Wl,-z,relro,-z,now>")
endif()

if(VANTRIX_SANITIZE)
  target_compile_options(vantrix_options INTERFACE -fsanitize=${VANTRIX_SANITIZE} -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(vantrix_options INTERFACE -fsanitize=${VANTRIX_SANITIZE})
endif()
if(VANTRIX_FUZZ)
  target_compile_options(vantrix_options INTERFACE -fsanitize=fuzzer-no-link) # counts what an input reaches
endif()

# What most files include, and those that use Qt; parsed once for all files of a target.
set(VANTRIX_STANDARD_HEADERS <algorithm> <cmath> <cstdint> <functional> <map> <memory> <optional> <span> <string>
                             <string_view> <utility> <vector>)
set(VANTRIX_QT_HEADERS <QPainter> <QString> <QWidget> <algorithm> <functional> <memory> <optional> <string> <vector>)
