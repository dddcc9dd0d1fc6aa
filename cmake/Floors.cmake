# fc_floor(NAME ROOMS folders and headers... [SOURCES files...]): one floor of the engine, an object library FcNAME of the sources in
# its folders and of those named, which is appended to `floors`. It sees the headers of its own rooms, of the floors declared
# before it and of Qor: "Fc/Core/Kernel/FcProduct.h" is looked for in floors/NAME, a folder of links to these rooms, so that an
# include from a higher floor finds no file. Sources that `sources_of_core` or the expression `modeller_sources` name are left to
# others.
function(fc_floor name)
  cmake_parse_arguments(ARG "" "" "ROOMS;SOURCES" ${ARGN})
  get_property(rooms GLOBAL PROPERTY FC_ROOMS)
  list(APPEND rooms ${ARG_ROOMS})
  set_property(GLOBAL PROPERTY FC_ROOMS "${rooms}")

  set(view "${CMAKE_BINARY_DIR}/floors/${name}")
  file(MAKE_DIRECTORY "${view}/written/Fc" "${view}/generated/Fc")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/Qor" "${view}/written/Qor" SYMBOLIC)
  foreach(room IN LISTS rooms)
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${room}" "${view}/written/Fc/${room}" SYMBOLIC)
    file(CREATE_LINK "${generated}/Fc/${room}" "${view}/generated/Fc/${room}" SYMBOLIC)
  endforeach()

  set(sources ${ARG_SOURCES})
  foreach(room IN LISTS ARG_ROOMS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${room}/*.cpp")
    list(REMOVE_ITEM found ${sources_of_core})
    list(APPEND sources ${found})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "${modeller_sources}")
  if(NOT sources)
    return() # headers alone
  endif()
  add_library(Fc${name} OBJECT ${sources})
  fc_compile_in_batches(Fc${name} 8)
  target_include_directories(Fc${name} PRIVATE "${view}/written" "${view}/generated")
  add_dependencies(Fc${name} FcGenerated)
  set(floors ${floors} Fc${name} PARENT_SCOPE)
endfunction()
