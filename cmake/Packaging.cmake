# Debian packages through CPack, one per install component:
#   libknxvalueconverter<major>      runtime
#   libknxvalueconverter-dev         dev       (needs the runtime and the date headers)
#   knxconv                          tool      (needs the runtime)
#   libknxvalueconverter-platform    platform  (the substitutes; the runtime needs
#                                              them unless the real platform is used)
# cmake -S . -B build/x -DCMAKE_INSTALL_PREFIX=/usr && cmake --build build/x && cpack --config build/x/CPackConfig.cmake
set(KNXCONV_DEBIAN_MAINTAINER "KnxValueConverter developers <knxvalueconverter@localhost>"
    CACHE STRING "Maintainer field of the Debian packages")
set(KNXCONV_PLATFORM_DEBIAN_DEPENDS "" CACHE STRING
    "With KNXCONV_PLATFORM=external: Debian dependencies of the runtime package on the real platform libraries")

set(CPACK_PACKAGE_NAME knxvalueconverter)
set(CPACK_PACKAGE_VENDOR "KnxValueConverter developers")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${KNXCONV_DEBIAN_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Conversion between generic values and KNX group values")
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
# Install with DESTDIR, so that files written at install time (pkg-config)
# see the final prefix rather than the staging directory.
set(CPACK_SET_DESTDIR ON)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)

set(CPACK_COMPONENTS_ALL runtime dev)
if(NOT KNXCONV_EXTERNAL_PLATFORM)
  list(APPEND CPACK_COMPONENTS_ALL platform)
endif()
if(TARGET knxconv)
  list(APPEND CPACK_COMPONENTS_ALL tool)
endif()

if(CMAKE_CROSSCOMPILING)
  # dpkg-shlibdeps knows only the host's libraries; the cross toolchain
  # comes from the same Debian release, so the host's minimum versions hold.
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^arm")
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE armhf)
  endif()
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
  set(_system_depends "libc6 (>= 2.34)" "libgcc-s1 (>= 3.5)" "libstdc++6 (>= 11)")
else()
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # Where dpkg-shlibdeps finds the libraries of this build (and the real
  # platform's), which no installed package provides.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/Sources/Common)
  if(KNXCONV_EXTERNAL_PLATFORM)
    foreach(_library IN LISTS KNXCONV_PLATFORM_LIBRARIES)
      if(IS_ABSOLUTE "${_library}")
        get_filename_component(_directory "${_library}" DIRECTORY)
        list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${_directory})
      endif()
    endforeach()
  else()
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
         ${PROJECT_BINARY_DIR}/Platform/UloPlatform ${PROJECT_BINARY_DIR}/Platform/KnxStack)
  endif()
  set(_system_depends "")
endif()

