# Installs the kit of BUILD_DIR into SCRATCH, builds the program beside this file against it and runs it.
foreach(command IN ITEMS
    "${CMAKE_COMMAND};--install;${BUILD_DIR};--component;kit-development;--prefix;${SCRATCH}/installed"
    "${CMAKE_COMMAND};-S;${CMAKE_CURRENT_LIST_DIR};-B;${SCRATCH}/build;-G;Ninja;-DCMAKE_PREFIX_PATH=${SCRATCH}/installed;-DCMAKE_CXX_COMPILER=${COMPILER};-DCMAKE_CXX_FLAGS=${FLAGS}"
    "${CMAKE_COMMAND};--build;${SCRATCH}/build"
    "${SCRATCH}/build/kit_user;${SCRATCH}/favourite.json")
  execute_process(COMMAND ${command} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endforeach()
