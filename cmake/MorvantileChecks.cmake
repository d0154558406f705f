# Targets that check the sources: `format` rewrites them, `tidy` runs clang-tidy over them.

add_custom_target(format
  COMMAND "${CMAKE_SOURCE_DIR}/scripts/format.sh"
  COMMENT "Formatting the sources" VERBATIM)

# Reads this build folder's compile_commands.json, so build first: moc's output is included too.
# Only files outside the build folder are ours; .clang-tidy selects the headers.
string(REGEX REPLACE "([][+.*()^$?|\\\\])" "\\\\\\1" source_regex "${CMAKE_SOURCE_DIR}")
add_custom_target(tidy
  COMMAND run-clang-tidy -quiet -p "${CMAKE_BINARY_DIR}"
    "^${source_regex}/(app|batch|bench|imaging|product|profiles|qtav|series|stills|tests|ui|utils|video)/.*\\.cpp$"
  COMMENT "Running clang-tidy" USES_TERMINAL VERBATIM)
