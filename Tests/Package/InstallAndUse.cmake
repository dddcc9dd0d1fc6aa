# Installs the build BUILD_DIR into SCRATCH_DIR, builds the project SOURCE_DIR against it, runs it, and looks at what it
# writes. Starts from nothing each time, so that a header that is no longer installed is missed.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${SCRATCH_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${SCRATCH_DIR}/installed")
run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" -B "${SCRATCH_DIR}/build" -G "${GENERATOR}" -DCMAKE_BUILD_TYPE=Release
  "-DCMAKE_PREFIX_PATH=${SCRATCH_DIR}/installed" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/build")

execute_process(COMMAND "${SCRATCH_DIR}/build/outside" OUTPUT_VARIABLE written COMMAND_ERROR_IS_FATAL ANY)
if(NOT written STREQUAL "Wall-1\n")
  message(FATAL_ERROR "The program outside should have written the name of its wall, and wrote: '${written}'")
endif()
