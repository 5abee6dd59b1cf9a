# Debian packages: `cpack -G DEB` in a build directory makes one package per
# install component, named as Debian names them, the Qt 6 build's with -qt6:
#   runtime  libsaiskuko1       libsaiskuko-qt6-1       the shared library
#   dev      libsaiskuko-dev    libsaiskuko-qt6-dev     headers, CMake package, .pc
#   program  saiskuko           saiskuko-qt6            the program, its man page and completion
#   python   python3-saiskuko   python3-saiskuko-qt6    the Python module saiskuko
# The two library packages and the two -dev packages share no file. The two
# program packages are the same program and replace each other, and so do the
# two Python packages, which both provide `import saiskuko`.

set(SAISKUKO_PACKAGE_MAINTAINER "saiskuko developers <saiskuko@localhost>"
  CACHE STRING "Maintainer written into the Debian packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${SAISKUKO_NAME})
set(CPACK_PACKAGE_CONTACT ${SAISKUKO_PACKAGE_MAINTAINER})
# Each description's first line is the package's summary.
set(_saiskuko_summary "Band plans of cellular and wireless standards")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENTS_ALL runtime dev)
if(TARGET saiskuko_cli)
  list(APPEND CPACK_COMPONENTS_ALL program)
endif()

# A library package is named for its SONAME; a digit before the version takes a hyphen.
set(_saiskuko_runtime_package lib${SAISKUKO_NAME}${PROJECT_VERSION_MAJOR})
if(SAISKUKO_NAME MATCHES "[0-9]$")
  set(_saiskuko_runtime_package lib${SAISKUKO_NAME}-${PROJECT_VERSION_MAJOR})
endif()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${_saiskuko_runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${_saiskuko_summary} (Qt ${SAISKUKO_QT_MAJOR})
The channel ranges, band edges and channel-to-frequency formulas of CDMA, GSM,
LTE-FDD, LTE-TDD, TD-SCDMA, WCDMA, WiMAX and 5G NR, and the queries on them.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME lib${SAISKUKO_NAME}-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_DEBIAN_DEV_DESCRIPTION "${_saiskuko_summary} - development files (Qt ${SAISKUKO_QT_MAJOR})
Headers, the CMake package ${SAISKUKO_NAME} (target saiskuko::saiskuko) and
the pkg-config file ${SAISKUKO_NAME}.pc.")
# The headers include Qt's, and the CMake package finds Qt Core.
if(SAISKUKO_QT_MAJOR EQUAL 5)
  set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "qtbase5-dev (>= ${SAISKUKO_QT_MIN_VERSION})")
else()
  set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "qt6-base-dev (>= ${SAISKUKO_QT_MIN_VERSION})")
endif()

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME ${SAISKUKO_NAME})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_PROGRAM_DEPENDS runtime)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "Command-line look-up of cellular band plans (Qt ${SAISKUKO_QT_MAJOR})
The saiskuko program answers channel and frequency questions about the band
plans from a shell.")
if(SAISKUKO_QT_MAJOR EQUAL 5)
  set(_saiskuko_other_program saiskuko-qt6)
else()
  set(_saiskuko_other_program saiskuko)
endif()
set(CPACK_DEBIAN_PROGRAM_PACKAGE_CONFLICTS ${_saiskuko_other_program})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_REPLACES ${_saiskuko_other_program})

if(TARGET saiskuko_python)
  list(APPEND CPACK_COMPONENTS_ALL python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-${SAISKUKO_NAME})
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)
  # The extension is built for one minor version of the interpreter.
  set(_saiskuko_python ${Python_VERSION_MAJOR}.${Python_VERSION_MINOR})
  math(EXPR _saiskuko_python_next "${Python_VERSION_MINOR} + 1")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "python3 (>= ${_saiskuko_python}), python3 (<< ${Python_VERSION_MAJOR}.${_saiskuko_python_next})")
  set(CPACK_DEBIAN_PYTHON_DESCRIPTION "${_saiskuko_summary} - Python module (Qt ${SAISKUKO_QT_MAJOR})
The module saiskuko: bands by name or code, channels to frequencies and back,
paired channels and searches by frequency, answered by lib${SAISKUKO_NAME}.")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_CONFLICTS python3-${_saiskuko_other_program})
  set(CPACK_DEBIAN_PYTHON_PACKAGE_REPLACES python3-${_saiskuko_other_program})
endif()

# Programs built against the runtime package depend on it through its shlibs file.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

if(NOT CMAKE_CROSSCOMPILING)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # The program's own library is found in the build; its package is named above.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
else()
  # dpkg-shlibdeps knows only the host's packages, so a cross build names the
  # libraries' packages itself; the architecture follows the target triplet.
  execute_process(COMMAND dpkg-architecture -t ${CMAKE_LIBRARY_ARCHITECTURE} -qDEB_HOST_ARCH
    OUTPUT_VARIABLE CPACK_DEBIAN_PACKAGE_ARCHITECTURE OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT CPACK_DEBIAN_PACKAGE_ARCHITECTURE)
    message(WARNING "dpkg-architecture gave no Debian architecture for ${CMAKE_LIBRARY_ARCHITECTURE}")
  endif()
  set(_saiskuko_qt_runtime libqt5core5a)
  if(SAISKUKO_QT_MAJOR EQUAL 6)
    set(_saiskuko_qt_runtime libqt6core6)
  endif()
  set(_saiskuko_qt_version ${${SAISKUKO_QT}Core_VERSION_MAJOR}.${${SAISKUKO_QT}Core_VERSION_MINOR})
  set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libc6, libgcc-s1, libstdc++6, ${_saiskuko_qt_runtime} (>= ${_saiskuko_qt_version})")
endif()

# An embedded image wants no debug information.
set(CPACK_STRIP_FILES ON)

include(CPack)
