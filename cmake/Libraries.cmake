# fc_compile_in_batches(TARGET SIZE): compiles up to SIZE sources of the target as one unit, since most of what a source costs
# are the headers and templates that its neighbours take too. No source may declare again what another of its batch declares,
# not even in an unnamed namespace, and each includes all that it takes: where batches end is not for it to know.
function(fc_compile_in_batches target size)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${size})
endfunction()

# qor_library(NAME SOURCES... [DEPENDS targets...]): one folder, included as "Qor/NAME/File.h", and one target Qor::NAME.
# Their code lies in one shared library, Qor: what they keep (who handles asserts, tolerances, dictionaries) must be one in a
# program, and one library starts faster than a dozen. Each folder is compiled as one unit.
function(qor_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  list(TRANSFORM ARG_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  target_sources(Qor PRIVATE ${ARG_SOURCES})
  if(ARG_SOURCES)
    set_source_files_properties(${ARG_SOURCES} TARGET_DIRECTORY Qor PROPERTIES UNITY_GROUP ${name})
  endif()
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
