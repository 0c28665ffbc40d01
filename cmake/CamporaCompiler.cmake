# Flags of every target of the project; code of others (Qt, GoogleTest) comes in as system headers.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(CAMPORA_CCACHE ccache)
  mark_as_advanced(CAMPORA_CCACHE)
  if(CAMPORA_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CAMPORA_CCACHE}")
  endif()
endif()

add_library(campora_flags INTERFACE)
if(MSVC)
  target_compile_options(campora_flags INTERFACE /W4 /utf-8 /permissive-
    $<$<BOOL:${CAMPORA_WERROR}>:/WX>)
else()
  target_compile_options(campora_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${CAMPORA_WERROR}>:-Werror>)
  # GCC 12 takes `"literal" + std::string` for overlapping copies (its bug 105651, mended in 13).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(campora_flags INTERFACE -Wno-restrict)
  endif()
  # Index and iterator mistakes stop the program at the spot in the builds that keep assertions.
  target_compile_definitions(campora_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
endif()

set(_sanitizers "")
if(CAMPORA_SANITIZE)
  set(_sanitizers -fsanitize=address,undefined)
endif()
if(CAMPORA_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "CAMPORA_FUZZ needs Clang: cmake --preset fuzz")
  endif()
  # "no-link": the driver with its own main goes into the fuzz targets alone.
  set(_sanitizers -fsanitize=fuzzer-no-link,address,undefined)
endif()
if(_sanitizers)
  target_compile_options(campora_flags INTERFACE
    ${_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(campora_flags INTERFACE ${_sanitizers})
  # GCC takes instrumented moves of the standard library for reads of unset memory. The plain builds
  # keep the warning.
  target_compile_options(campora_flags INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
