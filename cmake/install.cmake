# cmake --install: the module, its headers, its catalogue, a CMake package and a pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The module for x86-64-v3 goes where the C library's loader looks first on such a processor, beside a plain one that
# brings everything else: who asks for the plain file gets this one.
if(TARN_X86_64_V3)
  install(TARGETS ocl_tarn_k1 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-v3)
  return()
endif()

# For Windows the DLL, its import library and the header of that platform.
if(WIN32)
  install(TARGETS ocl_tarn_k1 RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES include/ocl_tarn_k1_windows.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  return()
endif()

target_include_directories(ocl_tarn_k1 INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
                                                 $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
install(TARGETS ocl_tarn_k1 EXPORT ocl_tarn_k1 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/ocl_tarn_k1.h include/ocl_tarn_k1.cl.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET catalogue)
  install(FILES ${PROJECT_BINARY_DIR}/exports.json docs/exports.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/ocl_tarn_k1)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ocl_tarn_k1)
install(EXPORT ocl_tarn_k1 NAMESPACE ocl_tarn_k1:: FILE ocl_tarn_k1-config.cmake DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ocl_tarn_k1-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ocl_tarn_k1-config-version.cmake DESTINATION ${package_dir})

# Found from where the file lies, so that an installed tree can be moved; a directory named absolutely stays there.
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(TARN_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" to_prefix "${to_prefix}")
  set(TARN_PC_PREFIX "\${pcfiledir}/${to_prefix}")
endif()
foreach(dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE ${CMAKE_INSTALL_${dir}})
    set(TARN_PC_${dir} ${CMAKE_INSTALL_${dir}})
  else()
    set(TARN_PC_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()
configure_file(cmake/ocl_tarn_k1.pc.in ocl_tarn_k1.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ocl_tarn_k1.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
