# What a builder may choose, and the flags that every target of ours is built with.

option(STRAKE_TESTS "Build the tests" ON)
option(STRAKE_BENCH "Build the benchmarks" OFF)
option(STRAKE_FUZZ "Build the libFuzzer harnesses (clang only)" OFF)
option(STRAKE_SANITIZE "AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(STRAKE_COVERAGE "Instrument for coverage (clang only)" OFF)

# The platform's libraries. Unset, the stand-ins of platform/ are built and used.
set(STRAKE_HOSTCORE_LIBRARY "" CACHE FILEPATH "Host core library of another platform")
set(STRAKE_PLUGINMANAGER_LIBRARY "" CACHE FILEPATH "Plug-in manager library of another platform")
set(STRAKE_SPDRIVER_LIBRARY "" CACHE FILEPATH "SP driver library of another platform")
set(STRAKE_PLATFORM_RPATH "$ORIGIN" CACHE STRING
    "Where the module finds another platform's libraries, folders separated by colons")

set(STRAKE_STANDINS ON)
set(STRAKE_MODULE_RPATH "$ORIGIN")
if(STRAKE_HOSTCORE_LIBRARY OR STRAKE_PLUGINMANAGER_LIBRARY OR STRAKE_SPDRIVER_LIBRARY)
  foreach(name STRAKE_HOSTCORE_LIBRARY STRAKE_PLUGINMANAGER_LIBRARY STRAKE_SPDRIVER_LIBRARY)
    if(NOT ${name})
      message(FATAL_ERROR "${name} is not set: another platform needs all three libraries")
    elseif(NOT EXISTS "${${name}}" OR IS_DIRECTORY "${${name}}")
      message(FATAL_ERROR "${name}: there is no file ${${name}}")
    endif()
  endforeach()
  set(STRAKE_STANDINS OFF)
  set(STRAKE_MODULE_RPATH "${STRAKE_PLATFORM_RPATH}")
endif()

add_library(strake_flags INTERFACE)
target_compile_options(strake_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
include(cmake/Hardening.cmake)
if(STRAKE_SANITIZE)
  target_compile_options(strake_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(strake_flags INTERFACE -fsanitize=address,undefined)
endif()
if(STRAKE_FUZZ)
  target_compile_options(strake_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(STRAKE_COVERAGE)
  target_compile_options(strake_flags INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(strake_flags INTERFACE -fprofile-instr-generate)
endif()
