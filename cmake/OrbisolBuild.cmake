# How every target is built: language, warnings, sanitizers, coverage, compiler cache.

option(ORBISOL_TESTS "Build the tests" ON)
option(ORBISOL_BENCH "Build the benches" OFF)
option(ORBISOL_FUZZ "Build the fuzzers (clang only)" OFF)
option(ORBISOL_WERROR "Warnings are errors" OFF)
option(ORBISOL_SANITIZE "Address and undefined-behavior sanitizers" OFF)
option(ORBISOL_COVERAGE "Count which lines and branches run" OFF)
option(ORBISOL_PCH "Precompile the Qt and GoogleTest headers" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

# ccache is tried first: without a folder that it may write to, as on an account without a home, it fails
# every compilation.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  file(WRITE "${CMAKE_BINARY_DIR}/ccache_trial.cpp" "int main() {}\n")
  execute_process(
    COMMAND "${CCACHE_PROGRAM}" "${CMAKE_CXX_COMPILER}" -c ccache_trial.cpp -o ccache_trial.o
    WORKING_DIRECTORY "${CMAKE_BINARY_DIR}" RESULT_VARIABLE CCACHE_FAILED OUTPUT_QUIET ERROR_QUIET)
  if(CCACHE_FAILED EQUAL 0)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
  endif()
endif()

# The days of the moon follow from doubles, which a fused multiply-add would round differently on some
# machines.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -ffp-contract=off)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  # What is installed names no folder of the machine that built it.
  add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
  # Four fields of a record are stored faster one by one than gathered in a vector register first: the date of a
  # day number takes a fifth less time.
  add_compile_options(-fno-tree-slp-vectorize)
  # Hardened like the packages of Debian: a damaged stack or a call beyond its buffer ends the program, and no table of
  # addresses can be written to while it runs. The program is position-independent by the compiler's own default.
  add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_link_options(LINKER:-z,relro,-z,now)
  endif()
endif()
if(ORBISOL_WERROR)
  add_compile_options(-Werror)
endif()
if(ORBISOL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(ORBISOL_FUZZ)
  # Tracing comparisons costs half the time, because it is called for each character read. Without it the fuzzers
  # find more.
  add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
endif()
if(ORBISOL_COVERAGE)
  add_compile_options(--coverage -fprofile-abs-path)
  add_link_options(--coverage)
endif()

# orbisol_layer(NAME SOURCES ... [PUBLIC lib ...] [PRIVATE lib ...])
#
# Adds the static library of a layer. Includes go by path from the root, which is its only include folder. A
# layer without Qt never sees a Qt header, because no Qt target is linked to it.
function(orbisol_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} STATIC ${LAYER_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${LAYER_PUBLIC} PRIVATE ${LAYER_PRIVATE})
  if(ORBISOL_PCH AND name MATCHES "^orbisol_ui_")
    orbisol_precompiled_qt(${name})
  endif()
endfunction()

# orbisol_forms(NAME FORM ...)
#
# Adds dialogs of Qt Designer from resources/dialogs to a target: "about.ui" is included as "ui_about.h".
function(orbisol_forms name)
  list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/resources/dialogs/" OUTPUT_VARIABLE forms)
  qt_wrap_ui(headers ${forms})
  target_sources(${name} PRIVATE ${headers})
  target_include_directories(${name} SYSTEM PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")  # not ours to lint
endfunction()

# Compiles the Qt headers that nearly every window includes once for all layers of windows.
function(orbisol_precompiled_qt name)
  if(NOT TARGET orbisol_qt_headers)
    set(source "${PROJECT_BINARY_DIR}/qt_headers.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(orbisol_qt_headers OBJECT "${source}")
    target_link_libraries(orbisol_qt_headers PRIVATE Qt6::Widgets)
    target_precompile_headers(orbisol_qt_headers PRIVATE
      <QAction> <QApplication> <QImage> <QMainWindow> <QMouseEvent> <QPainter> <QString> <algorithm> <string>)
  endif()
  target_precompile_headers(${name} REUSE_FROM orbisol_qt_headers)
  orbisol_quiet_precompiled(${name})
endfunction()

# Silences warnings about the inside of std::string that g++ 12 gives only with a precompiled header.
function(orbisol_quiet_precompiled name)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${name} PRIVATE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow
      -Wno-stringop-overread)
  endif()
endfunction()
