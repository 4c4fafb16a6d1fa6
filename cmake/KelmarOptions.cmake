# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

# Options, warnings and helpers shared by all folders.

set(kelmar_older_default OFF)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(kelmar_older_default ON)
endif()
option(KELMAR_OLDER_HOSTS "Build the code for older dialog hosts (print-settings ticket, slider notifications)"
       ${kelmar_older_default})
option(KELMAR_WERROR "Treat compiler warnings as errors" OFF)
set(KELMAR_SANITIZE OFF CACHE STRING "ON: build with the address and undefined-behaviour sanitizers; thread: with the thread sanitizer")
option(KELMAR_BUILD_TESTS "Build the tests" ON)
option(KELMAR_BUILD_BENCH "Build the benchmarks" OFF)
option(KELMAR_BUILD_FUZZERS "Build the drivers for libFuzzer; needs clang" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# Programs and bundles locate the platform library relative to themselves, never by an absolute path or in the current
# folder, which is the meaning of an empty entry.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# Where the platform library and the bundles are installed: the program searches this folder, next to its own.
set(KELMAR_PRIVATE_DIR lib/kelmar-print)

# Most of the cost of a print dialog is loading its code, so optimize for size. Flags set by the user or a packager are kept.
if(CMAKE_CXX_FLAGS_RELEASE STREQUAL "-O3 -DNDEBUG") # CMake's default
  if(CMAKE_CXX_FLAGS MATCHES "(^| )-O")
    set(CMAKE_CXX_FLAGS_RELEASE "-DNDEBUG")
  else()
    set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
  endif()
endif()
foreach(flag --gc-sections --as-needed -z,pack-relative-relocs)
  add_link_options($<$<CONFIG:Release>:-Wl,${flag}>)
endforeach()
add_compile_options($<$<CONFIG:Release>:-ffunction-sections> $<$<CONFIG:Release>:-fdata-sections>)

# The hardening of Debian's own packages. Symbols are bound at start-up and the tables write-protected; net-snmp, which is
# needed later, is loaded with dlopen().
include(CheckCXXCompilerFlag)
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
  string(MAKE_C_IDENTIFIER "KELMAR_HAS${flag}" has_flag)
  check_cxx_compiler_flag(${flag} ${has_flag})
  if(${has_flag})
    add_compile_options(${flag})
  endif()
endforeach()
add_compile_options(-Wformat -Werror=format-security)
if(NOT KELMAR_SANITIZE) # the sanitizers check the same calls, and fortification requires optimization
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS -O2)
  check_cxx_source_compiles("#ifndef _FORTIFY_SOURCE\n#error\n#endif\nint main() {}" KELMAR_IS_FORTIFIED)
  unset(CMAKE_REQUIRED_FLAGS)
  if(NOT KELMAR_IS_FORTIFIED) # neither by the packager's flags nor by the compiler's own
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>)
  endif()
endif()
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,separate-code)
# The start files of a program (crti.o) have no note of control-flow protection, so the linker would omit it from the program.
# They are compatible with a shadow stack, but lack the landing pads of indirect branch tracking.
include(CheckLinkerFlag)
check_linker_flag(CXX LINKER:-z,shstk KELMAR_MARKS_SHADOW_STACK)
if(KELMAR_HAS_fcf_protection AND KELMAR_MARKS_SHADOW_STACK)
  add_link_options(LINKER:-z,shstk)
endif()
include(CheckPIESupported)
check_pie_supported(LANGUAGES C CXX)

find_program(KELMAR_CCACHE ccache)
if(KELMAR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER ${KELMAR_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${KELMAR_CCACHE})
endif()

add_library(kelmar_options INTERFACE)
target_include_directories(kelmar_options INTERFACE ${PROJECT_SOURCE_DIR})
# Set for targets that are built with the code for older dialog hosts; see tests/older/CMakeLists.txt.
define_property(TARGET PROPERTY KELMAR_OLDER_HOSTS INITIALIZE_FROM_VARIABLE KELMAR_OLDER_HOSTS)
# Without -Wconversion in tests: it warns inside QTRY_VERIFY and similar macros since Qt 6.8.
define_property(TARGET PROPERTY KELMAR_IS_TEST INITIALIZE_FROM_VARIABLE KELMAR_IS_TEST)
target_compile_options(
  kelmar_options INTERFACE -Wall -Wextra -Wpedantic $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KELMAR_IS_TEST>>>:-Wconversion>
                           $<$<BOOL:${KELMAR_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 13)
  # With -Os these versions see an index of -1 inside QList<QString>::append().
  target_compile_options(kelmar_options INTERFACE $<$<CONFIG:Release>:-Wno-array-bounds>)
endif()
target_compile_definitions(
  kelmar_options
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
            _FILE_OFFSET_BITS=64 # documents of more than 2 GiB, on a 32-bit system as well
            KELMAR_OLDER_HOSTS=$<BOOL:$<TARGET_PROPERTY:KELMAR_OLDER_HOSTS>>)
if(KELMAR_SANITIZE STREQUAL "thread")
  target_compile_options(kelmar_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer
                                                  -Wno-tsan) # no warnings about fences in headers of Qt
  target_link_options(kelmar_options INTERFACE -fsanitize=thread)
elseif(KELMAR_SANITIZE)
  target_compile_options(kelmar_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                  -fno-omit-frame-pointer)
  target_link_options(kelmar_options INTERFACE -fsanitize=address,undefined)
endif()
if(KELMAR_BUILD_FUZZERS)
  target_compile_options(kelmar_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The headers that most sources include, compiled once for all targets that use widgets, which halves the build time.
# Sources still include what they use: Debian packages are built with CMAKE_DISABLE_PRECOMPILE_HEADERS.
function(kelmar_precompile name header)
  add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PRIVATE kelmar_options ${ARGN})
  target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header})
  # Compilers write a different file each time. ccache identifies it by this one, so that clones share results.
  set(sum ${Qt6_VERSION})
  foreach(file precompiled.h ${header})
    file(SHA256 ${PROJECT_SOURCE_DIR}/cmake/${file} hash)
    string(APPEND sum " ${hash}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/${file})
  endforeach()
  foreach(suffix gch pch)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${name}.dir/cmake_pch.hxx.${suffix}.sum "${sum}\n")
  endforeach()
endfunction()
kelmar_precompile(kelmar_precompiled precompiled.h Qt6::Widgets)
# Programs would be compiled with -fPIE, which is incompatible with headers that were precompiled for libraries. Some builds of Qt
# require -fPIC themselves.
get_target_property(qt_options Qt6::Core INTERFACE_COMPILE_OPTIONS)
if(NOT "-fPIC" IN_LIST qt_options)
  set(kelmar_pic -fPIC)
endif()
function(kelmar_use_precompiled target)
  set(precompiled kelmar_precompiled ${ARGN}) # or another target that compiles them
  list(GET precompiled -1 precompiled)
  target_precompile_headers(${target} REUSE_FROM ${precompiled})
  target_compile_options(${target} PRIVATE ${kelmar_pic})
endfunction()

# An object library for one folder: kelmar_module(NAME SOURCES ... LIBS ... [NO_MOC])
# NO_MOC, for a folder without Q_OBJECT, saves three build steps.
function(kelmar_module name)
  cmake_parse_arguments(ARG "NO_MOC" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} OBJECT ${ARG_SOURCES})
  if(ARG_NO_MOC)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  endif()
  target_link_libraries(${name} PUBLIC kelmar_options ${ARG_LIBS})
  if(kelmar-platform IN_LIST ARG_LIBS)
    kelmar_use_precompiled(${name})
  endif()
endfunction()
