# The two ways in which the folders declare their targets.

# morvantile_add_library(NAME SOURCES file… [PUBLIC lib…] [PRIVATE lib…])
# One static library for one folder. It may link only what stands below it.
function(morvantile_add_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC morvantile_settings ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
endfunction()

# Tests of a sanitizer's build say so in their names, since ./test.sh runs all builds as one suite.
if(MORVANTILE_SANITIZE MATCHES "thread")
  set(MORVANTILE_TEST_SUFFIX ".tsan")
elseif(MORVANTILE_SANITIZE)
  set(MORVANTILE_TEST_SUFFIX ".asan")
endif()

# morvantile_add_test(FOLDER/NAME [SOURCES file…] LIBS lib… [MEDIA] [LABELS label…] [TIMEOUT s])
# One Qt Test program for one class: FOLDER/NAME.cpp. MEDIA makes the sample videos first.
# It runs on the offscreen platform, in no country's language, with a home of its own.
# The label `threads` marks a test of what runs in several threads: thread sanitizer runs these
# alone, for Qt's own libraries are not built for it and the other tests would tell it nothing.
function(morvantile_add_test path)
  cmake_parse_arguments(ARG "MEDIA" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  if(MORVANTILE_SANITIZE MATCHES "thread" AND NOT "threads" IN_LIST ARG_LABELS)
    return()
  endif()
  get_filename_component(name "${path}" NAME)
  add_executable(${name} ${path}.cpp ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE morvantile_settings ${ARG_LIBS} Qt5::Test)
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
    set_property(TEST ${test} PROPERTY TIMEOUT ${ARG_TIMEOUT})
  endif()
endfunction()
