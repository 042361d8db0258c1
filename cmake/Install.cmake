# Install rules, in four components:
#   runtime   the converter library's shared object
#   dev       its headers, the .so link, the CMake package and pkg-config file
#   platform  the platform substitutes: libraries, headers, CMake targets and
#             pkg-config files (left out when the real platform is used)
#   tool      knxconv
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

set(KNXCONV_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KnxValueConverter)
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(KNXCONV_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  set(KNXCONV_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(KNXCONV_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
else()
  set(KNXCONV_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()

# knxconv_install_rpath(<variable> <destination>): the RPATH for a file
# installed into <destination> (relative to the prefix) that needs this
# project's libraries. Under a private prefix it points from the file's own
# place to the library directory, so that the prefix may move; under /usr
# (the Debian packages) the loader finds them anyway and it stays empty.
function(knxconv_install_rpath variable destination)
  set(_rpath "")
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    get_filename_component(_from "${destination}" ABSOLUTE BASE_DIR "${CMAKE_INSTALL_PREFIX}")
    file(RELATIVE_PATH _path "${_from}" "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(_rpath "$ORIGIN")
    if(_path)
      string(APPEND _rpath "/${_path}")
    endif()
  endif()
  set(${variable} "${_rpath}" PARENT_SCOPE)
endfunction()

# knxconv_install_pkgconfig(<name> <component> DESCRIPTION <text>
#   [REQUIRES <module>...] [CFLAGS <flag>...] [LIBS <flag>...])
# The prefix is written at install time, so that the file is right for
# `cmake --install --prefix`, DESTDIR and CPack alike.
function(knxconv_install_pkgconfig name component)
  cmake_parse_arguments(PARSE_ARGV 2 PC "" "DESCRIPTION" "REQUIRES;CFLAGS;LIBS")
  list(JOIN PC_REQUIRES " " PC_REQUIRES)
  set(PC_REQUIRES_LINE "")
  if(PC_REQUIRES)
    set(PC_REQUIRES_LINE "Requires: ${PC_REQUIRES}\n")
  endif()
  list(JOIN PC_CFLAGS " " PC_CFLAGS)
  list(JOIN PC_LIBS " " PC_LIBS)
  set(KNXCONV_PC_PREFIX "@KNXCONV_PC_PREFIX@")
  set(_stage ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc.in)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgconfig.pc.in ${_stage} @ONLY)
  install(CODE "
    set(KNXCONV_PC_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
    configure_file(\"${_stage}\" \"${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc\" @ONLY)
    file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig\" TYPE FILE
         FILES \"${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc\")"
    COMPONENT ${component})
endfunction()

# knxconv_install_substitute(<target> <name>): a platform substitute, its
# headers in include/<name> and lib<name>.pc.
function(knxconv_install_substitute target name)
  install(TARGETS ${target} EXPORT KnxValueConverterPlatformTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT platform NAMELINK_COMPONENT platform)
  file(GLOB _headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/include/*.h)
  install(FILES ${_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name} COMPONENT platform)
  set(_cflags "-I\${includedir}/${name}")
  if(name STREQUAL "uloplatform")
    # UloTime.h includes Weekdays.h, which is the converter library's.
    list(APPEND _cflags "-I\${includedir}/knxvalueconverter")
  endif()
  knxconv_install_pkgconfig(${name} platform
    DESCRIPTION "Substitute of the ${target} platform library"
    CFLAGS ${_cflags}
    LIBS "-L\${libdir}" -l${name})
endfunction()

# The converter library, its headers, the CMake package and pkg-config file.
function(knxconv_install_converter)
  install(TARGETS KnxValueConverter EXPORT KnxValueConverterTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
  install(FILES ${KNXCONV_PUBLIC_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/knxvalueconverter COMPONENT dev)
  install(EXPORT KnxValueConverterTargets NAMESPACE KnxValueConverter:: DESTINATION ${KNXCONV_CMAKE_DIR}
    COMPONENT dev)
  if(NOT KNXCONV_EXTERNAL_PLATFORM)
    install(EXPORT KnxValueConverterPlatformTargets NAMESPACE KnxValueConverter:: DESTINATION ${KNXCONV_CMAKE_DIR}
      COMPONENT platform)
  endif()

  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/KnxValueConverterConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KnxValueConverterConfig.cmake INSTALL_DESTINATION ${KNXCONV_CMAKE_DIR})
  # The version check also refuses a package built for another pointer width
  # (an armhf package for a 64-bit build).
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/KnxValueConverterConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/KnxValueConverterConfig.cmake
                ${PROJECT_BINARY_DIR}/KnxValueConverterConfigVersion.cmake
          DESTINATION ${KNXCONV_CMAKE_DIR} COMPONENT dev)

  set(_cflags "-I\${includedir}/knxvalueconverter")
  set(_libs "-L\${libdir}" -lknxvalueconverter)
  if(KNXCONV_EXTERNAL_PLATFORM)
    set(_requires "")
    foreach(_dir IN LISTS KNXCONV_PLATFORM_INCLUDE_DIRS)
      list(APPEND _cflags "-I${_dir}")
    endforeach()
    list(APPEND _libs ${KNXCONV_PLATFORM_LIBRARIES})
  else()
    set(_requires uloplatform knxstack)
  endif()
  knxconv_install_pkgconfig(knxvalueconverter dev
    DESCRIPTION "Conversion between generic values and KNX group values"
    REQUIRES ${_requires} CFLAGS ${_cflags} LIBS ${_libs})
endfunction()