set(_exact "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(_runtime "libknxvalueconverter${PROJECT_VERSION_MAJOR}")

# knxconv_debian_package(<COMPONENT> <name> <section> BINARY|FILES <depends>...)
# Packages of binaries also depend on the C and C++ runtime libraries (from
# dpkg-shlibdeps natively, from _system_depends when cross-compiling).
function(knxconv_debian_package component name section kind)
  set(_depends ${ARGN})
  if(kind STREQUAL "BINARY")
    list(APPEND _depends ${_system_depends})
  endif()
  list(JOIN _depends ", " _depends)
  set(CPACK_DEBIAN_${component}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_PACKAGE_DEPENDS "${_depends}" PARENT_SCOPE)
endfunction()

if(KNXCONV_EXTERNAL_PLATFORM)
  knxconv_debian_package(RUNTIME ${_runtime} libs BINARY ${KNXCONV_PLATFORM_DEBIAN_DEPENDS})
else()
  knxconv_debian_package(RUNTIME ${_runtime} libs BINARY "libknxvalueconverter-platform ${_exact}")
endif()
knxconv_debian_package(DEV libknxvalueconverter-dev libdevel FILES "${_runtime} ${_exact}" libhowardhinnant-date-dev)
if(TARGET KnxconvBus)
  # The bus commands link the KNX daemon's client library (GPL-2.0-or-later).
  knxconv_debian_package(TOOL knxconv utils BINARY "${_runtime} ${_exact}" knxd-tools)
else()
  knxconv_debian_package(TOOL knxconv utils BINARY "${_runtime} ${_exact}")
endif()
knxconv_debian_package(PLATFORM libknxvalueconverter-platform libs BINARY)

# Each package carries the licence as /usr/share/doc/<package>/copyright,
# in Debian's machine-readable form (MIT is "Expat" there).
file(READ ${PROJECT_SOURCE_DIR}/LICENSE _license)
string(REGEX REPLACE "\n+$" "" _license "${_license}")
string(REGEX REPLACE "\n\n" "\n.\n" _license "${_license}")
string(REGEX REPLACE "\n" "\n " _license "${_license}")
set(_copyright ${PROJECT_BINARY_DIR}/copyright)
file(WRITE ${_copyright} "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: KnxValueConverter

Files: *
Copyright: 2026 The KnxValueConverter developers
License: Expat
 ${_license}
")
# knxconv with the bus commands links knxd's GPL client library: its
# copyright file says so in the header paragraph.
set(_tool_copyright ${_copyright})
if(TARGET KnxconvBus)
  file(READ ${PROJECT_SOURCE_DIR}/Tools/knxconv/copyright _gpl_note)
  string(REGEX REPLACE "\n+$" "" _gpl_note "${_gpl_note}")
  string(REGEX REPLACE "\n\n" "\n.\n" _gpl_note "${_gpl_note}")
  string(REGEX REPLACE "\n" "\n " _gpl_note "${_gpl_note}")
  set(_tool_copyright ${PROJECT_BINARY_DIR}/copyright-knxconv)
  file(READ ${_copyright} _expat)
  string(REPLACE "Upstream-Name: KnxValueConverter\n" "Upstream-Name: KnxValueConverter\nComment: ${_gpl_note}\n" _expat
                 "${_expat}")
  file(WRITE ${_tool_copyright} "${_expat}")
endif()
foreach(_component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${_component} _upper)
  set(_file ${_copyright})
  if(_component STREQUAL "tool")
    set(_file ${_tool_copyright})
  endif()
  install(FILES ${_file} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${_upper}_PACKAGE_NAME}
          RENAME copyright COMPONENT ${_component})
endforeach()
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)

set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "KNX value converter library
 Converts the server platform's generic values to and from KNX group
 values, driven by a table of KNX datapoint types.")
set(CPACK_COMPONENT_DEV_DESCRIPTION "KNX value converter library (development files)
 Headers, CMake package (find_package(KnxValueConverter)) and pkg-config
 file (knxvalueconverter) of the KNX value converter library.")
set(CPACK_COMPONENT_TOOL_DESCRIPTION "KNX value converter on the command line
 Encodes and decodes KNX group values, lists the DPT table and decodes
 traces of telegrams.")
if(TARGET KnxconvBus)
  set(CPACK_COMPONENT_TOOL_DESCRIPTION "${CPACK_COMPONENT_TOOL_DESCRIPTION}
 .
 Monitors, writes, reads and replays group telegrams on a real KNX bus
 through the KNX daemon knxd, naming group addresses from the engineering
 tool's XML and CSV exports. For this it links knxd's client library
 libeibclient, which is GPL-2.0-or-later, so knxconv as packaged here is
 GPL-2.0-or-later (see /usr/share/doc/knxconv/copyright); the converter
 library never links it.")
endif()
set(CPACK_COMPONENT_PLATFORM_DESCRIPTION "Platform library substitutes for the KNX value converter
 The base platform (generic value, date/time value, logger) and the KNX
 stack interface (group value) that the converter library is built
 against, with their headers, for systems without the server platform.
 Development files include the CMake targets and pkg-config files
 uloplatform and knxstack.")

include(CPack)
