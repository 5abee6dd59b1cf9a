# Writes the program's man page and bash completion from its hidden --man and
# --completion options: cmake -DPROGRAM=... -DMAN_PAGE=... -DCOMPLETION=... -P
# EMULATOR, if given, runs it: its arguments separated by '|'.
# A sanitized build's leak report at exit is no fault of the pages.
set(ENV{ASAN_OPTIONS} "detect_leaks=0")
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")
function(write_page option file)
  get_filename_component(dir ${file} DIRECTORY)
  file(MAKE_DIRECTORY ${dir})
  execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${option} OUTPUT_FILE ${file} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    file(REMOVE ${file})
    message(FATAL_ERROR "${PROGRAM} ${option} failed: ${status}")
  endif()
endfunction()
write_page(--man ${MAN_PAGE})
write_page(--completion ${COMPLETION})
