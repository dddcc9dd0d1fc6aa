# fc_generated_sources(TABLE FOLDER OUT): the sources that schema_generate makes of the table: one per group that has entities,
# the visitors and the tables of the whole schema. Their names follow from the table, so that they are known before it runs.
function(fc_generated_sources table folder out)
  file(STRINGS "${table}" entities REGEX "^entity ")
  set(groups)
  foreach(line IN LISTS entities)
    string(REGEX REPLACE "^entity [A-Za-z0-9]+ ([a-z]+::[a-z]+).*" "\\1" group "${line}")
    list(APPEND groups "${group}")
  endforeach()
  list(REMOVE_DUPLICATES groups)
  set(sources FcVisitorBase.cpp FcVisitorBaseNonConst.cpp SchemaTables.cpp)
  foreach(group IN LISTS groups)
    string(REPLACE "::" "-" group "${group}")
    list(APPEND sources "${group}.cpp")
  endforeach()
  list(TRANSFORM sources PREPEND "${folder}/Fc/Sources/")
  set(${out} "${sources}" PARENT_SCOPE)
endfunction()

# fc_generated_checks(SOURCES...): leaves out of generated sources, under the undefined behaviour sanitizer, the two checks at each
# use of a pointer. There is next to nothing but members of standard containers in them, of which GCC makes more code than of all
# the rest; the address sanitizer meets a null pointer all the same. Hand-written sources keep every check.
function(fc_generated_checks)
  if(FC_SANITIZE MATCHES "undefined" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set_property(SOURCE ${ARGN} APPEND PROPERTY COMPILE_OPTIONS -fno-sanitize=null,alignment)
  endif()
endfunction()
