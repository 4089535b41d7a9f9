# The program in the README is the one that is built. Called with cmake -D SOURCE_DIR=... -P readme.cmake
file(READ ${SOURCE_DIR}/README.md readme)
file(READ ${SOURCE_DIR}/docs/example/open_any.cpp program)
string(FIND "${readme}" "```cpp\n${program}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not show docs/example/open_any.cpp as it is")
endif()
