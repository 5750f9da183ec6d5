# The kit as a package for other programs: cmake --install build/kit --component kit-development, and then
# find_package(QuillonKit) gives the targets quillon::kit::base to quillon::kit::cheatsheet. Not part of an ordinary
# installation.
include(GNUInstallDirs)

set(modules base shortcut menu records coach cheatsheet)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QuillonKit)

foreach(module IN LISTS modules)
  set(target quillon_kit_${module})
  get_target_property(folder ${target} QUILLON_FOLDER)
  get_target_property(headers ${target} QUILLON_HEADERS)
  list(TRANSFORM headers PREPEND ${module}/)
  set_target_properties(${target} PROPERTIES EXPORT_NAME kit::${module})
  install(TARGETS ${target} EXPORT QuillonKit
    ARCHIVE COMPONENT kit-development EXCLUDE_FROM_ALL
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quillon/${folder}
    COMPONENT kit-development EXCLUDE_FROM_ALL)
endforeach()

install(EXPORT QuillonKit NAMESPACE quillon:: FILE QuillonKitTargets.cmake DESTINATION ${package_dir}
  COMPONENT kit-development EXCLUDE_FROM_ALL)
install(FILES QuillonKitConfig.cmake DESTINATION ${package_dir} COMPONENT kit-development EXCLUDE_FROM_ALL)
