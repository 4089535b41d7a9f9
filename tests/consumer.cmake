# Takes the library up as other projects do and builds the program of the README each way. Called with
#   cmake -D BUILD_DIR=... -D SOURCE_DIR=... -D WORK_DIR=... -D LIBDIR=... -P consumer.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output ${output} PARENT_SCOPE)
endfunction()

function(expect_program program)
    run(${program})
    if(NOT output MATCHES "250 kbit/s\n.*Vendor-ID: 0x00FFFF17\n")
        message(FATAL_ERROR "${program} printed:\n${output}")
    endif()
endfunction()

function(build_example name)
    run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR}/docs/example -B ${WORK_DIR}/${name} ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${name})
    expect_program(${WORK_DIR}/${name}/example)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})

# Installed into an empty prefix and moved to another one.
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/first)
run(${WORK_DIR}/first/bin/xddinfo --version)
file(RENAME ${WORK_DIR}/first ${WORK_DIR}/moved)
run(${WORK_DIR}/moved/bin/xddinfo --object 0x1018)
build_example(installed -D CMAKE_PREFIX_PATH=${WORK_DIR}/moved)

# From the build tree.
build_example(build-tree -D mvxIso15745Xml_DIR=${BUILD_DIR})

# With pkg-config alone.
set(ENV{PKG_CONFIG_PATH} ${WORK_DIR}/moved/${LIBDIR}/pkgconfig)
run(sh -c "c++ ${SOURCE_DIR}/docs/example/main.cpp -o ${WORK_DIR}/plain $(pkg-config --cflags --libs mvxIso15745Xml) -Wl,-rpath,${WORK_DIR}/moved/${LIBDIR}")
expect_program(${WORK_DIR}/plain)

# As a part of another project, which gets neither tests nor tools.
file(WRITE ${WORK_DIR}/parent/CMakeLists.txt "
cmake_minimum_required(VERSION 3.25)
project(parent LANGUAGES CXX)
include(FetchContent)
FetchContent_Declare(mvxIso15745Xml SOURCE_DIR ${SOURCE_DIR})
FetchContent_MakeAvailable(mvxIso15745Xml)
add_subdirectory(${SOURCE_DIR}/docs/example example)
if(TARGET xddinfo OR TARGET tst_load OR TARGET translations)
    message(FATAL_ERROR \"tools or tests nobody asked for\")
endif()
")
run(${CMAKE_COMMAND} -G Ninja -S ${WORK_DIR}/parent -B ${WORK_DIR}/parent/build)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/parent/build)
expect_program(${WORK_DIR}/parent/build/example/example)

file(REMOVE_RECURSE ${WORK_DIR})
