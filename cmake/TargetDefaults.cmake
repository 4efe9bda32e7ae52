# What every target of this project is compiled with.
include_guard()
include(Hardening)

# Applies the language level, the hidden visibility, the hardening and the warnings of this project to a
# target.
function(nurl_gms_inp_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(
    ${target}
    PROPERTIES CXX_EXTENSIONS OFF
               POSITION_INDEPENDENT_CODE ON
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(
    ${target}
    PRIVATE -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wsign-conversion
            -Wshadow
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wformat=2
            $<$<BOOL:${NURL_GMS_INP_WARNINGS_AS_ERRORS}>:-Werror>
            -ffile-prefix-map=${PROJECT_BINARY_DIR}=build
            -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Sizes and numbers of files that 32 bits do not hold.
    target_compile_definitions(${target} PRIVATE _FILE_OFFSET_BITS=64)
  endif()
  nurl_gms_inp_harden(${target})
endfunction()
