# IBM Z, a big-endian machine whose char is unsigned: Debian's cross compiler, and qemu-user to run what
# it makes.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(CMAKE_CXX_COMPILER s390x-linux-gnu-g++-12)
set(CMAKE_LIBRARY_ARCHITECTURE s390x-linux-gnu)

find_program(NURL_GMS_INP_QEMU qemu-s390x REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${NURL_GMS_INP_QEMU} -L /usr/s390x-linux-gnu
    CACHE STRING "What runs programs for this machine")

# Packages are those for this machine alone, in the folder that CMAKE_FIND_ROOT_PATH names.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
