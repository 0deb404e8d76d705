# Compiles a target's files several at a time, so that what they include is parsed, and what they instantiate compiled,
# once for all. Only files of one folder whose own helpers have different names go together: the folders and exceptions
# that a target names. -DVANTRIX_UNITY=OFF compiles each file alone, which proves that it can be: the sanitized presets
# and the static analysis do. Objective-C++ cannot share with C++.
if(APPLE)
  option(VANTRIX_UNITY "Compile several files at a time" OFF)
else()
  option(VANTRIX_UNITY "Compile several files at a time" ON)
endif()
set(VANTRIX_UNITY_SIZE 8)

# FOLDERS of files relative to the current one; EXCEPT are files that stay alone.
function(vantrix_compile_together target)
  cmake_parse_arguments(PARSE_ARGV 1 together "" "" "FOLDERS;EXCEPT")
  get_target_property(sources ${target} SOURCES)
  foreach(folder IN LISTS together_FOLDERS)
    cmake_path(ABSOLUTE_PATH folder NORMALIZE OUTPUT_VARIABLE path)
    cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE room)
    set(count 0)
    foreach(source IN LISTS sources)
      cmake_path(ABSOLUTE_PATH source NORMALIZE OUTPUT_VARIABLE file)
      cmake_path(GET file PARENT_PATH parent)
      cmake_path(GET file FILENAME name)
      if(parent STREQUAL path AND name MATCHES "\\.cpp$" AND NOT name IN_LIST together_EXCEPT)
        math(EXPR batch "${count} / ${VANTRIX_UNITY_SIZE}")
        string(MAKE_C_IDENTIFIER "${room}_${batch}" group)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
        math(EXPR count "${count} + 1")
      endif()
    endforeach()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${VANTRIX_UNITY} UNITY_BUILD_MODE GROUP)
endfunction()
