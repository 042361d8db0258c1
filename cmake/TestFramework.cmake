# GoogleTest: Debian's prebuilt libraries on the host; for a cross build the
# sources that Debian's googletest package installs, built for the target.
if(CMAKE_CROSSCOMPILING)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()
find_package(Threads REQUIRED)
include(GoogleTest)

# One test program per test source (FooTest.cpp becomes FooTest), so that
# each component's tests build and run on their own.
function(knxconv_add_test_suite dir)
  file(GLOB_RECURSE _sources CONFIGURE_DEPENDS ${dir}/*Test.cpp)
  # A caller leaves out sources (a regular expression) that need parts it
  # builds only on some targets.
  if(KNXCONV_TEST_EXCLUDE)
    list(FILTER _sources EXCLUDE REGEX "${KNXCONV_TEST_EXCLUDE}")
  endif()
  foreach(_source IN LISTS _sources)
    get_filename_component(_name ${_source} NAME_WE)
    add_executable(${_name} ${_source})
    target_link_libraries(${_name} PRIVATE ${ARGN} TestSupport GTest::gtest_main GTest::gmock Threads::Threads)
    knxconv_set_warnings(${_name})
    gtest_discover_tests(${_name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120 NO_PRETTY_VALUES)
  endforeach()
endfunction()
