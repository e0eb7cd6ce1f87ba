# Installation in three components: runtime, development, client. All paths are relative, so
# that the prefix can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/notes_export")
install(TARGETS notes_export EXPORT notes_export-targets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(EXPORT notes_export-targets
  NAMESPACE notes_export:: FILE notes_export-config.cmake
  DESTINATION "${package_dir}" COMPONENT development)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/notes_export-config-version.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/notes_export-config-version.cmake"
  DESTINATION "${package_dir}" COMPONENT development)

file(RELATIVE_PATH prefix_from_pc "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" prefix_from_pc "${prefix_from_pc}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/notes_export.pc.in" notes_export.pc @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/notes_export.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

install(FILES LICENSE docs/embedding.md docs/file-format.md DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT development)

if(TARGET notes-export)
  set_target_properties(notes-export PROPERTIES
    INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS notes-export RUNTIME COMPONENT client)
  install(FILES client/cli/notes-export.1
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT client)
  install(FILES client/cli/notes-export.bash RENAME notes-export
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT client)
endif()
