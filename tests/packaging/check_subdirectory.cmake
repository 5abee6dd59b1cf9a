# Run by CTest: builds a small program that takes saiskuko in through
# add_subdirectory() (tests/packaging/subproject) and runs it.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(configure_args -S ${CMAKE_CURRENT_LIST_DIR}/subproject -B ${WORK_DIR} -G ${GENERATOR}
    -DSAISKUKO_SOURCE_DIR=${SOURCE_DIR} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=Release
    -DSAISKUKO_QT_MAJOR=${QT_MAJOR})
if(QT_DIR)
  list(APPEND configure_args -D${QT}_DIR=${QT_DIR})
endif()
run("configure" ${CMAKE_COMMAND} ${configure_args})
run("build" ${CMAKE_COMMAND} --build ${WORK_DIR} --parallel 2)
run("run" ${WORK_DIR}/consumer)
