# run(WHAT COMMAND...): runs a command, fails the script with its output if it
# fails, and leaves its standard output in OUTPUT.
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}${err}")
  endif()
  message(STATUS "${what}: ok\n${out}${err}")
  set(OUTPUT "${out}" PARENT_SCOPE)
endfunction()
