# fc_compile_in_batches(TARGET SIZE): compiles up to SIZE sources of the target as one unit, since most of what a source costs
# are the headers and templates that its neighbours take too. No source may declare again what another of its batch declares,
# not even in an unnamed namespace, and each includes all that it takes: where batches end is not for it to know.
function(fc_compile_in_batches target size)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${size})
endfunction()

# qor_library(NAME SOURCES... [DEPENDS targets...]): one folder, one target Qor::NAME, included as "Qor/NAME/File.h".
function(qor_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  add_library(Qor${name} STATIC ${ARG_SOURCES})
  add_library(Qor::${name} ALIAS Qor${name})
  fc_compile_in_batches(Qor${name} 16)
  set_target_properties(Qor${name} PROPERTIES EXPORT_NAME Qor${name})
  target_include_directories(Qor${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}> $<INSTALL_INTERFACE:include>)
  target_link_libraries(Qor${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE_DEPENDS})
  install(TARGETS Qor${name} EXPORT FcTargets)
endfunction()
