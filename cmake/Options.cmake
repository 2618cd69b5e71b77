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

set(STRAKE_STANDINS ON)
if(STRAKE_HOSTCORE_LIBRARY OR STRAKE_PLUGINMANAGER_LIBRARY OR STRAKE_SPDRIVER_LIBRARY)
  if(NOT (STRAKE_HOSTCORE_LIBRARY AND STRAKE_PLUGINMANAGER_LIBRARY AND STRAKE_SPDRIVER_LIBRARY))
    message(FATAL_ERROR "Another platform needs all three: STRAKE_HOSTCORE_LIBRARY, "
                        "STRAKE_PLUGINMANAGER_LIBRARY and STRAKE_SPDRIVER_LIBRARY")
  endif()
  set(STRAKE_STANDINS OFF)
endif()

add_library(strake_flags INTERFACE)
target_compile_options(strake_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
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
