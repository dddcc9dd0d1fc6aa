# The library out of the build folder FC_PREBUILT, under the names that its parts have where they are built.
find_package(Fc REQUIRED NO_DEFAULT_PATH PATHS "${FC_PREBUILT}")
get_directory_property(imported IMPORTED_TARGETS)
foreach(target IN LISTS imported)
  if(target MATCHES "^Fc::Qor(.+)")
    add_library(Qor::${CMAKE_MATCH_1} ALIAS ${target})
  endif()
endforeach()
