# What every binary is protected with, for strake_flags. scripts/check-binaries
# reads it back from what was built.

include(CheckCXXCompilerFlag)
include(CheckPIESupported)

# Commands load at any address.
check_pie_supported(LANGUAGES CXX)

target_compile_options(strake_flags INTERFACE -fstack-protector-strong)
# Indirect jumps land where the processor is told; only some have it.
check_cxx_compiler_flag(-fcf-protection STRAKE_HAS_CF_PROTECTION)
if(STRAKE_HAS_CF_PROTECTION)
  target_compile_options(strake_flags INTERFACE -fcf-protection)
endif()
if(WIN32)
  target_link_options(strake_flags INTERFACE -fstack-protector-strong)
  # Any address of 64 bits, no data that is run, and no time of linking.
  target_link_options(strake_flags INTERFACE
    -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
else()
  # What the loader resolves is resolved at the start and read-only from then on.
  target_link_options(strake_flags INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()

set(optimized "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
# Checked copies need optimization, and sanitizers check more. Tests that are
# compiled without optimization undefine it.
if(NOT STRAKE_SANITIZE)
  target_compile_definitions(strake_flags INTERFACE $<${optimized}:_FORTIFY_SOURCE=2>)
endif()
# Binaries name sources from the root of the tree; a debugger and the coverage
# report need the folders of this machine.
if(NOT STRAKE_COVERAGE)
  target_compile_options(strake_flags INTERFACE
    "$<${optimized}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>"
    "$<${optimized}:-ffile-prefix-map=${PROJECT_BINARY_DIR}/=build/>")
endif()
