# What an installation holds: the library with its headers by room, the CMake package, the
# pkg-config file. The tool installs itself (tools/CMakeLists.txt).

include(CMakePackageConfigHelpers)

set(VANTREL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Vantrel)

install(TARGETS vantrel
    EXPORT VantrelTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vantrel)
install(EXPORT VantrelTargets NAMESPACE Vantrel:: DESTINATION ${VANTREL_CMAKE_DIR})

configure_package_config_file(cmake/VantrelConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VantrelConfig.cmake
    INSTALL_DESTINATION ${VANTREL_CMAKE_DIR}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VantrelConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/VantrelConfig.cmake
    ${PROJECT_BINARY_DIR}/VantrelConfigVersion.cmake
    DESTINATION ${VANTREL_CMAKE_DIR})

# The file finds its prefix from where it stands, so that an installation can be moved.
file(RELATIVE_PATH VANTREL_PC_TO_PREFIX
    /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" VANTREL_PC_TO_PREFIX ${VANTREL_PC_TO_PREFIX})
configure_file(cmake/vantrel.pc.in ${PROJECT_BINARY_DIR}/vantrel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vantrel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
