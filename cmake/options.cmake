# Choices of one build tree; the presets set them.
option(QUILLON_BUILD_APP "Build the application (needs Qt 6 and the desktop libraries)" ON)
option(QUILLON_BUILD_BENCH "Build the benchmarks" OFF)
option(QUILLON_BUILD_FUZZ "Build the fuzz targets (needs clang)" OFF)
option(QUILLON_STALL_HOOK "Let other processes measure how long the program's main thread is busy (for tests and benchmarks)" OFF)
option(QUILLON_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
set(QUILLON_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
