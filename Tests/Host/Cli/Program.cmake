# Runs the program FCTOOL itself, on SAMPLE and on files in SCRATCH_DIR, for what commands called in process can't show:
# exit codes, which stream a line goes to, and what becomes of results that nobody takes.
function(expect_code expected)
  execute_process(COMMAND "${FCTOOL}" ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT code STREQUAL expected)
    message(SEND_ERROR "fctool ${ARGN}: exit code ${expected} expected, was ${code}\n${out}${err}")
  endif()
  if(code STREQUAL 2 AND NOT (out STREQUAL "" AND err MATCHES "^fctool: [^\n]+\n$"))
    message(SEND_ERROR "fctool ${ARGN}: one line on standard error expected, was\n${out}${err}")
  endif()
endfunction()

file(MAKE_DIRECTORY "${SCRATCH_DIR}")
file(WRITE "${SCRATCH_DIR}/broken.ifc" "ISO-10303-21;\nHEADER;FILE_SCHEMA(('IFC4X3_ADD2'));ENDSEC;\nDATA;\n#1=IFCNOSUCH(")

expect_code(0 info "${SAMPLE}")
expect_code(0 --help)
expect_code(1 tree "${SCRATCH_DIR}/broken.ifc")
expect_code(2 info "${SCRATCH_DIR}/missing.ifc")
expect_code(2 info "${SCRATCH_DIR}")
expect_code(2 get "${SAMPLE}" --guid none)
expect_code(2 get "${SAMPLE}" --id 4711)
expect_code(2 --nonsense)

# A reader that closes its pipe has seen enough: no message, and the exit code tells of the file alone.
execute_process(COMMAND "${FCTOOL}" tree --json "${SAMPLE}" COMMAND "${CMAKE_COMMAND}" -E true
  RESULTS_VARIABLE codes ERROR_VARIABLE err)
if(NOT (codes STREQUAL "0;0" AND err STREQUAL ""))
  message(SEND_ERROR "fctool into a closed pipe: 0;0 expected, was ${codes}\n${err}")
endif()
if(EXISTS /dev/full)
  execute_process(COMMAND "${FCTOOL}" info "${SAMPLE}" OUTPUT_FILE /dev/full RESULT_VARIABLE code ERROR_VARIABLE err)
  if(NOT (code STREQUAL 2 AND err MATCHES "^fctool: can't write the results: [^\n]+\n$"))
    message(SEND_ERROR "fctool onto a full disk: 2 and one line expected, was ${code}\n${err}")
  endif()
endif()
