# One folder, one target, and nothing to include but what it names.
#
# A folder's public headers are reached as <quillon/PATH/OF/FOLDER/file.h> through a folder of links of their
# own in the build tree. A target sees the public headers of the modules it links and no others, so an include
# over a forbidden edge, or of a header that is another module's own affair, does not compile.

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

# quillon_module([QT] [SMALL] [HEADERS...] [SOURCES...] [PUBLIC targets...] [PRIVATE targets...])
# Makes the static library of the current folder: the folder app/core becomes quillon_app_core, alias
# quillon::app::core. HEADERS are what others may include; every other header of the folder is its own affair.
# PUBLIC names the modules that the public headers mention, PRIVATE those that only the sources use.
# SMALL is for what runs seldom and is waited for by nobody: releases have it compiled for size. Of a program that
# waits in the tray all day, most of the memory is code.
#
# quillon::app::core::internals reaches all headers of the folder: for its own tests.
function(quillon_module)
  cmake_parse_arguments(arg "QT;SMALL" "" "HEADERS;SOURCES;PUBLIC;PRIVATE" ${ARGN})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" target quillon_${folder})
  string(REPLACE "/" "::" alias quillon::${folder})
  if(arg_SOURCES)
    add_library(${target} STATIC ${arg_SOURCES} ${arg_HEADERS})
    set(scope PUBLIC)
    quillon_compile_settings(${target})
    target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    if(arg_SMALL)
      target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-Os>)
    endif()
    if(arg_QT)
      set_target_properties(${target} PROPERTIES AUTOMOC ON)
      quillon_qt_settings(${target})
    endif()
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
    target_link_libraries(${target} INTERFACE ${arg_PUBLIC})
  endif()
  add_library(${alias} ALIAS ${target})
  set_target_properties(${target} PROPERTIES QUILLON_FOLDER ${folder} QUILLON_HEADERS "${arg_HEADERS}")

  set(root ${PROJECT_BINARY_DIR}/include/${target})
  file(REMOVE_RECURSE ${root})
  file(MAKE_DIRECTORY ${root}/quillon/${folder})
  foreach(header IN LISTS arg_HEADERS)
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${root}/quillon/${folder}/${header} SYMBOLIC)
  endforeach()
  target_include_directories(${target} ${scope} $<BUILD_INTERFACE:${root}>)

  set(root ${PROJECT_BINARY_DIR}/include/${target}_internals)
  cmake_path(GET folder PARENT_PATH above)
  file(REMOVE_RECURSE ${root})
  file(MAKE_DIRECTORY ${root}/quillon/${above})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/quillon/${folder} SYMBOLIC)
  add_library(${target}_internals INTERFACE)
  target_include_directories(${target}_internals INTERFACE ${root})
  target_link_libraries(${target}_internals INTERFACE ${target})
  add_library(${alias}::internals ALIAS ${target}_internals)
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

# quillon_library(NAME [QT] SOURCES... LIBRARIES...) makes a library that programs load when they first need it, in
# build/<preset>/lib/quillon/modules. Its name has the version: a program that still runs when a newer one is installed
# does not take the newer one's. Programs find it in ${QUILLON_LIBRARIES}, as seen from their own folder.
set(QUILLON_LIBRARIES ../lib/quillon/modules)
function(quillon_library name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} MODULE ${arg_SOURCES})
  quillon_compile_settings(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  target_link_options(${name} PRIVATE -Wl,--exclude-libs,ALL)
  set_target_properties(${name} PROPERTIES
    PREFIX "" OUTPUT_NAME ${name}-${PROJECT_VERSION} CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin/${QUILLON_LIBRARIES})
  if(arg_QT)
    quillon_qt_settings(${name})
  endif()
endfunction()

# quillon_test(NAME [QT] SOURCES... LIBRARIES... [LABELS...] [PRECOMPILED tests|view_tests]) makes a GoogleTest
# program and registers it. It is compiled with the headers that tests/precompiled makes ready.
function(quillon_test name)
  cmake_parse_arguments(arg "QT" "PRECOMPILED" "SOURCES;LIBRARIES;LABELS;ENVIRONMENT" ${ARGN})
  set(qt "")
  if(arg_QT)
    set(qt QT)
  endif()
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED tests)
  endif()
  quillon_program(${name} ${qt} SOURCES ${arg_SOURCES} LIBRARIES ${arg_LIBRARIES} GTest::gmock GTest::gtest)
  target_compile_options(${name} PRIVATE -fPIC) # as Qt asks of programs, and the precompiled headers of all
  target_precompile_headers(${name} REUSE_FROM quillon_precompiled_${arg_PRECOMPILED})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  if(QUILLON_SANITIZE STREQUAL "thread")
    list(APPEND arg_ENVIRONMENT "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/thread_sanitizer.supp")
  endif()
  set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" ENVIRONMENT "${arg_ENVIRONMENT}" TIMEOUT 300)
endfunction()
