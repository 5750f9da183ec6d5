# One folder, one target, and nothing to include but what it names.
#
# Every module's headers are reached as <quillon/MODULE/file.h> through a folder of its own in the build
# tree that holds one link to the source folder. A target sees the folders of the modules it links and no
# others, so an include over a forbidden edge does not compile.

function(quillon_compile_settings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # False alarms at -O3 for a literal joined to a temporary string (GCC bug 105651, mended in 13).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(QUILLON_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(QUILLON_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${QUILLON_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=${QUILLON_SANITIZE})
  endif()
  if(QUILLON_BUILD_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# For targets that use Qt: the strict subset of its conveniences.
function(quillon_qt_settings target)
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_USE_QSTRINGBUILDER)
endfunction()

# quillon_module(NAME [QT] SOURCES... [PUBLIC targets...] [PRIVATE targets...])
# Makes the static library quillon_NAME (alias quillon::NAME) of the current folder. PUBLIC names the
# modules that its headers mention, PRIVATE those that only its sources use.
function(quillon_module name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  set(target quillon_${name})
  if(arg_SOURCES)
    add_library(${target} STATIC ${arg_SOURCES})
    set(scope PUBLIC)
    quillon_compile_settings(${target})
    target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    if(arg_QT)
      set_target_properties(${target} PROPERTIES AUTOMOC ON)
      quillon_qt_settings(${target})
    endif()
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
    target_link_libraries(${target} INTERFACE ${arg_PUBLIC})
  endif()
  add_library(quillon::${name} ALIAS ${target})

  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root}/quillon)
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/quillon/${name} SYMBOLIC)
  target_include_directories(${target} ${scope} $<BUILD_INTERFACE:${root}>)
endfunction()

# quillon_program(NAME [QT] SOURCES... LIBRARIES...) makes one program in build/<preset>/bin.
function(quillon_program name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  quillon_compile_settings(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  if(arg_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    quillon_qt_settings(${name})
  endif()
endfunction()

# quillon_test(NAME [QT] SOURCES... LIBRARIES... [LABELS...]) makes a GoogleTest program and registers it.
function(quillon_test name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;LIBRARIES;LABELS;ENVIRONMENT" ${ARGN})
  set(qt "")
  if(arg_QT)
    set(qt QT)
  endif()
  quillon_program(${name} ${qt} SOURCES ${arg_SOURCES} LIBRARIES ${arg_LIBRARIES} GTest::gmock GTest::gtest)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" ENVIRONMENT "${arg_ENVIRONMENT}" TIMEOUT 300)
endfunction()
