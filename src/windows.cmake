# The module for Windows x64. Callers may leave the stack at any multiple of 8: no frame relies on more.
target_compile_options(tarn_kernel_flags INTERFACE -fms-extensions -mstack-alignment=8 -Wno-language-extension-token)
target_sources(ocl_tarn_k1 PRIVATE windows/entry.cpp families/exports.def)
set_target_properties(ocl_tarn_k1 PROPERTIES
  PREFIX "" OUTPUT_NAME "__ocl_tarn_k1" IMPORT_PREFIX "" IMPORT_SUFFIX ".lib"
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR} ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}
  LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/families/imports.def)
target_link_libraries(ocl_tarn_k1 PRIVATE tarn_kernel_flags)
# Nothing is imported, and a call that the compiler makes up fails the link.
target_link_options(ocl_tarn_k1 PRIVATE
  -nostdlib -Wl,--entry=tarn_entry -Wl,--exclude-all-symbols -Wl,--no-insert-timestamp -s)
# In the place of the linker's own import library, one that knows decorated names too.
add_custom_command(TARGET ocl_tarn_k1 POST_BUILD VERBATIM
  COMMAND ${CMAKE_DLLTOOL} --input-def ${CMAKE_CURRENT_SOURCE_DIR}/families/imports.def
                           --output-lib $<TARGET_LINKER_FILE:ocl_tarn_k1>)
