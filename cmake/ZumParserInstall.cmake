# Install rules: the two shared libraries, the public headers under
# include/zum-parser/<folder>/ and include/zum-platform/, a relocatable CMake
# package (find_package(ZumParser CONFIG)) and a relocatable zum-parser.pc.

include(CMakePackageConfigHelpers)

set(ZUM_PARSER_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZumParser)

install(TARGETS zum-parser zum-platform
  EXPORT ZumParserTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# Globbed at install time, so a new header under src/ ships without an edit here.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zum-parser
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/include/zum-platform
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h")

install(EXPORT ZumParserTargets
  NAMESPACE ZumParser::
  DESTINATION ${ZUM_PARSER_CMAKE_DIR})
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/ZumParserConfig.cmake.in
  ${PROJECT_BINARY_DIR}/ZumParserConfig.cmake
  INSTALL_DESTINATION ${ZUM_PARSER_CMAKE_DIR})
# The major version is the SONAME's, so any release of the same major links.
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/ZumParserConfigVersion.cmake
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/ZumParserConfig.cmake
  ${PROJECT_BINARY_DIR}/ZumParserConfigVersion.cmake
  DESTINATION ${ZUM_PARSER_CMAKE_DIR})

# The .pc file finds its prefix from its own location, so the tree can move.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  message(FATAL_ERROR "zum-parser.pc needs CMAKE_INSTALL_LIBDIR and CMAKE_INSTALL_INCLUDEDIR relative to the prefix")
endif()
file(RELATIVE_PATH ZUM_PC_PREFIX_FROM_PCFILEDIR
  /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" ZUM_PC_PREFIX_FROM_PCFILEDIR "${ZUM_PC_PREFIX_FROM_PCFILEDIR}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/zum-parser.pc.in
  ${PROJECT_BINARY_DIR}/zum-parser.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zum-parser.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
