# Functions by which the folders declare their targets.
#
# Each target has an include folder of its own in the build folder, with links to its headers at the
# paths by which they are included. Only targets that link it find them, so that includes follow the
# links between targets.
set(MORVANTILE_INCLUDE_DIR "${CMAKE_BINARY_DIR}/include")
# Recreated on each run, so that no link outlives its header.
file(REMOVE_RECURSE "${MORVANTILE_INCLUDE_DIR}")

# morvantile_make_include_folder(FOLDER ROOT file…)
# Creates the folder, with a link to each header among the files at its path relative to ROOT; no
# folder if there are no headers.
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

# Headers to precompile with MORVANTILE_QUICK_BUILD: those that most files include, and those that
# most files with widgets include too. Precompiled once, since it takes as long as several files.
set(MORVANTILE_COMMON_HEADERS
  <QColor> <QCoreApplication> <QDateTime> <QDebug> <QDir> <QElapsedTimer> <QFile> <QFileInfo>
  <QHash> <QImage> <QObject> <QSet> <QString> <QTemporaryDir> <QUrl> <QVariant> <QVector>
  <algorithm> <atomic> <chrono> <functional> <map> <memory> <optional> <string> <thread> <vector>)
set(MORVANTILE_WIDGET_HEADERS ${MORVANTILE_COMMON_HEADERS}
  <QComboBox> <QDialog> <QFileDialog> <QGroupBox> <QLabel> <QLineEdit> <QMessageBox> <QPainter>
  <QSettings> <QSlider> <QTimer> <QWidget>)

# morvantile_precompile_headers(): creates morvantile_common_headers and morvantile_widget_headers,
# which the libraries reuse. Call it after Qt has been found.
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
# Disables CMake's search for input of moc, uic and rcc if no file has any, because it takes as long
# as compiling a file. Only with MORVANTILE_QUICK_BUILD: if a file gets its first Q_OBJECT later,
# CMake has to be run again.
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
# A library for a folder or a part of it: static, or an interface library if it only has headers. It
# may link only what is below it. Targets that link it find the headers among its SOURCES, by their
# paths relative to HEADER_ROOT (the root of the project).
#
# The PRIVATE_HEADERS are found, by their paths relative to the root of the project, by the library
# itself and by targets that link NAME_private: its closest neighbours and the tests of its
# internals. NAME_private also provides the PRIVATE libraries, whose headers may be included there.
#
# PRECOMPILED selects the precompiled headers for the sources.
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
# A program. It finds the headers among its own SOURCES and those of the libraries that it links.
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

# Tests of a sanitizer's build have it in their names, since ./test.sh runs all builds as one suite.
if(MORVANTILE_SANITIZE MATCHES "thread")
  set(MORVANTILE_TEST_SUFFIX ".tsan")
elseif(MORVANTILE_SANITIZE)
  set(MORVANTILE_TEST_SUFFIX ".asan")
endif()

# morvantile_run_moc(TARGET file…)
# Runs moc on the test's own file, which includes the result, and on the headers that need it.
# CMake's search for input of moc takes longer than compiling a short test.
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
# EXHAUSTIVE is a test that requests the frames of all samples one by one. Sanitizers skip it: it
# takes too long for what they would find beyond the other tests.
# OPTIMISED is a test that must also run in a release build: the optimiser may change its result, it
# measures time or limits memory, or sanitizers cover less of it. Without MORVANTILE_ALL_TESTS a
# release build contains only these and the exhaustive ones.
# CORE_ONLY is a test that is built without Qt::Gui, and so without precompiled headers.
# Tests run on the offscreen platform, in a neutral locale, with a home folder of their own.
# The label `threads` marks tests of multi-threaded code. Thread sanitizer runs only these, because
# Qt's own libraries are not instrumented and the other tests would find nothing.
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
  # Qt 6 passes each test its build folder, so headers precompiled elsewhere do not match.
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
    # The longest start first, so that none of them remains alone at the end.
    set_tests_properties(${test} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT})
  endif()
endfunction()
