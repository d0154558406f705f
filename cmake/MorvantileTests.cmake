# How the folders declare their tests.

# Tests of a sanitizer's build have it in their names, since ./test.sh runs all builds as one suite.
if(MORVANTILE_SANITIZE MATCHES "thread")
  set(MORVANTILE_TEST_SUFFIX ".tsan")
elseif(MORVANTILE_SANITIZE)
  set(MORVANTILE_TEST_SUFFIX ".asan")
endif()

# morvantile_run_moc(TARGET TESTS file… [HEADERS file…])
# Runs moc on the tests' own files, which include the result, and on the headers that need it.
# CMake's search for input of moc takes longer than compiling a short test.
function(morvantile_run_moc target)
  cmake_parse_arguments(ARG "" "" "TESTS;HEADERS" ${ARGN})
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
  file(MAKE_DIRECTORY "${folder}")
  target_include_directories(${target} PRIVATE "${folder}")
  foreach(test IN LISTS ARG_TESTS)
    get_filename_component(name "${test}" NAME_WE)
    qt_generate_moc(${test} "${folder}/${name}.moc" TARGET ${target})
    target_sources(${target} PRIVATE "${folder}/${name}.moc")
  endforeach()
  foreach(header IN LISTS ARG_HEADERS)
    file(STRINGS "${header}" declarations REGEX "^ *Q_(OBJECT|GADGET)$")
    if(NOT declarations)
      continue()
    endif()
    get_filename_component(name "${header}" NAME_WE)
    qt_generate_moc("${header}" "${folder}/moc_${name}.cpp" TARGET ${target})
    target_sources(${target} PRIVATE "${folder}/moc_${name}.cpp")
  endforeach()
endfunction()

# morvantile_add_test(FOLDER/NAME [SOURCES file…] LIBS lib… [DEFINITIONS definition…]
#                     [NEEDS target…] [MEDIA] [EXHAUSTIVE] [OPTIMISED] [CORE_ONLY] [ALONE]
#                     [LABELS label…] [TIMEOUT s])
# A Qt Test class: FOLDER/NAME.cpp. MEDIA makes the sample videos first. NEEDS lists other targets that
# must be built before the test runs.
# EXHAUSTIVE is a test that requests the frames of all samples one by one. Sanitizers skip it: it
# takes too long for what they would find beyond the other tests.
# OPTIMISED is a test that must also run in a release build: the optimiser may change its result, it
# measures time or limits memory, or sanitizers cover less of it. Without MORVANTILE_ALL_TESTS a
# release build contains only these and the exhaustive ones.
# CORE_ONLY is a test that is built without Qt::Gui, and so without precompiled headers.
# ALONE is a test with a program of its own in every build, as are those with CORE_ONLY. With
# MORVANTILE_QUICK_BUILD the other tests of a folder share one program.
# Tests run on the offscreen platform, in a neutral locale, with a home folder of their own.
# The label `threads` marks tests of multi-threaded code. Thread sanitizer runs only these, because
# Qt's own libraries are not instrumented and the other tests would find nothing.
function(morvantile_add_test path)
  cmake_parse_arguments(ARG "MEDIA;EXHAUSTIVE;OPTIMISED;CORE_ONLY;ALONE" "TIMEOUT"
    "SOURCES;LIBS;DEFINITIONS;NEEDS;LABELS" ${ARGN})
  # Sanitizers skip the cases that limit memory, which then would run nowhere.
  file(STRINGS "${path}.cpp" limits REGEX "::isPossible\\(\\)")
  if(limits AND NOT ARG_OPTIMISED)
    message(FATAL_ERROR "${path} limits memory, so it must be OPTIMISED")
  endif()
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
  if(MORVANTILE_SANITIZE MATCHES "address" AND NOT ARG_CORE_ONLY)
    list(APPEND ARG_SOURCES "${CMAKE_SOURCE_DIR}/tests/support/KeptScreen.cpp")
  endif()
  if(MORVANTILE_QUICK_BUILD AND NOT ARG_CORE_ONLY AND NOT ARG_ALONE)
    morvantile_join_test(command "${path}.cpp")
  else()
    set(command ${name})
    morvantile_add_test_program(${name} TESTS ${path}.cpp SOURCES ${ARG_SOURCES}
      LIBS ${ARG_LIBS} DEFINITIONS ${ARG_DEFINITIONS} NEEDS ${ARG_NEEDS})
  endif()
  # Qt 6 passes each test its build folder, so headers precompiled elsewhere do not match.
  if(MORVANTILE_QUICK_BUILD AND ARG_ALONE AND MORVANTILE_QT EQUAL 5)
    target_precompile_headers(${name} REUSE_FROM morvantile_test_support)
  endif()
  set(test "${name}${MORVANTILE_TEST_SUFFIX}")
  set(home "${CMAKE_BINARY_DIR}/home/${name}")
  file(MAKE_DIRECTORY "${home}")
  add_test(NAME ${test} COMMAND ${command})
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

