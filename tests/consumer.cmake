# Uses the libraries as other projects do and builds the programs of the README each way. Called with
#   cmake -D BUILD_DIR=... -D SOURCE_DIR=... -D WORK_DIR=... -D LIBDIR=... -D QT_MAJOR=... -P consumer.cmake
set(SUFFIX "")
if(QT_MAJOR EQUAL 6)
    set(SUFFIX -qt6)
endif()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output ${output} PARENT_SCOPE)
endfunction()

function(expect_program program)
    run("${program}")
    if(NOT output MATCHES "Vendor-ID: (UNSIGNED32 )?0x00FFFF17 ?\n")
        message(FATAL_ERROR "${program} printed:\n${output}")
    endif()
endfunction()

function(build_example name)
    run(${CMAKE_COMMAND} -G Ninja -S "${SOURCE_DIR}/docs/example" -B "${WORK_DIR}/${name}"
        -D MVX_QT_MAJOR=${QT_MAJOR} ${ARGN})
    run(${CMAKE_COMMAND} --build "${WORK_DIR}/${name}")
    expect_program("${WORK_DIR}/${name}/example")
    expect_program("${WORK_DIR}/${name}/open_any")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")

# Installed into an empty prefix and moved to another one.
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/first")
file(RENAME "${WORK_DIR}/first" "${WORK_DIR}/moved")
if(QT_MAJOR EQUAL 5)
    foreach(tool xddinfo xddnormalize xddcheck xdddiff xdd2dbc xdd2eds xdd2html)
        run("${WORK_DIR}/moved/bin/${tool}" --version)
    endforeach()
    run("${WORK_DIR}/moved/bin/xddinfo" --sample --object 0x1018)
endif()
build_example(installed -D "CMAKE_PREFIX_PATH=${WORK_DIR}/moved")

# From the build tree.
build_example(build-tree -D "mvxIso15745Xml${SUFFIX}_DIR=${BUILD_DIR}")

# With pkg-config alone, whose paths are quoted for a shell.
set(ENV{PKG_CONFIG_PATH} "${WORK_DIR}/moved/${LIBDIR}/pkgconfig")
set(ENV{LD_LIBRARY_PATH} "${WORK_DIR}/moved/${LIBDIR}")
foreach(program main:mvxIso15745Xml open_any:mvxXddTools)
    string(REGEX MATCH "^(.*):(.*)$" pair ${program})
    set(source ${CMAKE_MATCH_1})
    set(package ${CMAKE_MATCH_2}${SUFFIX})
    run(sh -c "eval c++ -std=c++17 \"'${SOURCE_DIR}/docs/example/${source}.cpp'\" -o \"'${WORK_DIR}/plain'\" $(pkg-config --cflags --libs ${package})")
    expect_program("${WORK_DIR}/plain")
endforeach()
unset(ENV{LD_LIBRARY_PATH})

# As a part of another project, which gets neither tests nor tools, and is installed with its libraries. With Qt 6 only the
# reader is built and nothing installed: that differs in names alone, and all of it a second time takes a minute.
file(WRITE "${WORK_DIR}/parent/CMakeLists.txt" "
cmake_minimum_required(VERSION 3.25)
project(parent LANGUAGES CXX)
include(GNUInstallDirs)
include(FetchContent)
set(MVX_QT_MAJOR ${QT_MAJOR})
FetchContent_Declare(mvxIso15745Xml SOURCE_DIR \"${SOURCE_DIR}\")
FetchContent_MakeAvailable(mvxIso15745Xml)
set(CMAKE_INSTALL_RPATH \$ORIGIN/../\${CMAKE_INSTALL_LIBDIR})
add_subdirectory(\"${SOURCE_DIR}/docs/example\" example)
install(TARGETS example)
if(TARGET xddinfo OR TARGET tst_load)
    message(FATAL_ERROR \"tools or tests nobody asked for\")
endif()
")
run(${CMAKE_COMMAND} -G Ninja -S "${WORK_DIR}/parent" -B "${WORK_DIR}/parent/build")
if(QT_MAJOR EQUAL 6)
    run(${CMAKE_COMMAND} --build "${WORK_DIR}/parent/build" --target example)
    expect_program("${WORK_DIR}/parent/build/example/example")
else()
    run(${CMAKE_COMMAND} --build "${WORK_DIR}/parent/build")
    run(${CMAKE_COMMAND} --install "${WORK_DIR}/parent/build" --prefix "${WORK_DIR}/parent/installed")
    file(REMOVE_RECURSE "${WORK_DIR}/parent/build")
    expect_program("${WORK_DIR}/parent/installed/bin/example")
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
