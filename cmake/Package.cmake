# What `cmake --install` leaves: libraries, headers (hand-written and generated alike), and the package FcConfig.
#
# A program outside says find_package(Fc REQUIRED) and links Fc::Fc, which brings all it stands on. The libraries
# beside the engine are Qor::Assert, Qor::Id ... in this build and Fc::QorAssert, Fc::QorId ... in the package.
include(CMakePackageConfigHelpers)

set(FC_PACKAGE_DIR lib/cmake/Fc)

install(DIRECTORY Qor Fc "${CMAKE_BINARY_DIR}/generated/Fc" DESTINATION include FILES_MATCHING PATTERN "*.h"
  PATTERN Bridge EXCLUDE PATTERN Precompiled.h EXCLUDE)
export(EXPORT FcTargets NAMESPACE Fc:: FILE "${CMAKE_BINARY_DIR}/FcTargets.cmake") # for FC_PREBUILT
install(EXPORT FcTargets NAMESPACE Fc:: DESTINATION ${FC_PACKAGE_DIR})

configure_package_config_file(cmake/FcConfig.cmake.in "${CMAKE_BINARY_DIR}/FcConfig.cmake"
  INSTALL_DESTINATION ${FC_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/FcConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/FcConfig.cmake" "${CMAKE_BINARY_DIR}/FcConfigVersion.cmake"
  DESTINATION ${FC_PACKAGE_DIR})
