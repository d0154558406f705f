# How the folders declare their targets.
#
# Each target has an include folder of its own, in the build folder: links to the headers that it
# lists, at the paths by which they are included. Only what links the target finds them, so that an
# include goes nowhere that the links between targets do not go.
set(MORVANTILE_INCLUDE_DIR "${CMAKE_BINARY_DIR}/include")
# Made anew each time: no link outlives its header.
file(REMOVE_RECURSE "${MORVANTILE_INCLUDE_DIR}")

# morvantile_make_include_folder(FOLDER ROOT file…)
# Makes the folder, with a link to each header among the files at its path from ROOT; where there
# are no headers, no folder.
function(morvantile_make_include_folder folder root)
  cmake_path(ABSOLUTE_PATH root)
  foreach(header IN LISTS ARGN)
    if(header MATCHES "\\.(cpp|ui|qrc)$")
      continue()
    endif()
    cmake_path(ABSOLUTE_PATH header)
    if(NOT EXISTS "${header}")
      message(FATAL_ERROR "No such header: ${header}")
    endif()
    cmake_path(RELATIVE_PATH header BASE_DIRECTORY "${root}" OUTPUT_VARIABLE path)
    cmake_path(GET path PARENT_PATH parent)
    file(MAKE_DIRECTORY "${folder}/${parent}")
    file(CREATE_LINK "${header}" "${folder}/${path}" SYMBOLIC)
  endforeach()
endfunction()

# What is precompiled where MORVANTILE_QUICK_BUILD is on: what most files include, and what those
# with widgets include too. Made once, since that takes as long as several files.
set(MORVANTILE_COMMON_HEADERS
  <QColor> <QCoreApplication> <QDateTime> <QDebug> <QDir> <QElapsedTimer> <QFile> <QFileInfo>
  <QHash> <QImage> <QObject> <QSet> <QString> <QTemporaryDir> <QUrl> <QVariant> <QVector>
  <algorithm> <atomic> <chrono> <functional> <map> <memory> <optional> <string> <thread> <vector>)
set(MORVANTILE_WIDGET_HEADERS ${MORVANTILE_COMMON_HEADERS}
  <QComboBox> <QDialog> <QFileDialog> <QGroupBox> <QLabel> <QLineEdit> <QMessageBox> <QPainter>
  <QSettings> <QSlider> <QTimer> <QWidget>)

