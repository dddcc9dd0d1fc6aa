# qor_library(NAME SOURCES... [DEPENDS targets...]): one folder, one target Qor::NAME, included as "Qor/NAME/File.h".
function(qor_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  add_library(Qor${name} STATIC ${ARG_SOURCES})
  add_library(Qor::${name} ALIAS Qor${name})
  set_target_properties(Qor${name} PROPERTIES EXPORT_NAME Qor${name})
  target_include_directories(Qor${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}> $<INSTALL_INTERFACE:include>)
  target_link_libraries(Qor${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE_DEPENDS})
  install(TARGETS Qor${name} EXPORT FcTargets)
endfunction()
