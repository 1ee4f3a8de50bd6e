# Debian's packages that the project names, for CMake.

# tavlo_read_packages(<variable> <list>): one of the lists of scripts/packages.sh.
function(tavlo_read_packages variable list)
    set(file "${PROJECT_SOURCE_DIR}/scripts/packages.sh")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    file(READ "${file}" text)
    if(NOT text MATCHES "(^|\n)${list}=\\(([^)]*)\\)")
        message(FATAL_ERROR "${file} has no list ${list}")
    endif()
    string(REGEX MATCHALL "[^ \n]+" packages "${CMAKE_MATCH_2}")
    set(${variable} "${packages}" PARENT_SCOPE)
endfunction()
