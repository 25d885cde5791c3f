# cmake --install: the module and libtarn, their headers, the catalogue, the tools, a CMake package and pkg-config files.
# What programs run with is the component runtime, what they are made with development.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The libraries for x86-64-v3 go where the C library's loader looks first on such a processor, beside plain ones that
# bring everything else: who asks for the plain file gets this one.
if(TARN_X86_64_V3)
  install(TARGETS ocl_tarn_k1 tarn
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-v3 COMPONENT runtime NAMELINK_SKIP)
  return()
endif()

# For Windows the DLL, its import library and the header of that platform.
if(WIN32)
  install(TARGETS ocl_tarn_k1 RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES include/ocl_tarn_k1_windows.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  return()
endif()

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
set(static_libraries ocl_tarn_k1_static tarn_static)
foreach(library ocl_tarn_k1 tarn ${static_libraries})
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
                                                  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
endforeach()
install(TARGETS ocl_tarn_k1 tarn ${static_libraries} EXPORT ocl_tarn_k1
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/ocl_tarn_k1.h include/ocl_tarn_k1.cl.h include/tarn.h include/tarn_simd.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET catalogue)
  install(FILES ${PROJECT_BINARY_DIR}/exports.json docs/exports.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/ocl_tarn_k1
          COMPONENT runtime)
endif()

# Installed tools take the module of their prefix.
file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
foreach(tool tarn-eval tarn-ulp tarn-bench tarn-exports)
  if(TARGET ${tool})
    set_target_properties(${tool} PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
    install(TARGETS ${tool} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()
if(PROJECT_IS_TOP_LEVEL)
  install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ocl_tarn_k1)
install(EXPORT ocl_tarn_k1 NAMESPACE ocl_tarn_k1:: FILE ocl_tarn_k1-targets.cmake DESTINATION ${package_dir})
install(FILES cmake/ocl_tarn_k1-config.cmake DESTINATION ${package_dir})
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
foreach(name ocl_tarn_k1 ocl_tarn_k1_static tarn)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
