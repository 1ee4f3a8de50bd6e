# How the tests of the screens are added to CTest.

include(TavloTests)

find_package(Qt6 6.4 REQUIRED COMPONENTS QuickTest Test)

# tavlo_add_quick_test(<name> QML <tst_file.qml>... [SOURCES <source>...] [LIBRARIES <target>...])
# A Qt Quick Test program over QML files of the calling folder, which import Tavlo. CTest runs each
# file by itself, as "<name>.<file>", off the screen. SOURCES and LIBRARIES are for C++ that the
# files need. Any warning from QML or from Qt fails the run.
function(tavlo_add_quick_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "QML;SOURCES;LIBRARIES")

    add_executable(${name} "${PROJECT_SOURCE_DIR}/tests/ui/quick_main.cpp" ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE
        tavlo_ui tavlo_uiplugin tavlo_warnings
        Qt6::QuickControls2 Qt6::QuickTest Qt6::Widgets
        ${arg_LIBRARIES}
    )
    target_compile_definitions(${name} PRIVATE
        TAVLO_TEST_NAME="${name}"
        TAVLO_TEST_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}"
    )

    foreach(file IN LISTS arg_QML)
        string(REGEX REPLACE "^tst_(.*)\\.qml$" "\\1" part "${file}")
        add_test(NAME ${name}.${part}
            COMMAND "${TAVLO_TEST_LAUNCHER}" $<TARGET_FILE:${name}>
                -input "${CMAKE_CURRENT_SOURCE_DIR}/${file}"
        )
        tavlo_run_off_screen(${name}.${part})
    endforeach()
endfunction()

# tavlo_add_screen_test(<name> <source>...)
# A GoogleTest program for the C++ that serves the screens, off the screen.
function(tavlo_add_screen_test name)
    tavlo_add_test(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE tavlo_ui Qt6::Test)
    tavlo_run_off_screen(${name})
endfunction()

# tavlo_run_off_screen(<test>)
# Gives a test of the screens no display, and animations that keep the clock's time.
function(tavlo_run_off_screen test)
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QSG_RENDER_LOOP=basic"
        TIMEOUT 300
    )
endfunction()
