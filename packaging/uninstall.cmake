# Removes the files that MANIFEST lists, and the folders that held only them.
if(NOT EXISTS "${MANIFEST}")
  message(FATAL_ERROR "Nothing was installed from this build: there is no ${MANIFEST}")
endif()

file(STRINGS "${MANIFEST}" files)
foreach(file IN LISTS files)
  file(REMOVE "$ENV{DESTDIR}${file}")
  message(STATUS "Removed: $ENV{DESTDIR}${file}")
  cmake_path(GET file PARENT_PATH folder)
  if(folder MATCHES "/quillon$")
    execute_process(COMMAND rmdir "$ENV{DESTDIR}${folder}" ERROR_QUIET) # refuses while something is left
  endif()
endforeach()
file(REMOVE "${MANIFEST}")
