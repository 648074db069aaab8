# Where an installation puts each part, and how the installed programs find the rest of it from
# their own folder, so that a package can be unpacked under any prefix.
include(GNUInstallDirs)

# The programs' data (the demo project, hmifuncs.xml) and the CMake package of the core.
set(KELVO_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/kelvo-hmi-editor)
set(KELVO_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/KelvoCore)
set(KELVO_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/kelvo)

file(RELATIVE_PATH KELVO_DATA_FROM_PROGRAM ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/kelvo-hmi-editor)
# Where installed widget libraries go, and where the programs look for them.
set(KELVO_INSTALL_MODULESDIR ${CMAKE_INSTALL_LIBDIR}/kelvo-hmi-editor/modules)
file(RELATIVE_PATH KELVO_MODULES_FROM_PROGRAM ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${KELVO_INSTALL_MODULESDIR})
file(RELATIVE_PATH kelvo_libdir_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN/${kelvo_libdir_from_program}")

# Up to 1.0 every minor version may change the core's binary interface.
set(KELVO_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# __FILE__ names sources from the repository root, so that no program carries the path of the
# tree it was built from.
add_compile_options(-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
