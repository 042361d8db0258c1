# The header-only calendar library from Debian's libhowardhinnant-date-dev.
# A cross compiler does not search the host's /usr/include, so when
# cross-compiling the one header we use is copied into the build tree.
find_path(HOWARD_DATE_INCLUDE_DIR date/date.h
  PATHS /usr/include /usr/local/include
  NO_CMAKE_FIND_ROOT_PATH)
if(NOT HOWARD_DATE_INCLUDE_DIR)
  message(FATAL_ERROR "date/date.h not found: install libhowardhinnant-date-dev")
endif()

add_library(HowardDate INTERFACE)
if(CMAKE_CROSSCOMPILING)
  set(_date_copy ${CMAKE_BINARY_DIR}/third_party_include)
  configure_file(${HOWARD_DATE_INCLUDE_DIR}/date/date.h ${_date_copy}/date/date.h COPYONLY)
  target_include_directories(HowardDate SYSTEM INTERFACE $<BUILD_INTERFACE:${_date_copy}>)
else()
  target_include_directories(HowardDate SYSTEM INTERFACE $<BUILD_INTERFACE:${HOWARD_DATE_INCLUDE_DIR}>)
endif()
