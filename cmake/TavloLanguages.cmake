# How a program gets its languages.

find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# tavlo_add_languages(<target> <catalogue.ts>...)
# Puts catalogues into an executable of the calling folder as :/i18n/<catalogue>.qm, where
# installTranslations() looks for them.
function(tavlo_add_languages target)
    set(compiled)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_languages")
    file(MAKE_DIRECTORY "${folder}")
    foreach(catalogue IN LISTS ARGN)
        get_filename_component(name "${catalogue}" NAME_WLE)
        set(output "${folder}/${name}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND Qt6::lrelease -silent "${catalogue}" -qm "${output}"
            DEPENDS "${catalogue}"
            VERBATIM
        )
        set_source_files_properties("${output}" PROPERTIES QT_RESOURCE_ALIAS "${name}.qm")
        list(APPEND compiled "${output}")
    endforeach()
    if(compiled)
        qt_add_resources(${target} ${target}_languages PREFIX /i18n FILES ${compiled})
    endif()
endfunction()

# tavlo_update_command(<variable> <catalogue.ts>...)
# The command that makes catalogues of the texts of the screens, or brings existing ones up to date.
# A text that no screen has any more goes from them.
function(tavlo_update_command variable)
    get_target_property(folder tavlo_ui SOURCE_DIR)
    set(${variable}
        Qt6::lupdate -silent -no-obsolete -locations relative
            -I "${PROJECT_SOURCE_DIR}" "${folder}" -ts ${ARGN}
        PARENT_SCOPE
    )
endfunction()
