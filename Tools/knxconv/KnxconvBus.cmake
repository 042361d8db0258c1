# The bus commands reach the bus only through the KNX daemon's client
# library, libeibclient (knxd-dev). It is GPL-2.0-or-later: only the tool
# links it, through KnxconvBus, never the converter library. The group
# address files are read with pugixml. Where either is missing (the armhf
# build, unless both exist for the target) the tool is built without them.
find_path(KNXCONV_EIBCLIENT_INCLUDE_DIR eibclient.h)
find_library(KNXCONV_EIBCLIENT_LIBRARY eibclient)
find_package(pugixml QUIET)

if(NOT KNXCONV_EIBCLIENT_INCLUDE_DIR OR NOT KNXCONV_EIBCLIENT_LIBRARY OR NOT TARGET pugixml::pugixml)
  message(STATUS "knxconv: libeibclient or pugixml not found for this target; "
                 "monitor, send, read and replay are left out")
  return()
endif()
message(STATUS "knxconv: bus commands through ${KNXCONV_EIBCLIENT_LIBRARY}")

add_library(KnxconvAddresses STATIC
  Addresses/AddressBook.cpp
  Addresses/EtsCsvReader.cpp
  Addresses/EtsDptText.cpp
  Addresses/EtsXmlReader.cpp)
target_include_directories(KnxconvAddresses PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/Addresses)
target_link_libraries(KnxconvAddresses PUBLIC KnxconvCore PRIVATE pugixml::pugixml)
knxconv_set_warnings(KnxconvAddresses)

add_library(KnxconvBus STATIC
  Bus/BusCommands.cpp
  Bus/BusConnection.cpp
  Bus/BusDecoder.cpp
  Bus/BusLine.cpp
  Bus/BusSession.cpp
  Bus/MonitorCommand.cpp
  Bus/ReplayCommand.cpp
  Bus/SendCommands.cpp
  Bus/StopSignal.cpp)
target_include_directories(KnxconvBus PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/Bus)
target_include_directories(KnxconvBus SYSTEM PRIVATE ${KNXCONV_EIBCLIENT_INCLUDE_DIR})
target_link_libraries(KnxconvBus PUBLIC KnxconvAddresses KnxconvCore PRIVATE ${KNXCONV_EIBCLIENT_LIBRARY})
knxconv_set_warnings(KnxconvBus)

target_link_libraries(knxconv PRIVATE KnxconvBus)
target_compile_definitions(knxconv PRIVATE KNXCONV_WITH_BUS)

# The package notes the GPL linkage.
install(FILES copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/knxconv COMPONENT tool)
