# How the library and its programs are built to fail early instead of going on with broken memory.
include_guard()
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

option(NURL_GMS_INP_HARDENING "Build with run-time checks of memory and calls" ON)
check_pie_supported(LANGUAGES CXX)
# The protection of jumps and returns is a matter of x86.
check_cxx_compiler_flag(-fcf-protection=full NURL_GMS_INP_HAS_CF_PROTECTION)

# Applies the checks to a target. Buffer sizes are known only in optimised code, so the C library checks
# them there alone, and a sanitizer does it better.
function(nurl_gms_inp_harden target)
  if(NOT NURL_GMS_INP_HARDENING)
    return()
  endif()
  target_compile_options(
    ${target}
    PRIVATE -fstack-protector-strong -fstack-clash-protection
            $<$<BOOL:${NURL_GMS_INP_HAS_CF_PROTECTION}>:-fcf-protection=full>)
  target_compile_definitions(${target} PRIVATE _GLIBCXX_ASSERTIONS)
  if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    target_compile_options(${target}
                           PRIVATE $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  endif()
  get_target_property(type ${target} TYPE)
  if(type MATCHES "EXECUTABLE|SHARED_LIBRARY|MODULE_LIBRARY")
    target_link_options(${target} PRIVATE LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
  endif()
endfunction()
