# Debian packages, made in the build folder by `cpack`: the library, what programs are built with, the simulator, and
# the test kit.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The developers of DisplayAPI <displayapi@localhost>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_COMPONENTS_ALL library development)
if(DISPLAYAPI_SIMULATOR)
    list(APPEND CPACK_COMPONENTS_ALL simulator testkit)
endif()

set(THIS_VERSION "(= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libdisplayapi${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "libc6 (>= 2.36), libstdc++6 (>= 12)")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "User-interface library of a desk telephone")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libdisplayapi-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} ${THIS_VERSION}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "User-interface library of a desk telephone, to build applications with")

# Phonelets are built with it, so it brings what the simulator's static library is linked with.
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME displayapi-simulator)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_DEPENDS
    "libdisplayapi-dev ${THIS_VERSION}, libfreetype-dev, libpng-dev, libncurses-dev, pkg-config, xfonts-base")
set(CPACK_COMPONENT_SIMULATOR_DESCRIPTION "The desk telephone on a workstation")

set(CPACK_DEBIAN_TESTKIT_PACKAGE_NAME python3-phonekit)
set(CPACK_DEBIAN_TESTKIT_PACKAGE_SECTION python)
set(CPACK_DEBIAN_TESTKIT_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TESTKIT_PACKAGE_DEPENDS "python3, python3-pytest")
set(CPACK_COMPONENT_TESTKIT_DESCRIPTION "Tests for phonelets of the desk telephone, in Python")

include(CPack)
