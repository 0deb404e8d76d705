# Flags that every target of the project shares; linked as an interface so that nothing leaks into imported targets.
add_library(vantrix_options INTERFACE)
# Leaving fields out of a designated initializer is how a record says "the rest is absent".
target_compile_options(vantrix_options INTERFACE -Wall -Wextra -Wconversion -Wshadow=local -Werror
                                                 -Wno-missing-field-initializers)
target_include_directories(vantrix_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(VANTRIX_SANITIZE)
  target_compile_options(vantrix_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(vantrix_options INTERFACE -fsanitize=address,undefined)
endif()
