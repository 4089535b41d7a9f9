# Compares the order of the virtual table with the recorded one. It is taken from the implementation, because in that of
# the interface all functions look the same. Called with
#   cmake -D COMPILER=... -D FOLDERS=... -D HEADER=... -D RECORDED=... -D WORK_DIR=... -P vtable.cmake
file(MAKE_DIRECTORY ${WORK_DIR})
string(REPLACE "|" ";-I" flags "-I${FOLDERS}")
execute_process(
    COMMAND ${COMPILER} -x c++ -std=c++17 -fPIC ${flags} -fsyntax-only -fdump-lang-class=${WORK_DIR}/classes.txt ${HEADER}
    COMMAND_ERROR_IS_FATAL ANY)
file(READ ${WORK_DIR}/classes.txt classes)
string(REGEX MATCH "Vtable for CIso15745Impl\n[^\n]*\n([0-9]+ [^\n]*\n)+" table "${classes}")
file(READ ${RECORDED} recorded)
if(NOT "${table}" STREQUAL "${recorded}")
    message(FATAL_ERROR "The virtual table is\n${table}but the recorded one is\n${recorded}")
endif()
