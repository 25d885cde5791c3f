# cpack -G DEB: ocl-tarn-k1 and ocl-tarn-k1-dev, of this build and of the one for x86-64-v3 beside it.
set(TARN_V3_BUILD ${PROJECT_BINARY_DIR}/../v3 CACHE PATH "The build for x86-64-v3 that packages take libraries from")
set(CPACK_PACKAGE_NAME ocl-tarn-k1)
set(CPACK_PACKAGE_VENDOR "The ocl_tarn_k1 maintainers")
set(CPACK_PACKAGE_CONTACT "ocl_tarn_k1 maintainers <maintainers@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Every component of both builds.
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};ALL;/;${TARN_V3_BUILD};${PROJECT_NAME};ALL;/")
file(CONFIGURE OUTPUT cpack-v3.cmake @ONLY CONTENT [[
if(NOT EXISTS "@TARN_V3_BUILD@/libtarn.so.1")
  message(FATAL_ERROR "no build for x86-64-v3 in @TARN_V3_BUILD@: build the preset v3, or name one in TARN_V3_BUILD")
endif()
]])
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/cpack-v3.cmake)

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ocl-tarn-k1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "The module __ocl_tarn_k1.so and libtarn, its functions on arrays,
both for x86-64 with SSE4.1 and for x86-64-v3, and the catalogue of the functions.")
# The loader's cache has to hear of them.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/triggers)
# The libraries import nothing.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ocl-tarn-k1-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Headers, static libraries, CMake and pkg-config files, documents, examples,
and the tools tarn-eval, tarn-ulp, tarn-bench and tarn-exports.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS ON)
include(CPack)
