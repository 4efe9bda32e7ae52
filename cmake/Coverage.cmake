# What is run of the library: counted for people, and for the fuzzer, which looks for inputs that run more.
include_guard()

option(NURL_GMS_INP_COVERAGE "Count what is run of the library and of what it is built on" OFF)

# Makes the code of a target count how often it is run, also where several threads run it.
function(nurl_gms_inp_cover target)
  if(NURL_GMS_INP_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
    target_link_options(${target} PUBLIC --coverage)
  endif()
  if(NURL_GMS_INP_BUILD_FUZZERS)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
