# SPDX-FileCopyrightText: 2026 The rasterToGDI authors
# SPDX-License-Identifier: Apache-2.0

# How every target of the project is built, and one function per kind of target.

find_package(PkgConfig REQUIRED)
find_library(CUPS_LIBRARY cups REQUIRED)
find_library(CUPSIMAGE_LIBRARY cupsimage REQUIRED)
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(LCMS2 REQUIRED IMPORTED_TARGET lcms2)
pkg_check_modules(HWY REQUIRED libhwy)

add_library(gdi_flags INTERFACE)
target_include_directories(gdi_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(gdi_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # Floating-point results must not depend on the compiler: screens are data.
  -ffp-contract=off
  $<$<BOOL:${GDI_WERROR}>:-Werror>)
if(GDI_SANITIZE)
  target_compile_options(gdi_flags INTERFACE
    -fsanitize=${GDI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # g++ 12 takes instrumented library code (std::regex) for reading uninitialised values.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(gdi_flags INTERFACE -fsanitize=${GDI_SANITIZE})
endif()
if(GDI_FUZZ)
  target_compile_options(gdi_flags INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(gdi_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(GDI_COVERAGE)
  target_compile_options(gdi_flags INTERFACE --coverage -O0)
  target_link_options(gdi_flags INTERFACE --coverage)
endif()

# Highway's headers alone: platform/processor/README.md says why.
add_library(gdi_highway INTERFACE)
target_include_directories(gdi_highway SYSTEM INTERFACE ${HWY_INCLUDE_DIRS})
target_compile_definitions(gdi_highway INTERFACE
  HWY_WANT_AVX3_DL
  $<$<NOT:$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>>:HWY_COMPILE_ONLY_STATIC>
  HWY_IS_DEBUG_BUILD=0)  # whose checks are in the library

# gdi_headers(NAME [OPTIONS option...] [HEADERS <header>...] [DEPENDS target...]): the usual standard
# headers and these, precompiled, for targets that are compiled with the same options.
function(gdi_headers name)
  cmake_parse_arguments(ARG "" "" "OPTIONS;HEADERS;DEPENDS" ${ARGN})
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "// Headers alone.\n")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE gdi_flags ${ARG_DEPENDS})
  target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
  target_precompile_headers(${name} PRIVATE
    ${ARG_HEADERS} <algorithm> <array> <cmath> <cstdint> <fstream> <functional> <map> <memory>
    <optional> <span> <sstream> <string> <string_view> <vector>)
endfunction()

# Sanitizer builds precompile them for the libraries, too: half the time of many of their files. The
# others compile each file with what it includes itself, so that a missing include shows.
if(GDI_SANITIZE AND NOT GDI_COVERAGE)
  gdi_headers(gdi_plain_headers)
  gdi_headers(gdi_computing_headers OPTIONS -O2)
endif()

# gdi_library(NAME [COMPUTES] SOURCES file... [DEPENDS target...]): the static library gdi_NAME of
# one folder. One that COMPUTES is optimised in all builds but that for coverage: without it, making
# and judging screens takes minutes.
function(gdi_library name)
  cmake_parse_arguments(ARG "COMPUTES" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(gdi_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(gdi_${name} PUBLIC gdi_flags ${ARG_DEPENDS})
  if(ARG_COMPUTES AND NOT GDI_COVERAGE)
    target_compile_options(gdi_${name} PRIVATE -O2)
  endif()
  if(NOT TARGET gdi_plain_headers)
    return()
  endif()
  if(ARG_COMPUTES)
    target_precompile_headers(gdi_${name} REUSE_FROM gdi_computing_headers)
  else()
    target_precompile_headers(gdi_${name} REUSE_FROM gdi_plain_headers)
  endif()
endfunction()

# gdi_command_line_sources(file...): of the folder's sources those that read a command line with
# CLI11, whose templates take longest to compile and run once. Builds that ship stay as packagers
# tell.
function(gdi_command_line_sources)
  if(GDI_SANITIZE)
    set_source_files_properties(${ARGN} PROPERTIES
      COMPILE_OPTIONS -O0 SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()

# gdi_test(NAME SOURCES file... DEPENDS target...): one GoogleTest program, its tests found by
# CTest; in instrumented builds the program as a whole.
function(gdi_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE gdi_flags ${ARG_DEPENDS} GTest::gtest GTest::gtest_main)
  # Tests take longer to compile than to run: no optimisation, and the usual headers once for all.
  target_compile_options(${name} PRIVATE -O0)
  target_precompile_headers(${name} REUSE_FROM gdi_test_headers)
  if(GDI_SANITIZE OR GDI_COVERAGE)
    # What computes for long is left out there when other tests run through the same code.
    target_compile_definitions(${name} PRIVATE GDI_SLOW_BUILD)
    # A process for each test would take longer to start than the tests take.
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  else()
    gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT 120)
  endif()
endfunction()
