# What `cmake --install` and `make package` deliver: the library with its soname, the public
# headers, a CMake package (gello::gello) and a pkg-config file, the tool, its man page and its
# bash completion.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(GELLO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/gello)

install(TARGETS gello EXPORT gelloTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/gello DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT gelloTargets NAMESPACE gello:: DESTINATION ${GELLO_CMAKE_DIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/gelloConfig.cmake.in
  ${PROJECT_BINARY_DIR}/gelloConfig.cmake INSTALL_DESTINATION ${GELLO_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/gelloConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/gelloConfig.cmake ${PROJECT_BINARY_DIR}/gelloConfigVersion.cmake
  DESTINATION ${GELLO_CMAKE_DIR})

# The pkg-config file finds its prefix from where it lies, so an installed tree can move.
file(RELATIVE_PATH GELLO_PC_TO_PREFIX ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig
  ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/gello.pc.in ${PROJECT_BINARY_DIR}/gello.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/gello.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS gello_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/tools/gello/gello.bash-completion
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME gello)

# The man page is the tool's own --help and --version, laid out by help2man.
find_program(HELP2MAN help2man REQUIRED)
set(GELLO_MAN_PAGE ${PROJECT_BINARY_DIR}/gello.1)
add_custom_command(OUTPUT ${GELLO_MAN_PAGE}
  COMMAND ${HELP2MAN} --no-info --name "GELLO models, expressions and instance documents"
          --include ${PROJECT_SOURCE_DIR}/tools/gello/gello.h2m --output ${GELLO_MAN_PAGE}
          $<TARGET_FILE:gello_tool>
  DEPENDS gello_tool ${PROJECT_SOURCE_DIR}/tools/gello/gello.h2m
  VERBATIM)
add_custom_target(gello_man ALL DEPENDS ${GELLO_MAN_PAGE})
install(FILES ${GELLO_MAN_PAGE} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gello)
set(CPACK_PACKAGE_VENDOR "gello developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "GELLO engine core: models, compiled expressions and the OCL runtime")
set(CPACK_PACKAGE_CONTACT "gello developers <gello@invalid>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
# Runtime dependencies come from the shared libraries the library and tool link; the headers
# need these as well.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libpugixml-dev, nlohmann-json3-dev")
include(CPack)
