# What every target of the project shares: warnings, sanitizers, ccache.
option(ZELTO_TESTS "Build the tests" ON)
option(ZELTO_BENCHMARKS "Build the benchmark programs" OFF)
option(ZELTO_FUZZ "Build the fuzz targets (clang)" OFF)
set(ZELTO_SANITIZE "" CACHE STRING "Value for -fsanitize, empty for none")

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Warnings are errors in the project's own code; system headers stay outside of this.
add_library(zelto_options INTERFACE)
target_compile_options(zelto_options INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Werror)
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  target_compile_options(zelto_options INTERFACE -Wthread-safety)
endif()

if(ZELTO_SANITIZE)
  add_compile_options(-fsanitize=${ZELTO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${ZELTO_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-Wno-maybe-uninitialized)  # instrumented code of <regex> is warned of without cause
  endif()
endif()
