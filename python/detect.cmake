# Decides whether the Python module can be built here, before the option that
# turns it on is declared: sets SAISKUKO_HAVE_PYTHON, and says why when it is off.
#
# The interpreter is Debian's /usr/bin/python3 unless the caller names another
# (Python_EXECUTABLE or PYTHON_EXECUTABLE): its pybind11, headers, pytest and
# hypothesis come from Debian's packages, while a python3 first on PATH (pyenv,
# a venv) may have none of them.
set(SAISKUKO_HAVE_PYTHON OFF)
if(NOT Python_EXECUTABLE AND PYTHON_EXECUTABLE)
  set(Python_EXECUTABLE ${PYTHON_EXECUTABLE} CACHE FILEPATH "Python interpreter for the module")
elseif(NOT Python_EXECUTABLE AND EXISTS /usr/bin/python3)
  set(Python_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "Python interpreter for the module")
endif()

# A sanitizer's runtime must be loaded first, which a plain interpreter never does.
include(CheckCXXSourceCompiles)
check_cxx_source_compiles([[
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#error sanitizer
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#error sanitizer
#endif
#endif
int main() { return 0; }]] SAISKUKO_NO_SANITIZER)

if(CMAKE_CROSSCOMPILING)
  message(STATUS "Python module: off (cross-compiling)")
elseif(NOT SAISKUKO_NO_SANITIZER)
  message(STATUS "Python module: off (a sanitizer build cannot be loaded by a plain interpreter)")
else()
  find_package(Python 3 QUIET COMPONENTS Interpreter Development.Module)
  if(Python_FOUND)
    find_package(pybind11 2.6 CONFIG QUIET)
  endif()
  if(Python_FOUND AND pybind11_FOUND)
    set(SAISKUKO_HAVE_PYTHON ON)
  else()
    message(STATUS "Python module: off (needs Python's headers and pybind11: apt install "
                   "python3-dev pybind11-dev)")
  endif()
endif()
