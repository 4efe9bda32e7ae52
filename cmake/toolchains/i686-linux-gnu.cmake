# A PC of 32 bits: Debian's cross compiler. What it makes is run by this machine itself when its kernel
# can, and by qemu-user otherwise.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++-12)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

# The C library of the cross compiler, so that none for this machine has to be installed.
set(sysroot /usr/i686-linux-gnu)
foreach(kind IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-Wl,-rpath,${sysroot}/lib")
endforeach()
string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -Wl,--dynamic-linker,${sysroot}/lib/ld-linux.so.2")

execute_process(
  COMMAND ${sysroot}/lib/ld-linux.so.2 --version
  RESULT_VARIABLE refused
  OUTPUT_QUIET ERROR_QUIET)
if(refused)
  find_program(NURL_GMS_INP_QEMU qemu-i386 REQUIRED)
  set(CMAKE_CROSSCOMPILING_EMULATOR
      ${NURL_GMS_INP_QEMU}
      CACHE STRING "What runs programs for this machine")
endif()

# Packages are those for this machine alone, in the folder that CMAKE_FIND_ROOT_PATH names.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
