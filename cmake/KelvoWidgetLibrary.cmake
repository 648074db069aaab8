# kelvo_add_widget_library(NAME SOURCES ... [FOLDER dir] [LIBS ...]): a widget library, NAME.so,
# as the programs load it from a modules folder; FOLDER is where the build puts it (by default
# the build's library folder). LIBS adds Kelvo::editor-extensions for a library that extends the
# editor too. The same file serves this source tree and the installed CMake package, so a
# library built elsewhere gets the flags the built-in test libraries get.
function(kelvo_add_widget_library name)
    cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;LIBS" ${ARGN})
    add_library(${name} MODULE ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Kelvo::core ${ARG_LIBS})
    target_compile_options(${name} PRIVATE -Wall -Wextra)
    set_target_properties(${name} PROPERTIES PREFIX "")
    if(ARG_FOLDER)
        set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${ARG_FOLDER})
    endif()
endfunction()
