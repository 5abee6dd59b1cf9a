# Run by CTest: installs the build in BUILD_DIR into a fresh prefix, then builds
# and runs main.cpp against it twice, through find_package and through
# pkg-config. Any failing step fails the test.

include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

set(prefix ${WORK_DIR}/prefix)
set(libdir ${prefix}/${LIBDIR})
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

set(config_args)
if(CONFIG)
  set(config_args --config ${CONFIG})
endif()
run("install" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} ${config_args})

# Through the CMake package.
set(build ${WORK_DIR}/cmake-consumer)
set(configure_args -S ${CONSUMER_DIR} -B ${build} -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DPACKAGE=${PACKAGE} -DCMAKE_CXX_COMPILER=${CXX})
if(CONFIG)
  list(APPEND configure_args -DCMAKE_BUILD_TYPE=${CONFIG})
endif()
if(QT_DIR)
  list(APPEND configure_args -D${QT}_DIR=${QT_DIR})
endif()
run("configure consumer" ${CMAKE_COMMAND} ${configure_args})
run("build consumer" ${CMAKE_COMMAND} --build ${build} ${config_args})
file(GLOB_RECURSE consumer ${build}/consumer ${build}/consumer.exe)
list(GET consumer 0 consumer)
run("run consumer" ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libdir} ${consumer})

# Through pkg-config.
if(NOT PKG_CONFIG)
  message(FATAL_ERROR "pkg-config was not found; it is needed to check ${PACKAGE}.pc")
endif()
set(ENV{PKG_CONFIG_PATH} "${libdir}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
run("pkg-config" ${PKG_CONFIG} --cflags --libs ${PACKAGE})
separate_arguments(flags UNIX_COMMAND "${OUTPUT}")
# Qt is built position-independent and refuses to compile into anything else.
run("compile with pkg-config" ${CXX} -std=c++17 -fPIC ${CONSUMER_DIR}/main.cpp ${flags}
    -o ${WORK_DIR}/pc-consumer)
run("run pkg-config consumer" ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libdir}
    ${WORK_DIR}/pc-consumer)
