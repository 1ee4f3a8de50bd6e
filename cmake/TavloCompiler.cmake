# What every target of Tavlo is compiled with, and where the build puts its results.

include(CMakeDependentOption)

# As a subdirectory of another project, Tavlo leaves that project's tests and output alone.
cmake_dependent_option(TAVLO_BUILD_TESTS "Build Tavlo's tests" ON "BUILD_TESTING;PROJECT_IS_TOP_LEVEL" OFF)
if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Carries the warnings to the targets that link it, and to no one outside. Shadowed names are left
# to the core's own options: the code that Qt generates from QML has some.
add_library(tavlo_warnings INTERFACE)
target_compile_options(tavlo_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${TAVLO_WARNINGS_AS_ERRORS}>:-Werror>
)
