include(CMakeFindDependencyMacro)
find_dependency(ICU 72 COMPONENTS uc)
include(${CMAKE_CURRENT_LIST_DIR}/QuillonKitTargets.cmake)
