# Fails when a message of the .ts file TS_FILE is unfinished, or when lupdate finds a text in
# the sources that the file lacks. lupdate runs on a copy in WORK_DIR, so that the file in the
# tree stays as it is; a text it adds to the copy is unfinished too.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
cmake_path(GET TS_FILE FILENAME ts_name)
set(copy ${WORK_DIR}/${ts_name})
file(COPY_FILE ${TS_FILE} ${copy})
execute_process(COMMAND ${LUPDATE} -silent ${OPTIONS} @${SOURCE_LIST} -ts ${copy}
    RESULT_VARIABLE status ERROR_VARIABLE errors)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "lupdate failed (${status}):\n${errors}")
endif()

file(READ ${copy} text)
string(REGEX MATCHALL "<translation type=\"unfinished\"" unfinished "${text}")
list(LENGTH unfinished unfinished_count)
if(unfinished_count GREATER 0)
    # The source texts of the unfinished messages, for the translator.
    string(REGEX MATCHALL "<source>[^<]*</source>[ \n]*<translation type=\"unfinished\"" missing "${text}")
    list(TRANSFORM missing REPLACE "<source>([^<]*)</source>.*" "    \\1")
    list(JOIN missing "\n" missing)
    message(FATAL_ERROR "${ts_name}: ${unfinished_count} texts lack a translation; update the file with the "
                        "target kelvo-hmi-editor_lupdate and translate them:\n${missing}")
endif()
string(REGEX MATCHALL "<message" messages "${text}")
list(LENGTH messages message_count)
message(STATUS "${ts_name}: all ${message_count} texts are translated")
