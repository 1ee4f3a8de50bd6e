# How Tavlo's tests are added to CTest.
#
# Every test process runs under tests/isolated, in a home of its own with every XDG directory in
# it, so that no test reads or writes the user's files, nor another test's.

# Debian's own interpreter has Debian's modules.
find_program(TAVLO_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)

set(TAVLO_TEST_LAUNCHER "${PROJECT_SOURCE_DIR}/tests/isolated")

# tavlo_add_test(<name> <source>...)
# A GoogleTest program for code that needs no display. One that hangs, on a pipe say, fails.
function(tavlo_add_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE tavlo_test_support)
    add_test(NAME ${name} COMMAND "${TAVLO_TEST_LAUNCHER}" $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
