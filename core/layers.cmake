# Checks that every source of the core includes only its own layer and the layers below it:
#   cmake -DCORE_DIR=<folder> -P layers.cmake
# Each folder of CORE_DIR is a layer; a quoted include either names a header of the same folder
# or starts with the folder of its layer ("base/hmitypes.h"). Tests link the whole core and the
# test support, so their folders are not checked. Fails with every include that breaks the order.

cmake_minimum_required(VERSION 3.25)

# layer:may include
set(kLayers
    "base:"
    "project:base"
    "dynamics:base project"
    "widgets:base project dynamics"
    "catalogue:base project dynamics widgets"
    "libraries:base project dynamics widgets catalogue"
    "workspace:base project dynamics widgets catalogue"
    "preview:base project dynamics widgets"
)

if(NOT IS_DIRECTORY "${CORE_DIR}")
    message(FATAL_ERROR "CORE_DIR is not a folder: '${CORE_DIR}'")
endif()

foreach(entry IN LISTS kLayers)
    string(REGEX MATCH "^[^:]+" layer "${entry}")
    string(REGEX REPLACE "^[^:]*:" "" below "${entry}")
    string(REPLACE " " ";" allowed_${layer} "${below}")
    list(APPEND layers ${layer})
endforeach()

set(faults "")
file(GLOB sources RELATIVE "${CORE_DIR}" "${CORE_DIR}/*/*.h" "${CORE_DIR}/*/*.cpp")
foreach(source IN LISTS sources)
    string(REGEX MATCH "^[^/]+" layer "${source}")
    if(NOT layer IN_LIST layers)
        list(APPEND faults "${source} lies in ${layer}/, which is no layer")
        continue()
    endif()
    file(STRINGS "${CORE_DIR}/${source}" includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line IN LISTS includes)
        string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*$" "\\1" header "${line}")
        if(NOT header MATCHES "/")
            continue() # a header of the same folder
        endif()
        string(REGEX MATCH "^[^/]+" target "${header}")
        if(NOT target STREQUAL layer AND NOT target IN_LIST allowed_${layer})
            set(may "its own folder")
            if(allowed_${layer})
                string(REPLACE ";" ", " below "${allowed_${layer}}")
                string(APPEND may " and ${below}")
            endif()
            list(APPEND faults "${source} includes ${header}, but ${layer} may include only ${may}")
        endif()
    endforeach()
endforeach()

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "Includes against the core's layer order:\n  ${text}")
endif()
