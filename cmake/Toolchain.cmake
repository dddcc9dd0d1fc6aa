# Language level, warnings, ccache, the fast linker and the sanitizers, for every target of the project.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Libraries lie beside each other, where they find one another without a path of this build.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../lib")
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(FC_CCACHE ccache)
if(FC_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without the first ccache passes on every source that uses a precompiled header; the second, which trusts the compiler's list of
  # headers, saves a run of the preprocessor for each unit that isn't in the cache.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=pch_defines,time_macros" CCACHE_DEPEND=1
    "${FC_CCACHE}")
endif()

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Werror)
  # Calls within a shared library are as direct as in a static one, and need no look-up by name when it is loaded.
  add_compile_options(-fno-semantic-interposition -fvisibility-inlines-hidden)
  add_link_options(LINKER:-Bsymbolic-functions)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-restrict) # false alarms on short literals at -O3 in GCC 12
  endif()
  find_program(FC_MOLD mold)
  if(FC_MOLD)
    add_link_options(-fuse-ld=mold)
  endif()
  if(FC_SANITIZE)
    add_compile_options(-fsanitize=${FC_SANITIZE} -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${FC_SANITIZE})
    # What a sanitizer adds to the code makes GCC 12 see uninitialized members where there are none.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  endif()
endif()
