# What is installed where, and how other projects find it: a CMake package and pkg-config files, both of which work from
# any prefix and after the whole folder has been moved. The components are the Debian packages of Packages.cmake.
include(CMakePackageConfigHelpers)

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

set(mvx_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/mvxIso15745Xml)

foreach(target mvxIso15745Xml mvxXml)
    install(TARGETS ${target} EXPORT mvxIso15745XmlTargets
        LIBRARY
            DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT runtime
            NAMELINK_COMPONENT dev
        FILE_SET HEADERS
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target}
            COMPONENT dev)
endforeach()

configure_package_config_file(cmake/mvxIso15745XmlConfig.cmake.in ${PROJECT_BINARY_DIR}/mvxIso15745XmlConfig.cmake
    INSTALL_DESTINATION ${mvx_cmake_dir})
# As long as the major version is 0, every minor version may break programs.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/mvxIso15745XmlConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(EXPORT mvxIso15745XmlTargets NAMESPACE mvx:: DESTINATION ${mvx_cmake_dir} COMPONENT dev)
install(
    FILES
        ${PROJECT_BINARY_DIR}/mvxIso15745XmlConfig.cmake
        ${PROJECT_BINARY_DIR}/mvxIso15745XmlConfigVersion.cmake
    DESTINATION ${mvx_cmake_dir}
    COMPONENT dev)
# The same package from the build tree, with mvxIso15745Xml_DIR set to it.
export(EXPORT mvxIso15745XmlTargets NAMESPACE mvx:: FILE ${PROJECT_BINARY_DIR}/mvxIso15745XmlTargets.cmake)

# pkg-config finds the prefix from where its file lies.
file(RELATIVE_PATH MVX_PC_PREFIX
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
foreach(name mvxIso15745Xml mvxXml)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT dev)
endforeach()

if(MVX_BUILD_TOOLS)
    install(TARGETS xddinfo xddnormalize
        RUNTIME
            DESTINATION ${CMAKE_INSTALL_BINDIR}
            COMPONENT tools)
    mvx_compressed(docs/man/xddinfo.1)
    mvx_compressed(docs/man/xddnormalize.1)
    install(FILES ${PROJECT_BINARY_DIR}/xddinfo.1.gz ${PROJECT_BINARY_DIR}/xddnormalize.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT tools)
    install(FILES tools/completion/xddinfo tools/completion/xddnormalize
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        COMPONENT tools)
    # Where Qt programs look for the catalogues of libraries.
    install(FILES $<TARGET_PROPERTY:translations,CATALOGUES>
        DESTINATION ${CMAKE_INSTALL_DATADIR}/qt5/translations
        COMPONENT runtime)
endif()

if(MVX_BUILD_DOCS)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libmvxiso15745xml-doc
        COMPONENT doc)
endif()
