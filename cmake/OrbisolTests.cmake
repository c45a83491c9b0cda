# How a test program is built and found.
#
#   orbisol_test(core_date_test SOURCES date_test.cpp LIBRARIES orbisol_core)
#   orbisol_test(ui_month_test QT SOURCES month_window_test.cpp LIBRARIES orbisol_ui_month)
#
# Each program gets the common main() of tests/support/main.cpp, which gives the process a home of its
# own. QT belongs to every program that links Qt in any way: its main() also makes the QApplication.
# A test reads its data from ORBISOL_TEST_DATA, and what the program ships from ORBISOL_SOURCE_DIR and, the public
# calendars, from ORBISOL_LEGALS.

include(GoogleTest)
find_package(GTest REQUIRED)

function(orbisol_test_main name)
  add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/tests/support/main.cpp")
  target_link_libraries(${name} PUBLIC GTest::gtest ${ARGN})
  if(ORBISOL_PCH)
    target_precompile_headers(${name} PRIVATE <gtest/gtest.h>)
  endif()
endfunction()

function(orbisol_test name)
  cmake_parse_arguments(TEST "QT" "" "SOURCES;LIBRARIES" ${ARGN})
  set(main orbisol_test_main)
  if(TEST_QT)
    set(main orbisol_test_main_qt)
  endif()

  add_executable(${name} ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${main} ${TEST_LIBRARIES})
  target_compile_definitions(${name} PRIVATE
    ORBISOL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" ORBISOL_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    ORBISOL_LEGALS="${ORBISOL_LEGALS}")
  if(TEST_QT)
    target_link_libraries(${name} PRIVATE Qt6::Test)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  endif()
  if(ORBISOL_PCH)
    target_precompile_headers(${name} REUSE_FROM ${main})
    orbisol_quiet_precompiled(${name})
  endif()

  # A program lists its tests when ctest begins, so that a broken program fails the run, not the build.
  gtest_discover_tests(${name}
    TEST_PREFIX "${name}/"
    NO_PRETTY_VALUES  # a parameter printed as bytes would change the test's name from run to run
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 600
    PROPERTIES ENVIRONMENT "UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
