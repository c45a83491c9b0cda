# orbisol_fuzzer(NAME SOURCES ... LIBRARIES ...)
#
# One program fuzz_NAME, made by clang. It is run from the corpus in fuzz/corpus/NAME.
function(orbisol_fuzzer name)
  cmake_parse_arguments(FUZZER "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(fuzz_${name} ${FUZZER_SOURCES})
  target_include_directories(fuzz_${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(fuzz_${name} PRIVATE ${FUZZER_LIBRARIES})
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endfunction()
