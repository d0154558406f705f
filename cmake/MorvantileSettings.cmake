# Compiler settings for all targets of the project.

option(MORVANTILE_BUILD_TESTS "Build the tests" ON)
option(MORVANTILE_DESKTOP_TESTS "Of the tests, build those that need a desktop too" ON)
option(MORVANTILE_ALL_TESTS
  "Build the tests that a build with sanitizers runs as well; off, only those marked for release" ON)
option(MORVANTILE_MAKE_MEDIA "Have the tests make the sample videos that they need" ON)
option(MORVANTILE_QUICK_BUILD
  "Build with precompiled headers, several sources at a time, a quicker linker and plain tests" OFF)
option(MORVANTILE_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(MORVANTILE_BUILD_FUZZERS "Build the harnesses of fuzz/ with libFuzzer; needs clang" OFF)
option(MORVANTILE_WERROR "Treat warnings as errors" OFF)
set(MORVANTILE_QT 5 CACHE STRING "Major version of Qt to build with: 5 or 6")
set_property(CACHE MORVANTILE_QT PROPERTY STRINGS 5 6)
set(MORVANTILE_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(MORVANTILE_CCACHE ccache)
if(MORVANTILE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # ccache needs this setting to cache files compiled with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${MORVANTILE_CCACHE}")
endif()

# Passed explicitly even if it is the compiler's default, because clang-tidy's default differs.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The version of `Qt::Core`, and of the tools that generate its metaobjects.
set(QT_DEFAULT_MAJOR_VERSION ${MORVANTILE_QT})

# morvantile_find_qt(MODULE…): finds modules of the chosen version, as the targets Qt::MODULE. A
# macro, because Qt leaves variables behind that its functions need.
set(MORVANTILE_OLDEST_QT_5 5.15)
set(MORVANTILE_OLDEST_QT_6 6.4)
if(NOT DEFINED MORVANTILE_OLDEST_QT_${MORVANTILE_QT})
  message(FATAL_ERROR "MORVANTILE_QT is ${MORVANTILE_QT}, and must be 5 or 6")
endif()
macro(morvantile_find_qt)
  find_package(Qt${MORVANTILE_QT} ${MORVANTILE_OLDEST_QT_${MORVANTILE_QT}} REQUIRED
    COMPONENTS ${ARGN})
endmacro()

add_library(morvantile_settings INTERFACE)
target_compile_definitions(morvantile_settings INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
# No -Wnull-dereference: GCC 12 reports some in Qt's containers after inlining. The analyzer of the
# target `tidy` searches for them instead.
target_compile_options(morvantile_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  -Wcast-align -Wextra-semi -Wimplicit-fallthrough
  $<$<BOOL:${MORVANTILE_WERROR}>:-Werror>
  # Required by ccache.
  $<$<BOOL:${MORVANTILE_QUICK_BUILD}>:-fpch-preprocess>)

# Set per folder, so that the folder of the tests can remove some again.
if(MORVANTILE_SANITIZE)
  add_compile_options(-fsanitize=${MORVANTILE_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${MORVANTILE_SANITIZE})
endif()

find_program(MORVANTILE_GOLD ld.gold)
if(MORVANTILE_QUICK_BUILD AND MORVANTILE_GOLD)
  add_link_options(-fuse-ld=gold)
endif()
