# What `cmake --install` puts where: headers under include/splitframe, the two libraries, the CMake package and the
# pkg-config file.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Splitframe)

install(TARGETS splitframe splitframe-platform EXPORT SplitframeTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/splitframe
        FILES_MATCHING PATTERN "*.h" PATTERN "internal" EXCLUDE)

install(EXPORT SplitframeTargets NAMESPACE Splitframe:: DESTINATION ${package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/SplitframeConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/SplitframeConfig.cmake INSTALL_DESTINATION ${package_dir})
# Below 1.0 every minor release may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/SplitframeConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/SplitframeConfig.cmake ${PROJECT_BINARY_DIR}/SplitframeConfigVersion.cmake
        DESTINATION ${package_dir})

set(splitframe_private_requires)
if(NOT BUILD_SHARED_LIBS)
    set(splitframe_private_requires "Requires.private: pangocairo sdl2 pugixml")
    set(splitframe_pc_cflags " -DSPLITFRAME_STATIC")
endif()
# Found from where the file stands, so that an installed tree can be moved.
file(RELATIVE_PATH splitframe_pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/splitframe.pc.in ${PROJECT_BINARY_DIR}/splitframe.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/splitframe.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
