# What every target of the project has in common.

# Language level, warnings and the Qt definitions that keep conversions explicit. But for the language level all is
# private: a program that links the library keeps its own settings.
function(mvx_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    target_compile_definitions(${target} PRIVATE
        QT_DEPRECATED_WARNINGS_SINCE=0x050F00
        QT_DISABLE_DEPRECATED_BEFORE=0x050E00
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_CAST_TO_ASCII
        QT_NO_FOREACH
        QT_NO_KEYWORDS
        QT_NO_URL_CAST_FROM_STRING)
endfunction()

# A shared library of the project: the name of the build for its Qt, hidden visibility, the so-name of the project, its
# public headers, and an alias in the namespace under which an installed library is found. `<TARGET>_LIBRARY` tells its
# export header that it is being built.
function(mvx_shared_library target)
    cmake_parse_arguments(ARG "" "HEADER_DIR" "HEADERS" ${ARGN})
    list(TRANSFORM ARG_HEADERS PREPEND ${ARG_HEADER_DIR}/)
    string(TOUPPER ${target} upper)

    mvx_target_defaults(${target})
    target_compile_definitions(${target} PRIVATE ${upper}_LIBRARY)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${target}${MVX_SUFFIX}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${MVX_SOVERSION}
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        INSTALL_RPATH "$ORIGIN"
        VERIFY_INTERFACE_HEADER_SETS ON)
    target_sources(${target} PUBLIC
        FILE_SET HEADERS
        BASE_DIRS ${ARG_HEADER_DIR}
        FILES ${ARG_HEADERS})
    add_library(mvx::${target} ALIAS ${target})
endfunction()

# A command line tool of the project.
function(mvx_tool target)
    mvx_target_defaults(${target})
    file(RELATIVE_PATH to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
endfunction()
