# One place for the flags and for the three kinds of target: a subsystem's library, a test program, a benchmark.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_library(pixmosa_flags INTERFACE)
target_include_directories(pixmosa_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(pixmosa_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                       -Woverloaded-virtual -Wextra-semi -fno-math-errno -ffp-contract=off)
if(PIXMOSA_WERROR)
  target_compile_options(pixmosa_flags INTERFACE -Werror)
endif()
# What is precompiled once serves targets of one kind only, and Qt wants this one of its users.
if(PIXMOSA_PCH)
  add_compile_options(-fPIC)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)  # false of a precompiled standard library
  endif()
endif()
# What is handed to users stops at the first sign of a broken stack, a wild jump or an index out of range, and
# carries no symbols.
if(PIXMOSA_HARDEN)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # Both in one place: definitions come before options, and would be taken back.
  add_compile_options(-fstack-protector-strong -fcf-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-pie -Wl,-z,relro -Wl,-z,now -s)
endif()
if(PIXMOSA_SANITIZE)
  add_compile_options(-fsanitize=${PIXMOSA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${PIXMOSA_SANITIZE})
  add_compile_definitions(PIXMOSA_SANITIZED)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-maybe-uninitialized)  # what it says of the standard library's own templates
  endif()
endif()

# The headers that cost more to read than the file that includes them, read once: Qt's for the windows, GoogleTest's
# for the tests. Every file still includes what it uses: .ci/run reads those that were touched without them.
# What is slow to compile and quick to run, the tests themselves and the windows, is not optimised for the tests.
set(PIXMOSA_QUICK_OPTIONS $<$<CONFIG:Debug>:-O0>)
function(pixmosa_precompiled target owner links)
  if(NOT PIXMOSA_PCH)
    return()
  endif()
  if(NOT TARGET ${owner})
    file(WRITE ${CMAKE_BINARY_DIR}/${owner}.cpp "")
    add_library(${owner} OBJECT ${CMAKE_BINARY_DIR}/${owner}.cpp)
    target_link_libraries(${owner} PRIVATE pixmosa_flags ${links})
    target_compile_options(${owner} PRIVATE ${PIXMOSA_QUICK_OPTIONS})
    target_precompile_headers(${owner} PRIVATE ${ARGN})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${owner})
endfunction()

# pixmosa_library(NAME SOURCES a.cpp ... LINKS lib ...): a static library with its sources listed.
function(pixmosa_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC pixmosa_flags ${ARG_LINKS})
  if(name MATCHES "_forms$|^platform_widgets$|^pixmosa_app$")
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_options(${name} PRIVATE ${PIXMOSA_QUICK_OPTIONS})
    pixmosa_precompiled(${name} pixmosa_headers_windows Qt6::Widgets <QtWidgets>)
  endif()
endfunction()

# pixmosa_test(NAME LABEL core SOURCES a.cpp ... LINKS lib ...): one test program of a subsystem.
# Labels: core and cli run GoogleTest; gui runs Qt Test without a display.
function(pixmosa_test name)
  cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE pixmosa_flags ${ARG_LINKS})
  target_compile_options(${name} PRIVATE ${PIXMOSA_QUICK_OPTIONS})
  if(ARG_LABEL STREQUAL "gui")
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    pixmosa_precompiled(${name} pixmosa_headers_tests Qt6::Widgets <QtWidgets>)
  else()
    target_link_libraries(${name} PRIVATE GTest::gtest_main GTest::gmock)
    pixmosa_precompiled(${name} pixmosa_headers_of_tests GTest::gmock <gmock/gmock.h> <gtest/gtest.h>)
  endif()
  target_compile_definitions(${name} PRIVATE PIXMOSA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT 300
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=qt.qpa.*=false")
endfunction()

# pixmosa_fuzzer(NAME SOURCE a.cpp CORPUS dir ... LINKS lib ...): a libFuzzer program; its test is a short run.
function(pixmosa_fuzzer name)
  cmake_parse_arguments(ARG "" "SOURCE" "CORPUS;LINKS" ${ARGN})
  if(NOT PIXMOSA_FUZZ)
    return()
  endif()
  add_executable(${name} ${ARG_SOURCE})
  target_link_libraries(${name} PRIVATE pixmosa_flags ${ARG_LINKS})
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  set(work ${CMAKE_BINARY_DIR}/fuzz/${name})
  file(MAKE_DIRECTORY ${work})
  add_test(NAME ${name} COMMAND ${name} -max_total_time=4 -rss_limit_mb=1024 -print_final_stats=0
           ${work} ${ARG_CORPUS})
  set_tests_properties(${name} PROPERTIES LABELS fuzz TIMEOUT 120)
endfunction()

# pixmosa_bench(NAME SOURCES a.cpp ... LINKS lib ...): a Google Benchmark program.
function(pixmosa_bench name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE pixmosa_flags ${ARG_LINKS} benchmark::benchmark_main)
endfunction()
