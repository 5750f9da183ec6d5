# Compiles each header alone, seeing INCLUDES: those of ALLOWED must be found, REFUSED must not, though it exists.
string(REPLACE "|" ";" includes "${INCLUDES}")
string(REPLACE "|" ";" allowed "${ALLOWED}")
list(TRANSFORM includes PREPEND -I)

function(compile header result error)
  if(NOT EXISTS ${SOURCE}/${header})
    message(FATAL_ERROR "${header} is not there: name another")
  endif()
  execute_process(
    COMMAND ${COMPILER} -std=c++20 -fsyntax-only ${includes} -x c++ -include quillon/${header} /dev/null
    RESULT_VARIABLE code ERROR_VARIABLE said)
  set(${result} ${code} PARENT_SCOPE)
  set(${error} "${said}" PARENT_SCOPE)
endfunction()

foreach(header IN LISTS allowed)
  compile(${header} result error)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${header} must compile:\n${error}")
  endif()
endforeach()

compile(${REFUSED} result error)
if(result EQUAL 0)
  message(FATAL_ERROR "${REFUSED} compiles where it must not")
endif()
if(NOT error MATCHES "quillon/${REFUSED}(: No such file|' file not found)")
  message(FATAL_ERROR "${REFUSED} was refused for another reason:\n${error}")
endif()
