# What `cmake --install` lays down, and how others find it: a CMake package, and a pkg-config file for the library and
# one for the simulator.

include(CMakePackageConfigHelpers)

set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/DisplayAPI)

# Installs a set of exported targets together with the file by which the package finds it.
function(install_exported set)
    install(TARGETS ${ARGN} EXPORT ${set}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT ${set} NAMESPACE DisplayAPI:: DESTINATION ${PACKAGE_FOLDER})
endfunction()

function(install_headers folder destination)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${destination}
        FILES_MATCHING PATTERN "*.h")
endfunction()

function(install_pkgconfig name)
    file(RELATIVE_PATH FROM_PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# The library finds the toolkit beside itself, wherever both are laid.
set_target_properties(DisplayAPI PROPERTIES INSTALL_RPATH "$ORIGIN")
install_exported(DisplayAPITargets DisplayAPI displaytoolkit)
install_headers(include/DisplayAPI DisplayAPI)
install_headers(toolkit/core displaytoolkit)
install_headers(toolkit/meg displaytoolkit)
install_pkgconfig(DisplayAPI)

if(DISPLAYAPI_SIMULATOR)
    install_exported(PhoneSimulatorTargets phonesimulator)
    install_headers(simulator/include/PhoneSimulator PhoneSimulator)
    install_pkgconfig(PhoneSimulator)

    file(RELATIVE_PATH FROM_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(phone PROPERTIES INSTALL_RPATH "$ORIGIN/${FROM_BIN_TO_LIB}")
    install(TARGETS phone DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

configure_package_config_file(cmake/DisplayAPIConfig.cmake.in ${PROJECT_BINARY_DIR}/DisplayAPIConfig.cmake
    INSTALL_DESTINATION ${PACKAGE_FOLDER})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/DisplayAPIConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/DisplayAPIConfig.cmake ${PROJECT_BINARY_DIR}/DisplayAPIConfigVersion.cmake
    DESTINATION ${PACKAGE_FOLDER})
