# Target helpers. A folder is one target; its own folder is its only public include path, so that a
# header can be included only by those that link the folder's target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
# Programs find the shared contract library beside them, installed programs in ../lib/kx4600.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_BUILD_RPATH "$ORIGIN;$ORIGIN/..")

find_program(KX_CCACHE ccache)
if(KX_CCACHE)
  # Without these two it does not keep what was compiled with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${KX_CCACHE})
endif()
find_program(KX_MOLD mold)
if(KX_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KX_SANITIZE)
  # GCC 12 calls variants uninitialized where the sanitizers have changed their code.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
                      -Wno-maybe-uninitialized)
  add_link_options(-fsanitize=address,undefined)
endif()

# Reading the headers of QtCore and of the standard library is half of a compile, so those that most sources name are
# compiled once. A source names what it uses all the same: the debug build and lint go without.
option(KX_PRECOMPILE "Compile the most used system headers once" OFF)
if(KX_PRECOMPILE)
  add_library(kx_precompiled OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
  set_target_properties(kx_precompiled PROPERTIES AUTOMOC OFF)
  target_link_libraries(kx_precompiled PRIVATE Qt6::Core)
  target_precompile_headers(kx_precompiled PRIVATE
    <QDateTime> <QDir> <QHash> <QJsonArray> <QJsonObject> <QList> <QObject> <QString> <QStringList> <QVariant>
    <algorithm> <array> <functional> <map> <memory> <optional> <set> <span> <utility> <variant> <vector>)
  target_compile_options(kx_precompiled PRIVATE -fpch-preprocess)
endif()

function(kx_precompile target)
  if(KX_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM kx_precompiled)
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()

# kx_library(<target> SOURCES <files> LINKS <targets>): a static library of the calling folder.
function(kx_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
  kx_precompile(${target})
endfunction()

# kx_program(<target> SOURCES <files> LINKS <targets>): a program in build/bin.
function(kx_program target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LINKS})
  kx_precompile(${target})
endfunction()

# kx_test(<name> SOURCES <files> LINKS <targets> [TIMEOUT <seconds>]): one Qt Test program, run offscreen by ctest.
# ctest alone says how long a test may take; under the sanitizers five times as long.
function(kx_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests/support)
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test)
  kx_precompile(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests
                                           BUILD_RPATH "${CMAKE_BINARY_DIR}/bin")
  add_test(NAME ${name} COMMAND ${name})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(KX_SANITIZE)
    math(EXPR ARG_TIMEOUT "5 * ${ARG_TIMEOUT}")
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT
                       "QTEST_FUNCTION_TIMEOUT=3600000;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks_of_libraries.txt;QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;KX4600_BIN=${CMAKE_BINARY_DIR}/bin;KX4600_TRANSFORMER=${CMAKE_BINARY_DIR}/bin/plugins/libTransformer.so")
endfunction()