# morvantile_add_test_program(NAME TESTS file… [SOURCES file…] LIBS lib… [DEFINITIONS definition…]
#                             [NEEDS target…] [GENERATED file…])
# A program of one or more tests. GENERATED sources include the TESTS if there are several.
function(morvantile_add_test_program name)
  cmake_parse_arguments(ARG "" "" "TESTS;SOURCES;LIBS;DEFINITIONS;NEEDS;GENERATED" ${ARGN})
  set(compiled ${ARG_TESTS})
  if(ARG_GENERATED)
    set(compiled ${ARG_GENERATED})
  endif()
  morvantile_add_executable(${name} SOURCES ${compiled} ${ARG_SOURCES} LIBS ${ARG_LIBS} Qt::Test)
  morvantile_run_moc(${name} TESTS ${ARG_TESTS} HEADERS ${ARG_SOURCES})
  target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
  if(ARG_NEEDS)
    add_dependencies(${name} ${ARG_NEEDS})
  endif()
endfunction()

# morvantile_join_test(COMMAND file)
# Adds a test to its folder's program and sets COMMAND to the command that runs it. Compiled
# together, tests take a third of the time, because they include and instantiate much the same.
function(morvantile_join_test command test)
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_SOURCE_DIR}"
    OUTPUT_VARIABLE program)
  string(REPLACE "/" "_" program "${program}")
  get_filename_component(name "${test}" NAME_WE)
  set(${command} ${program} ${name} PARENT_SCOPE)
  get_property(tests DIRECTORY PROPERTY MORVANTILE_TESTS)
  if(NOT tests)
    set_property(DIRECTORY PROPERTY MORVANTILE_PROGRAM ${program})
    cmake_language(DEFER CALL morvantile_add_joined_tests)
  endif()
  set_property(DIRECTORY APPEND PROPERTY MORVANTILE_TESTS ${test})
  foreach(kind SOURCES LIBS DEFINITIONS NEEDS)
    set_property(DIRECTORY APPEND PROPERTY MORVANTILE_${kind} ${ARG_${kind}})
  endforeach()
endfunction()

# morvantile_add_joined_tests()
# Adds the folder's program. Its first argument is the name of a test, which gets the other arguments.
# The main() of each test is renamed.
function(morvantile_add_joined_tests)
  foreach(kind PROGRAM TESTS SOURCES LIBS DEFINITIONS NEEDS)
    get_property(${kind} DIRECTORY PROPERTY MORVANTILE_${kind})
    if(${kind})
      list(REMOVE_DUPLICATES ${kind})
    endif()
  endforeach()
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${PROGRAM}_joined")
  set(generated "${folder}/main.cpp")
  foreach(test IN LISTS TESTS)
    get_filename_component(name "${test}" NAME_WE)
    string(APPEND declarations "int main_of_${name}(int argc, char* argv[]);\n")
    string(APPEND choices "    if (name == \"${name}\")\n        return main_of_${name}(argc - 1, argv + 1);\n")
    string(APPEND includes
      "#define main main_of_${name}\n#include \"${CMAKE_CURRENT_SOURCE_DIR}/${test}\"\n#undef main\n")
    math(EXPR count "${count} + 1")
    math(EXPR rest "${count} % ${MORVANTILE_BATCH_SIZE}")
    if(rest EQUAL 0)
      math(EXPR batch "${batch} + 1")
      file(CONFIGURE OUTPUT "${folder}/tests_${batch}.cpp" CONTENT "${includes}" @ONLY)
      list(APPEND generated "${folder}/tests_${batch}.cpp")
      set(includes "")
    endif()
  endforeach()
  if(includes)
    file(CONFIGURE OUTPUT "${folder}/tests_rest.cpp" CONTENT "${includes}" @ONLY)
    list(APPEND generated "${folder}/tests_rest.cpp")
  endif()
  file(CONFIGURE OUTPUT "${folder}/main.cpp" CONTENT
"#include <string>

${declarations}
int main(int argc, char* argv[])
{
    const std::string name = argc > 1 ? argv[1] : \"\";
${choices}    return 2;
}
" @ONLY)
  morvantile_add_test_program(${PROGRAM} TESTS ${TESTS} SOURCES ${SOURCES} LIBS ${LIBS}
    DEFINITIONS ${DEFINITIONS} NEEDS ${NEEDS} GENERATED ${generated})
  # The compiler takes the included tests for headers, which must not use anonymous namespaces.
  target_compile_options(${PROGRAM} PRIVATE -Wno-subobject-linkage)
  if(MORVANTILE_QT EQUAL 5)
    target_precompile_headers(${PROGRAM} REUSE_FROM morvantile_test_support)
  endif()
endfunction()
