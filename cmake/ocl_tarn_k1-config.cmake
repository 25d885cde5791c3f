# The module as ocl_tarn_k1::ocl_tarn_k1 and, as an archive, ocl_tarn_k1::static; its one component is tarn, for ocl_tarn_k1::tarn and ocl_tarn_k1::tarn_static.
include("${CMAKE_CURRENT_LIST_DIR}/ocl_tarn_k1-targets.cmake")
set(ocl_tarn_k1_tarn_FOUND TRUE)
foreach(component ${ocl_tarn_k1_FIND_COMPONENTS})
  if(NOT ocl_tarn_k1_${component}_FOUND AND ocl_tarn_k1_FIND_REQUIRED_${component})
    set(ocl_tarn_k1_FOUND FALSE)
    set(ocl_tarn_k1_NOT_FOUND_MESSAGE "ocl_tarn_k1 has no component '${component}'")
  endif()
endforeach()
