# Header-only libraries of the command-line tool, from Debian's packages:
# nlohmann-json (nlohmann-json3-dev). A cross
# compiler does not search the host's /usr/include, so when cross-compiling
# the header directories are copied into the build tree, as for the date
# library; pointing the cross compiler at /usr/include itself would pull in
# the host's C library headers.
include_guard(GLOBAL)

# knxconv_header_only_library(<target> <header> <directory>): an INTERFACE
# target for the header-only library whose <header> lives in <directory>.
function(knxconv_header_only_library target header directory)
  if(TARGET ${target})
    return()
  endif()
  string(MAKE_C_IDENTIFIER "${target}_INCLUDE_DIR" _variable)
  find_path(${_variable} ${header} PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH)
  if(NOT ${_variable})
    message(FATAL_ERROR "${header} not found: install the package that provides it")
  endif()
  set(_include_dir ${${_variable}})
  if(CMAKE_CROSSCOMPILING)
    set(_copy ${CMAKE_BINARY_DIR}/third_party_include)
    file(COPY ${_include_dir}/${directory} DESTINATION ${_copy})
    set(_include_dir ${_copy})
  endif()
  add_library(${target} INTERFACE)
  target_include_directories(${target} SYSTEM INTERFACE $<BUILD_INTERFACE:${_include_dir}>)
endfunction()

knxconv_header_only_library(KnxconvJson nlohmann/json.hpp nlohmann)
