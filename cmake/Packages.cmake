# Debian packages, made by `cpack` from a build with the preset "package".
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "libmvxIso15745Xml")
set(CPACK_PACKAGE_CONTACT "libmvxIso15745Xml maintainers <maintainers@libmvxiso15745xml.example>")
set(CPACK_COMPONENTS_ALL runtime dev tools doc)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# The packages of one build need each other, and find each other's libraries where they were built.
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libmvxiso15745xml${MVX_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/docs/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "reader for CANopen device descriptions
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains the shared libraries.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libmvxiso15745xml-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qtbase5-dev)
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_DEBIAN_DEV_DESCRIPTION "reader for CANopen device descriptions - development files
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains what is needed to build programs that use the library.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME xddinfo)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "shows what is in CANopen device descriptions
xddinfo shows the identity of a device, its bit rates and its object
dictionary from a description in the XML form of ISO 15745 (CiA 311, xdd), as
a table or as JSON.

xddnormalize brings the descriptions that other tools write into the form that
the library behind xddinfo reads.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME libmvxiso15745xml-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "reader for CANopen device descriptions - documentation
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains the API documentation.")

# Every package has a copyright file and a changelog.
mvx_compressed(docs/debian/changelog.Debian)
foreach(component runtime dev tools doc)
    string(TOUPPER ${component} upper)
    install(FILES docs/debian/copyright ${PROJECT_BINARY_DIR}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
        COMPONENT ${component})
    set(overrides ${PROJECT_BINARY_DIR}/overrides/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    configure_file(docs/debian/overrides.${component} ${overrides} COPYONLY)
    install(FILES ${overrides}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        COMPONENT ${component})
endforeach()

include(CPack)
