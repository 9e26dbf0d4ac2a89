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
  set(CMAKE_CXX_COMPILER_LAUNCHER ${KX_CCACHE})
endif()
find_program(KX_MOLD mold)
if(KX_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# kx_library(<target> SOURCES <files> LINKS <targets>): a static library of the calling folder.
function(kx_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
endfunction()

# kx_program(<target> SOURCES <files> LINKS <targets>): a program in build/bin.
function(kx_program target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LINKS})
endfunction()

# kx_test(<name> SOURCES <files> LINKS <targets> [TIMEOUT <seconds>]): one Qt Test program, run offscreen by ctest.
function(kx_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests
                                           BUILD_RPATH "${CMAKE_BINARY_DIR}/bin")
  add_test(NAME ${name} COMMAND ${name})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT
                       "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;KX4600_BIN=${CMAKE_BINARY_DIR}/bin;KX4600_TRANSFORMER=${CMAKE_BINARY_DIR}/bin/plugins/libTransformer.so")
endfunction()