# morvantile_precompile_headers(): makes morvantile_common_headers and morvantile_widget_headers,
# from which the libraries take them. After Qt has been found.
function(morvantile_precompile_headers)
  if(NOT MORVANTILE_QUICK_BUILD)
    return()
  endif()
  file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp" "")
  foreach(kind common widget)
    string(TOUPPER ${kind} headers)
    add_library(morvantile_${kind}_headers STATIC "${CMAKE_BINARY_DIR}/precompiled.cpp")
    target_link_libraries(morvantile_${kind}_headers PRIVATE morvantile_settings Qt::Gui)
    set_target_properties(morvantile_${kind}_headers PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_precompile_headers(morvantile_${kind}_headers PRIVATE ${MORVANTILE_${headers}_HEADERS})
  endforeach()
  target_link_libraries(morvantile_widget_headers PRIVATE Qt::Widgets)
endfunction()

# morvantile_spare_moc(TARGET file…)
# Turns CMake's search for what moc, uic and rcc are to do off where no file gives them anything: it
# takes as long as compiling a file. Only where MORVANTILE_QUICK_BUILD is on: a file that gets its
# first Q_OBJECT later would need CMake to be run again.
function(morvantile_spare_moc target)
  if(NOT MORVANTILE_QUICK_BUILD)
    return()
  endif()
  foreach(file IN LISTS ARGN)
    if(file MATCHES "\\.(ui|qrc)$")
      return()
    endif()
    file(STRINGS "${file}" declarations REGEX "^ *Q_(OBJECT|GADGET|NAMESPACE)" LIMIT_COUNT 1)
    if(declarations)
      return()
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# morvantile_add_library(NAME SOURCES file… [PRIVATE_HEADERS file…] [HEADER_ROOT folder]
#                        [PUBLIC lib…] [PRIVATE lib…] [PRECOMPILED common|widget])
# One library for one folder, or for a part of it; static, or an interface if it has headers only.
# It may link only what stands below it. What links it finds the headers among its SOURCES, by their
# paths from HEADER_ROOT (the root of the project).
#
# The PRIVATE_HEADERS are found by the library itself, by their paths from the root of the project,
# and by what links NAME_private: its closest neighbours and the tests of its inner parts. That
# brings the PRIVATE libraries too, whose headers may be included there.
#
# PRECOMPILED says which precompiled headers are made part of each source.
function(morvantile_add_library name)
  cmake_parse_arguments(ARG "" "HEADER_ROOT;PRECOMPILED" "SOURCES;PRIVATE_HEADERS;PUBLIC;PRIVATE" ${ARGN})
  if(NOT ARG_HEADER_ROOT)
    set(ARG_HEADER_ROOT "${CMAKE_SOURCE_DIR}")
  endif()
  set(folder "${MORVANTILE_INCLUDE_DIR}/${name}")
  morvantile_make_include_folder("${folder}" "${ARG_HEADER_ROOT}" ${ARG_SOURCES})
  if(NOT ARG_SOURCES MATCHES "\\.cpp")
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${folder}")
    target_link_libraries(${name} INTERFACE morvantile_settings ${ARG_PUBLIC})
    return()
  endif()
  add_library(${name} STATIC ${ARG_SOURCES} ${ARG_PRIVATE_HEADERS})
  morvantile_spare_moc(${name} ${ARG_SOURCES} ${ARG_PRIVATE_HEADERS})
  target_include_directories(${name} PUBLIC "${folder}")
  target_link_libraries(${name} PUBLIC morvantile_settings ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
  if(MORVANTILE_QUICK_BUILD AND ARG_PRECOMPILED)
    target_precompile_headers(${name} REUSE_FROM morvantile_${ARG_PRECOMPILED}_headers)
  endif()
  if(ARG_PRIVATE_HEADERS)
    set(folder "${MORVANTILE_INCLUDE_DIR}/${name}_private")
    morvantile_make_include_folder("${folder}" "${CMAKE_SOURCE_DIR}" ${ARG_PRIVATE_HEADERS})
    target_include_directories(${name} PRIVATE "${folder}")
    add_library(${name}_private INTERFACE)
    target_include_directories(${name}_private INTERFACE "${folder}")
    target_link_libraries(${name}_private INTERFACE ${name} ${ARG_PRIVATE})
  endif()
endfunction()

# morvantile_add_executable(NAME SOURCES file… LIBS lib…)
# A program. It finds the headers among its own SOURCES and those of what it links.
function(morvantile_add_executable name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  set(folder "${MORVANTILE_INCLUDE_DIR}/${name}")
  morvantile_make_include_folder("${folder}" "${CMAKE_SOURCE_DIR}" ${ARG_SOURCES})
  add_executable(${name} ${ARG_SOURCES})
  morvantile_spare_moc(${name} ${ARG_SOURCES})
  if(EXISTS "${folder}")
    target_include_directories(${name} PRIVATE "${folder}")
  endif()
  target_link_libraries(${name} PRIVATE morvantile_settings ${ARG_LIBS})
endfunction()

# Tests of a sanitizer's build say so in their names, since ./test.sh runs all builds as one suite.
if(MORVANTILE_SANITIZE MATCHES "thread")
  set(MORVANTILE_TEST_SUFFIX ".tsan")
elseif(MORVANTILE_SANITIZE)
  set(MORVANTILE_TEST_SUFFIX ".asan")
endif()

# morvantile_run_moc(TARGET file…)
# Has moc run on the test's own file, which includes the outcome, and on the headers that need it.
# CMake's search for what needs moc takes longer than compiling a short test.
function(morvantile_run_moc target test)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  get_filename_component(name "${test}" NAME_WE)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
  file(MAKE_DIRECTORY "${folder}")
  qt_generate_moc(${test} "${folder}/${name}.moc" TARGET ${target})
  target_sources(${target} PRIVATE "${folder}/${name}.moc")
  target_include_directories(${target} PRIVATE "${folder}")
  foreach(header IN LISTS ARGN)
    file(STRINGS "${header}" declarations REGEX "^ *Q_(OBJECT|GADGET)$")
    if(NOT declarations)
      continue()
    endif()
    get_filename_component(name "${header}" NAME_WE)
    qt_generate_moc("${header}" "${folder}/moc_${name}.cpp" TARGET ${target})
    target_sources(${target} PRIVATE "${folder}/moc_${name}.cpp")
  endforeach()
endfunction()

# morvantile_add_test(FOLDER/NAME [SOURCES file…] LIBS lib… [MEDIA] [EXHAUSTIVE] [OPTIMISED]
#                     [CORE_ONLY] [LABELS label…] [TIMEOUT s])
# One Qt Test program for one class: FOLDER/NAME.cpp. MEDIA makes the sample videos first.
# EXHAUSTIVE is a test that asks for the frames of all samples one by one. Sanitizers do without it:
# for the time it takes they would see nothing that the tests beside it do not show them.
# OPTIMISED is one that has to run in a release build as well: the optimiser may change its outcome,
# it measures time or limits memory, or it does less under sanitizers. Without MORVANTILE_ALL_TESTS a
# release build has these and the exhaustive ones alone.
# CORE_ONLY is one that is built without Qt::Gui, and so without the precompiled headers.
# It runs on the offscreen platform, in no country's language, with a home of its own.
# The label `threads` marks a test of what runs in several threads: thread sanitizer runs these
# alone, for Qt's own libraries are not built for it and the other tests would tell it nothing.
function(morvantile_add_test path)
  cmake_parse_arguments(ARG "MEDIA;EXHAUSTIVE;OPTIMISED;CORE_ONLY" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  if(MORVANTILE_SANITIZE AND ARG_EXHAUSTIVE)
    return()
  endif()
  if(NOT MORVANTILE_SANITIZE AND NOT MORVANTILE_ALL_TESTS AND NOT (ARG_EXHAUSTIVE OR ARG_OPTIMISED))
    return()
  endif()
  if(MORVANTILE_SANITIZE MATCHES "thread" AND NOT "threads" IN_LIST ARG_LABELS)
    return()
  endif()
  get_filename_component(name "${path}" NAME)
  morvantile_add_executable(${name} SOURCES ${path}.cpp ${ARG_SOURCES} LIBS ${ARG_LIBS} Qt::Test)
  morvantile_run_moc(${name} ${path}.cpp ${ARG_SOURCES})
  # Qt 6 tells each test where it was built, and what was precompiled elsewhere does not fit.
  if(MORVANTILE_QUICK_BUILD AND NOT ARG_CORE_ONLY AND MORVANTILE_QT EQUAL 5)
    target_precompile_headers(${name} REUSE_FROM morvantile_test_support)
  endif()
  set(test "${name}${MORVANTILE_TEST_SUFFIX}")
  set(home "${CMAKE_BINARY_DIR}/home/${name}")
  file(MAKE_DIRECTORY "${home}")
  add_test(NAME ${test} COMMAND ${name})
  set_tests_properties(${test} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;MORVANTILE_MEDIA=${MORVANTILE_MEDIA_DIR};${MORVANTILE_SANITIZER_ENVIRONMENT}"
    LABELS "${ARG_LABELS}")
  if(ARG_MEDIA)
    set_property(TEST ${test} PROPERTY FIXTURES_REQUIRED media)
  endif()
  if(ARG_TIMEOUT)
    # The longest begin first, so that none of them is left alone at the end.
    set_tests_properties(${test} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT})
  endif()
endfunction()
