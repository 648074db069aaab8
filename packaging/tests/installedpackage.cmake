# Installs the build into a staging folder, builds a widget library against that installation
# alone, and has the installed kelvo-hmi load it. Run by ctest with -DBUILD_DIR, -DSOURCE_DIR,
# -DWORK_DIR, -DLIBRARY_PROJECT, -DWIDGET_SOURCE, -DGENERATOR, -DCXX_COMPILER, -DCXX_LAUNCHER
# and -DSANITIZED.
set(stage ${WORK_DIR}/stage)
set(library ${WORK_DIR}/library)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${library})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nfailed (${status}):\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
    set(errors "${errors}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${stage} --strip)

# The installed programs find their data and libraries from their own folder; a path into the
# source tree would break them once the tree is gone. (A sanitizer's instrumentation names the
# sources it was built from.)
if(NOT SANITIZED)
    file(GLOB binaries ${stage}/bin/* ${stage}/lib*/libkelvo-*.so.*)
    foreach(binary IN LISTS binaries)
        file(STRINGS ${binary} source_paths REGEX "${SOURCE_DIR}")
        if(source_paths)
            message(FATAL_ERROR "${binary} holds a path into the source tree: ${source_paths}")
        endif()
    endforeach()
endif()

# The library's source is copied out, so that nothing it includes can come from the source tree.
configure_file(${WIDGET_SOURCE} ${library}/widgets.cpp COPYONLY)
run(${CMAKE_COMMAND} -S ${LIBRARY_PROJECT} -B ${library}/build -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${stage} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER} -DWIDGET_SOURCE=${library}/widgets.cpp)
run(${CMAKE_COMMAND} --build ${library}/build)

# Loaded, the library's class saves its own properties (a custom widget would keep the file's).
file(WRITE ${library}/window.xml [[<?xml version="1.0" encoding="GB2312"?>
<hmiwidget>
<widget name="g" class="gauge"><properties></properties></widget>
</hmiwidget>
]])
run(${stage}/bin/kelvo-hmi --modules ${library}/build/modules roundtrip ${library}/window.xml ${library}/saved.xml)
file(READ ${library}/saved.xml saved)
if(errors OR NOT saved MATCHES "<property name=\"needle\" type=\"ulong\" value=\"255\"")
    message(FATAL_ERROR "The installed kelvo-hmi did not load the library:\n${errors}${saved}")
endif()
