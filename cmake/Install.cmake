# What `cmake --install` puts under a prefix: the library, its headers, the schema file, and what
# CMake and pkg-config need to find them there. The stand-ins and the tool install themselves.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/nurl_gms_inp)

install(TARGETS nurl_gms_inp EXPORT nurl_gms_inp-targets)
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/include/ ${PROJECT_BINARY_DIR}/include/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING
  PATTERN "*.hpp")
install(FILES ${PROJECT_SOURCE_DIR}/share/nurllib/schemas/input/gamess.yaml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/nurllib/schemas/input)

# CMake package
install(
  EXPORT nurl_gms_inp-targets
  NAMESPACE nurl::
  DESTINATION ${package_dir})
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/nurl_gms_inpConfig.cmake.in
  ${PROJECT_BINARY_DIR}/nurl_gms_inpConfig.cmake
  INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nurl_gms_inpConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/nurl_gms_inpConfig.cmake
              ${PROJECT_BINARY_DIR}/nurl_gms_inpConfigVersion.cmake DESTINATION ${package_dir})

# pkg-config: paths are relative to the .pc file, so that a moved prefix stays usable.
set(pkgconfig_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${pkgconfig_dir} OUTPUT_VARIABLE
           pc_prefix)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${pkgconfig_dir}
           OUTPUT_VARIABLE pc_includedir)
set(pc_cflags "")
set(pc_libs_private "")
if(NOT BUILD_SHARED_LIBS)
  set(pc_cflags " -DNURL_GMS_INP_STATIC_DEFINE")
  # Users before what they use.
  foreach(component IN ITEMS chem_elements core_resource core_fs core_text)
    string(APPEND pc_libs_private " -l$<TARGET_FILE_BASE_NAME:nurl::${component}>")
  endforeach()
  if(CMAKE_DL_LIBS)
    string(APPEND pc_libs_private " -l${CMAKE_DL_LIBS}")
  endif()
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/nurl_gms_inp.pc.in
               ${PROJECT_BINARY_DIR}/nurl_gms_inp.pc.genex @ONLY)
file(
  GENERATE
  OUTPUT ${PROJECT_BINARY_DIR}/nurl_gms_inp.pc
  INPUT ${PROJECT_BINARY_DIR}/nurl_gms_inp.pc.genex)
install(FILES ${PROJECT_BINARY_DIR}/nurl_gms_inp.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
