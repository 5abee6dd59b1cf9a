# The program's sources besides main.cpp, shared with the fuzz target that
# drives its argument handling in-process.
set(SAISKUKO_PROGRAM_SOURCES)
foreach(file program commands bandname lookup duplex output chartlayout chartsvg)
  list(APPEND SAISKUKO_PROGRAM_SOURCES
    ${CMAKE_CURRENT_LIST_DIR}/${file}.cpp ${CMAKE_CURRENT_LIST_DIR}/${file}.h)
endforeach()
