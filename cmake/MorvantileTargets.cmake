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

# Number of sources that are compiled as one with MORVANTILE_QUICK_BUILD, because they include much the
# same. The remaining batches are enough to keep all cores busy.
set(MORVANTILE_BATCH_SIZE 8)

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
  if(MORVANTILE_QUICK_BUILD)
    set_target_properties(${name} PROPERTIES
      UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${MORVANTILE_BATCH_SIZE})
    # The compiler takes the included sources for headers, which must not use anonymous namespaces.
    target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
  endif()
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
