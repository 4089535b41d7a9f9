# Debian packages, made by `cpack` from a build with the preset "package" or "package-qt6".

# Compresses a file of the sources into the top of the build folder, the same bytes every time.
find_program(GZIP gzip REQUIRED)
function(mvx_compressed source)
    cmake_path(GET source FILENAME name)
    execute_process(
        COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/${source}
        OUTPUT_FILE ${PROJECT_BINARY_DIR}/${name}.gz
        COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${source})
endfunction()

# The build for Qt 6 has neither tools nor documentation of its own.
set(components runtime dev)
if(MVX_QT_MAJOR EQUAL 5)
    list(APPEND components tools doc)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "libmvxIso15745Xml")
set(CPACK_PACKAGE_CONTACT "libmvxIso15745Xml maintainers <maintainers@libmvxiso15745xml.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # Would stand in front of every description, as the synopsis of all packages
set(CPACK_COMPONENTS_ALL ${components})
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

# A name that ends in a digit is kept apart from the number of the so-name.
string(REGEX REPLACE "([0-9])$" "\\1-" runtime_name libmvxiso15745xml${MVX_SUFFIX})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_name}${MVX_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/docs/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "reader for CANopen device descriptions (shared libraries, Qt ${MVX_QT_MAJOR})
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains the shared libraries.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libmvxiso15745xml${MVX_SUFFIX}-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
if(MVX_QT_MAJOR EQUAL 5)
    set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qtbase5-dev)
else()
    set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qt6-base-dev)
endif()
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_DEBIAN_DEV_DESCRIPTION "reader for CANopen device descriptions (headers, Qt ${MVX_QT_MAJOR})
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains what is needed to build programs that use the library.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME xddinfo)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "shows, checks and converts CANopen device descriptions
xddinfo shows the identity of a device, its bit rates, its PDOs and its object
dictionary from a description (XDD, XDC, EDS, DCF), as a table or as JSON.

xddcheck says what is wrong with descriptions, xddnormalize puts them right,
xdddiff says what changed between two and whom it breaks, xdd2eds writes them as EDS or DCF, xdd2dbc writes what a network of devices
sends as a DBC, and xdd2html writes a page for a browser.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME libmvxiso15745xml-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "reader for CANopen device descriptions (API documentation)
Reads CANopen device descriptions in the XML form of ISO 15745 (CiA 311, xdd)
into an in-memory model: the device profile, the communication network
profile and the object dictionary.

This package contains the API documentation.")

if(MVX_BUILD_TOOLS AND MVX_INSTALL_TOOLS)
    foreach(tool ${MVX_TOOLS})
        mvx_compressed(docs/man/${tool}.1)
        install(FILES ${PROJECT_BINARY_DIR}/${tool}.1.gz
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
            COMPONENT tools)
    endforeach()
endif()

# Every package has a copyright file and a changelog.
mvx_compressed(docs/debian/changelog.Debian)
foreach(component ${components})
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES docs/debian/copyright ${PROJECT_BINARY_DIR}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
        COMPONENT ${component})
    set(overrides ${PROJECT_BINARY_DIR}/overrides/${package})
    configure_file(docs/debian/overrides.${component} ${overrides} COPYONLY)
    install(FILES ${overrides}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        COMPONENT ${component})
endforeach()

include(CPack)
