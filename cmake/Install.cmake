# What is installed where, and how other projects find it: a CMake package and pkg-config files, both of which work from
# any prefix and after the whole folder has been moved. The components are the Debian packages of Packages.cmake.
include(CMakePackageConfigHelpers)

set(mvx_package mvxIso15745Xml${MVX_SUFFIX})
set(mvx_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${mvx_package})

foreach(target mvxIso15745Xml mvxXddTools mvxXml)
    install(TARGETS ${target} EXPORT mvxIso15745XmlTargets
        LIBRARY
            DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT runtime
            NAMELINK_COMPONENT dev
        FILE_SET HEADERS
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target}${MVX_SUFFIX}
            COMPONENT dev)
endforeach()

configure_package_config_file(cmake/mvxIso15745XmlConfig.cmake.in ${PROJECT_BINARY_DIR}/${mvx_package}Config.cmake
    INSTALL_DESTINATION ${mvx_cmake_dir})
# As long as the major version is 0, every minor version may break programs.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${mvx_package}ConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(EXPORT mvxIso15745XmlTargets NAMESPACE mvx:: DESTINATION ${mvx_cmake_dir} COMPONENT dev)
install(
    FILES
        ${PROJECT_BINARY_DIR}/${mvx_package}Config.cmake
        ${PROJECT_BINARY_DIR}/${mvx_package}ConfigVersion.cmake
    DESTINATION ${mvx_cmake_dir}
    COMPONENT dev)
# The same package from the build tree, with mvxIso15745Xml_DIR set to it.
export(EXPORT mvxIso15745XmlTargets NAMESPACE mvx:: FILE ${PROJECT_BINARY_DIR}/mvxIso15745XmlTargets.cmake)

# pkg-config finds the prefix from where its file lies.
file(RELATIVE_PATH MVX_PC_PREFIX
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
foreach(name mvxIso15745Xml mvxXddTools mvxXml)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}${MVX_SUFFIX}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}${MVX_SUFFIX}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT dev)
endforeach()

# Where Qt programs look for the catalogues of libraries.
if(MVX_CATALOGUES)
    install(FILES ${MVX_CATALOGUES}
        DESTINATION ${MVX_CATALOGUE_DIR}
        COMPONENT runtime)
endif()

set(MVX_TOOLS xdd2dbc xdd2eds xdd2html xddcheck xdddiff xddinfo xddnormalize)
if(MVX_BUILD_TOOLS AND MVX_INSTALL_TOOLS)
    install(TARGETS ${MVX_TOOLS}
        RUNTIME
            DESTINATION ${CMAKE_INSTALL_BINDIR}
            COMPONENT tools)
    foreach(tool ${MVX_TOOLS})
        install(FILES tools/completion/${tool}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
            COMPONENT tools)
        if(NOT MVX_DEBIAN_PACKAGES) # Packages compress their pages
            install(FILES docs/man/${tool}.1
                DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
                COMPONENT tools)
        endif()
    endforeach()
endif()

if(MVX_BUILD_DOCS)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libmvxiso15745xml-doc
        COMPONENT doc)
endif()
