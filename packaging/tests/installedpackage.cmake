# Installs the build into a staging folder, builds the SDK example and a use of every installed
# header against that installation alone, and has the installed kelvo-hmi load the example's
# library, draw its widget and save it. Run by ctest with -DBUILD_DIR, -DSOURCE_DIR, -DWORK_DIR,
# -DEXAMPLE_DIR, -DHEADERS_PROJECT, -DREFERENCE_IMAGE, -DSAME_PIXELS, -DGENERATOR, -DCXX_COMPILER,
# -DCXX_LAUNCHER and -DSANITIZED.
set(stage ${WORK_DIR}/stage)
set(example ${WORK_DIR}/example)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nfailed (${status}):\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
    set(errors "${errors}" PARENT_SCOPE)
endfunction()

# Configures and builds a project against the staged installation only.
function(build_against_stage source binary)
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${stage}
        -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER})
    run(${CMAKE_COMMAND} --build ${binary})
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

# The example is copied out (its files, not a build folder someone left in it), so that nothing
# it includes can come from the source tree.
file(GLOB example_files LIST_DIRECTORIES false ${EXAMPLE_DIR}/*)
file(COPY ${example_files} DESTINATION ${example})
build_against_stage(${example} ${example}/build)
build_against_stage(${HEADERS_PROJECT} ${WORK_DIR}/headers)

set(kelvo_hmi ${stage}/bin/kelvo-hmi --modules ${example}/build/modules)
# Loaded, the library's class draws the tanks; a custom widget would draw nothing.
run(${kelvo_hmi} render ${example}/tank.xml ${WORK_DIR}/tank.png)
execute_process(COMMAND ${SAME_PIXELS} ${WORK_DIR}/tank.png ${REFERENCE_IMAGE}
                RESULT_VARIABLE different OUTPUT_VARIABLE difference ERROR_VARIABLE difference)
if(errors OR different)
    message(FATAL_ERROR "The installed kelvo-hmi did not draw the example as ${REFERENCE_IMAGE}:\n"
                        "${errors}${difference}")
endif()
# And saves them with every property of its own (a custom widget would keep the file's only).
run(${kelvo_hmi} roundtrip ${example}/tank.xml ${WORK_DIR}/saved.xml)
file(READ ${WORK_DIR}/saved.xml saved)
if(errors OR NOT saved MATCHES "name=\"tank1\".*<property name=\"alarmlevel\" type=\"long\" value=\"90\" />")
    message(FATAL_ERROR "The installed kelvo-hmi did not save the example's widget as its class:\n${errors}${saved}")
endif()
