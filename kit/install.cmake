# The kit as a package for other programs: cmake --install build/kit --component kit-development, and then
# find_package(QuillonKit) gives the targets quillon::base to quillon::cheatsheet. Not part of an ordinary
# installation.
include(GNUInstallDirs)

set(modules base shortcut menu records coach cheatsheet)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QuillonKit)

# Headers that only the module's own sources include.
set(own_headers
  PATTERN utf8.h EXCLUDE
  PATTERN search_query.h EXCLUDE
  PATTERN file_descriptor.h EXCLUDE
  PATTERN iso_date.h EXCLUDE
  PATTERN json_reader.h EXCLUDE
  PATTERN json_writer.h EXCLUDE
  PATTERN temporary_file.h EXCLUDE)

foreach(module IN LISTS modules)
  set_target_properties(quillon_${module} PROPERTIES EXPORT_NAME ${module})
  install(TARGETS quillon_${module} EXPORT QuillonKit
    ARCHIVE COMPONENT kit-development EXCLUDE_FROM_ALL
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(DIRECTORY ${module}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quillon/${module}
    COMPONENT kit-development EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN "*.h" ${own_headers})
endforeach()

install(EXPORT QuillonKit NAMESPACE quillon:: FILE QuillonKitTargets.cmake DESTINATION ${package_dir}
  COMPONENT kit-development EXCLUDE_FROM_ALL)
install(FILES QuillonKitConfig.cmake DESTINATION ${package_dir} COMPONENT kit-development EXCLUDE_FROM_ALL)
