# The two platform libraries the converter library is built against: the
# substitutes of this project (default) or the real ones of the server
# platform, given by their header directories and library files.
#
#   -DKNXCONV_PLATFORM=external
#   -DKNXCONV_PLATFORM_INCLUDE_DIRS="<base platform include>;<KNX stack include>"
#   -DKNXCONV_PLATFORM_LIBRARIES="<base platform library>;<KNX stack library>"
#
# Either way the converter library links KNXCONV_PLATFORM_TARGETS and the
# targets UloPlatform and KnxStack exist for the rest of the build.
set(KNXCONV_PLATFORM "substitutes" CACHE STRING "Platform libraries: substitutes (built here) or external")
set_property(CACHE KNXCONV_PLATFORM PROPERTY STRINGS substitutes external)
set(KNXCONV_PLATFORM_INCLUDE_DIRS "" CACHE STRING "External platform: header directories (list)")
set(KNXCONV_PLATFORM_LIBRARIES "" CACHE STRING "External platform: library files or link flags (list)")

if(KNXCONV_PLATFORM STREQUAL "substitutes")
  set(KNXCONV_EXTERNAL_PLATFORM OFF)
elseif(KNXCONV_PLATFORM STREQUAL "external")
  set(KNXCONV_EXTERNAL_PLATFORM ON)
else()
  message(FATAL_ERROR "KNXCONV_PLATFORM must be substitutes or external, not '${KNXCONV_PLATFORM}'")
endif()

if(NOT KNXCONV_EXTERNAL_PLATFORM)
  set(KNXCONV_PLATFORM_TARGETS UloPlatform KnxStack)
  return()
endif()

if(NOT KNXCONV_PLATFORM_INCLUDE_DIRS OR NOT KNXCONV_PLATFORM_LIBRARIES)
  message(FATAL_ERROR "KNXCONV_PLATFORM=external needs KNXCONV_PLATFORM_INCLUDE_DIRS and KNXCONV_PLATFORM_LIBRARIES")
endif()
foreach(_header UloPlatform.h KnxStack.h)
  find_file(_knxconv_umbrella_${_header} ${_header} PATHS ${KNXCONV_PLATFORM_INCLUDE_DIRS} NO_DEFAULT_PATH)
  if(NOT _knxconv_umbrella_${_header})
    message(FATAL_ERROR "${_header} is not in KNXCONV_PLATFORM_INCLUDE_DIRS (${KNXCONV_PLATFORM_INCLUDE_DIRS})")
  endif()
endforeach()

# One target for both libraries in the build tree; an installed package
# recreates it as KnxValueConverter::Platform from the same two lists (see
# KnxValueConverterConfig.cmake.in), so no build-machine path is baked into
# the exported targets.
add_library(KnxconvExternalPlatform INTERFACE)
target_include_directories(KnxconvExternalPlatform INTERFACE ${KNXCONV_PLATFORM_INCLUDE_DIRS})
target_link_libraries(KnxconvExternalPlatform INTERFACE ${KNXCONV_PLATFORM_LIBRARIES})
add_library(UloPlatform ALIAS KnxconvExternalPlatform)
add_library(KnxStack ALIAS KnxconvExternalPlatform)
set(KNXCONV_PLATFORM_TARGETS $<BUILD_INTERFACE:KnxconvExternalPlatform> $<INSTALL_INTERFACE:KnxValueConverter::Platform>)
message(STATUS "Platform libraries: external (${KNXCONV_PLATFORM_LIBRARIES})")
