# OpenCascade::Modeling: the libraries of Open CASCADE that model solids. Distributions split the package and leave its own
# configuration files asking for parts that nothing here needs, so the libraries are found by name.
find_path(OPENCASCADE_INCLUDE_DIR TopoDS_Shape.hxx PATH_SUFFIXES opencascade REQUIRED)
add_library(OpenCascadeModeling INTERFACE)
add_library(OpenCascade::Modeling ALIAS OpenCascadeModeling)
target_include_directories(OpenCascadeModeling SYSTEM INTERFACE $<BUILD_INTERFACE:${OPENCASCADE_INCLUDE_DIR}>)
foreach(toolkit TKMesh TKBO TKBool TKPrim TKShHealing TKTopAlgo TKGeomAlgo TKBRep TKGeomBase TKG3d TKG2d TKMath TKernel)
  find_library(OPENCASCADE_${toolkit} ${toolkit} REQUIRED)
  target_link_libraries(OpenCascadeModeling INTERFACE ${OPENCASCADE_${toolkit}})
endforeach()
