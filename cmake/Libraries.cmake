# qor_library(NAME SOURCES... [DEPENDS targets...]): one folder, included as "Qor/NAME/File.h", and one target Qor::NAME.
# Their code lies in one shared library, Qor: what they keep (who handles asserts, tolerances, dictionaries) must be one in a
# program, and one library starts faster than a dozen.
function(qor_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  list(TRANSFORM ARG_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  target_sources(Qor PRIVATE ${ARG_SOURCES})
  add_library(Qor${name} INTERFACE)
  add_library(Qor::${name} ALIAS Qor${name})
  target_link_libraries(Qor${name} INTERFACE Qor ${ARG_DEPENDS})
  install(TARGETS Qor${name} EXPORT FcTargets)
endfunction()

# qor_wrapper(NAME SOURCES... DEPENDS targets... WRAPS targets...): one that keeps nothing and stands on another library, which
# only programs that use it should load.
function(qor_wrapper name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;WRAPS" ${ARGN})
  add_library(Qor${name} STATIC ${ARG_SOURCES})
  add_library(Qor::${name} ALIAS Qor${name})
  target_link_libraries(Qor${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_WRAPS})
  install(TARGETS Qor${name} EXPORT FcTargets)
endfunction()
