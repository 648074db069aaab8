# Builds the .deb (cpack -G DEB) and checks that it holds every part of an installation: the
# programs, the libraries, the headers and CMake package for widget library authors, the data,
# the desktop integration, the manual pages and a translation for each one in the source tree.
# Run by ctest with -DCPACK, -DCPACK_CONFIG, -DSOURCE_DIR and -DWORK_DIR.
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CPACK} -G DEB --config ${CPACK_CONFIG} -B ${WORK_DIR}
                RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
file(GLOB package ${WORK_DIR}/*.deb)
if(NOT status EQUAL 0 OR NOT package)
    message(FATAL_ERROR "cpack -G DEB failed (${status}):\n${output}")
endif()
execute_process(COMMAND dpkg-deb --contents ${package} OUTPUT_VARIABLE contents COMMAND_ERROR_IS_FATAL ANY)

set(lib "usr/lib[^ \n]*")
set(expected
    usr/bin/kelvo-hmi
    usr/bin/kelvo-hmi-editor
    "${lib}/libkelvo-core\\.so\\.[0-9.]+"
    "${lib}/libkelvo-editor-extensions\\.so\\.[0-9.]+"
    usr/include/kelvo/widgets/widgetlibrary\\.h
    usr/include/kelvo/catalogue/propertytable\\.h
    usr/include/kelvo/editor/extensions/editorextensions\\.h
    "${lib}/cmake/KelvoCore/KelvoCoreConfig\\.cmake"
    "${lib}/cmake/KelvoCore/KelvoCoreConfigVersion\\.cmake"
    "${lib}/cmake/KelvoCore/KelvoCoreTargets\\.cmake"
    "${lib}/cmake/KelvoCore/KelvoWidgetLibrary\\.cmake"
    usr/share/kelvo-hmi-editor/hmifuncs\\.xml
    usr/share/kelvo-hmi-editor/demo/main\\.xml
    usr/share/applications/org\\.kelvo\\.HmiEditor\\.desktop
    usr/share/metainfo/org\\.kelvo\\.HmiEditor\\.metainfo\\.xml
    usr/share/icons/hicolor/scalable/apps/org\\.kelvo\\.HmiEditor\\.svg
    usr/share/icons/hicolor/48x48/apps/org\\.kelvo\\.HmiEditor\\.png
    usr/share/icons/hicolor/256x256/apps/org\\.kelvo\\.HmiEditor\\.png
    "usr/share/man/man1/kelvo-hmi\\.1(\\.gz)?"
    "usr/share/man/man1/kelvo-hmi-editor\\.1(\\.gz)?"
)
# Each translation source (FILE.ts, wherever it lies outside the build folders) ships as FILE.qm.
file(GLOB_RECURSE translations RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/*.ts)
list(FILTER translations EXCLUDE REGEX "^build[^/]*/")
foreach(translation IN LISTS translations)
    get_filename_component(name ${translation} NAME_WE)
    list(APPEND expected "usr/share/kelvo-hmi-editor/translations/${name}\\.qm")
endforeach()

set(missing "")
foreach(entry IN LISTS expected)
    if(NOT contents MATCHES "\\./${entry}( |\n)")
        list(APPEND missing ${entry})
    endif()
endforeach()
if(missing)
    list(JOIN missing "\n  " missing)
    message(FATAL_ERROR "${package} lacks:\n  ${missing}\nIt holds:\n${contents}")
endif()
list(LENGTH expected count)
message(STATUS "${package} holds all ${count} expected files")
