# One helper per kind of target, so that every library, tool and test is declared alike.

# kelvo_add_library(NAME): a shared library whose sources the area folders add with
# target_sources. Its sources include each other from the folder that declares it
# ("widgets/hmiwidget.h" in core/), which is its only include root; the headers it installs
# join its HEADERS file set and keep that layout.
function(kelvo_add_library name)
    add_library(${name} SHARED)
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR})
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_compile_options(${name} PRIVATE -Wall -Wextra)
    kelvo_set_library_version(${name})
endfunction()

# The version a shared library's file carries, and the one programs linked against it ask for.
function(kelvo_set_library_version name)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${KELVO_SOVERSION})
endfunction()

# kelvo_add_executable(NAME SOURCES ... LIBS ...): a program that lands in build/bin. It includes
# from the repository root as well as from the core's.
function(kelvo_add_executable name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS})
    target_compile_options(${name} PRIVATE -Wall -Wextra)
endfunction()

# Every test draws with the same fonts, whatever the machine has installed.
set(CACHE_DIR ${PROJECT_BINARY_DIR}/fontconfig-cache)
configure_file(${PROJECT_SOURCE_DIR}/tests/support/fonts.conf.in ${PROJECT_BINARY_DIR}/tests-fonts.conf @ONLY)
set(KELVO_TEST_ENVIRONMENT "FONTCONFIG_FILE=${PROJECT_BINARY_DIR}/tests-fonts.conf")

# kelvo_add_test(NAME [GUI] SOURCES ... LIBS ... [DATA_DIR dir]): a GoogleTest program run by
# ctest. GUI gives the tests a QGuiApplication (offscreen unless a platform is set), which
# fonts need. DATA_DIR reaches the tests as the compile definition KELVO_TEST_DATA_DIR.
function(kelvo_add_test name)
    if(NOT KELVO_BUILD_TESTS)
        return()
    endif()
    cmake_parse_arguments(ARG "GUI" "DATA_DIR" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    if(ARG_GUI)
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} kelvo-gui-test-main GTest::gtest)
    else()
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main)
    endif()
    target_compile_options(${name} PRIVATE -Wall -Wextra)
    if(ARG_DATA_DIR)
        target_compile_definitions(${name} PRIVATE KELVO_TEST_DATA_DIR="${ARG_DATA_DIR}")
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT "${KELVO_TEST_ENVIRONMENT}")
endfunction()

# kelvo_add_static_library(NAME SOURCES ... LIBS ...): one area of the editor, linked into the
# editor program and its tests.
function(kelvo_add_static_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LIBS})
    target_compile_options(${name} PRIVATE -Wall -Wextra)
endfunction()

# kelvo_add_shared_editor_library(NAME SOURCES ... LIBS ...): the part of the editor that widget
# libraries link against, shared so that the editor and every library use the same registries.
function(kelvo_add_shared_editor_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LIBS})
    target_compile_options(${name} PRIVATE -Wall -Wextra)
    kelvo_set_library_version(${name})
endfunction()

# kelvo_add_qt_test(NAME SOURCES ... LIBS ...): a QtTest program run by ctest on the offscreen
# platform, so that it needs no display.
function(kelvo_add_qt_test name)
    if(NOT KELVO_BUILD_TESTS)
        return()
    endif()
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} Qt6::Test)
    target_compile_options(${name} PRIVATE -Wall -Wextra)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${PROJECT_BINARY_DIR}/runtime;${KELVO_TEST_ENVIRONMENT}")
endfunction()

# kelvo_qt_test_on_full_hd_screen(NAME): the QtTest program sees one offscreen screen of
# 1920 x 1080 instead of the platform's small default, for tests of sizes that a user sees.
function(kelvo_qt_test_on_full_hd_screen name)
    if(NOT TARGET ${name})
        return()
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/screen-1920x1080.json;XDG_RUNTIME_DIR=${PROJECT_BINARY_DIR}/runtime")
endfunction()
