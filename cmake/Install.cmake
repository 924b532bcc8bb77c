# What `cmake --install` lays down, and how others find it: a CMake package, and a pkg-config file for the library and
# one for the simulator. Each piece belongs to a component, and each component to a Debian package (see Packages.cmake).

include(CMakePackageConfigHelpers)

set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/DisplayAPI)

# Installs a set of exported targets together with the file by which the package finds it. Who builds programs needs
# the files of `component`; who runs them only the shared libraries.
function(install_exported set component)
    install(TARGETS ${ARGN} EXPORT ${set}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT ${component}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component})
    install(EXPORT ${set} NAMESPACE DisplayAPI:: DESTINATION ${PACKAGE_FOLDER} COMPONENT ${component})
endfunction()

function(install_headers component folder destination)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${destination}
        COMPONENT ${component} FILES_MATCHING PATTERN "*.h")
endfunction()

function(install_pkgconfig component name)
    file(RELATIVE_PATH FROM_PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT ${component})
endfunction()

# The library finds the toolkit beside itself, wherever both are laid.
set_target_properties(DisplayAPI PROPERTIES INSTALL_RPATH "$ORIGIN")
install_exported(DisplayAPITargets development DisplayAPI displaytoolkit)
install_headers(development include/DisplayAPI DisplayAPI)
install_headers(development toolkit/core displaytoolkit)
install_headers(development toolkit/meg displaytoolkit)
# The sources name the toolkit's headers barely, so that another toolkit can take its place. Where they are installed they
# carry their folder, which no include path names: there a program may have a Types.h or Log.h of its own.
install(CODE "set(INCLUDE_FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}\")
    include(\"${PROJECT_SOURCE_DIR}/cmake/NameToolkitHeaders.cmake\")" COMPONENT development)
install_pkgconfig(development DisplayAPI)

if(DISPLAYAPI_SIMULATOR)
    install_exported(PhoneSimulatorTargets simulator phonesimulator)
    install_headers(simulator simulator/include/PhoneSimulator PhoneSimulator)
    install_pkgconfig(simulator PhoneSimulator)

    file(RELATIVE_PATH FROM_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(phone phone-desktop PROPERTIES INSTALL_RPATH "$ORIGIN/${FROM_BIN_TO_LIB}")
    install(TARGETS phone phone-desktop DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator)

    # The kit in Python, where Debian's Python looks, with what pytest finds its plugin by.
    set(PYTHON_FOLDER lib/python3/dist-packages)
    file(STRINGS testkit/python/phonekit/__init__.py KIT_VERSION REGEX "^__version__")
    if(NOT KIT_VERSION STREQUAL "__version__ = \"${PROJECT_VERSION}\"")
        message(FATAL_ERROR "The test kit has another version than the project: ${KIT_VERSION}")
    endif()
    set(KIT_INFO ${PROJECT_BINARY_DIR}/phonekit-${PROJECT_VERSION}.dist-info)
    file(WRITE ${KIT_INFO}/METADATA "Metadata-Version: 2.1\nName: phonekit\nVersion: ${PROJECT_VERSION}\n")
    file(WRITE ${KIT_INFO}/entry_points.txt "[pytest11]\nphonekit = phonekit.plugin\n")
    install(DIRECTORY testkit/python/phonekit DESTINATION ${PYTHON_FOLDER} COMPONENT testkit
        FILES_MATCHING PATTERN "*.py" PATTERN "__pycache__" EXCLUDE)
    install(DIRECTORY ${KIT_INFO} DESTINATION ${PYTHON_FOLDER} COMPONENT testkit)
endif()

configure_package_config_file(cmake/DisplayAPIConfig.cmake.in ${PROJECT_BINARY_DIR}/DisplayAPIConfig.cmake
    INSTALL_DESTINATION ${PACKAGE_FOLDER})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/DisplayAPIConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/DisplayAPIConfig.cmake ${PROJECT_BINARY_DIR}/DisplayAPIConfigVersion.cmake
    DESTINATION ${PACKAGE_FOLDER} COMPONENT development)
