#pragma once

#include <QLoggingCategory>

// The core's diagnostics, one category per area, for someone finding out why a library, a file
// or a project was taken as it was. Debug and info messages are off unless QT_LOGGING_RULES
// turns them on ("kelvo.libraries.debug=true", or "kelvo.*.debug=true" for all); warnings show.
Q_DECLARE_LOGGING_CATEGORY(lcLibraries) // kelvo.libraries: folders searched, each library's outcome
Q_DECLARE_LOGGING_CATEGORY(lcFile)      // kelvo.file: window files read and files written
Q_DECLARE_LOGGING_CATEGORY(lcProject)   // kelvo.project: the project's own files
Q_DECLARE_LOGGING_CATEGORY(lcPreview)   // kelvo.preview: value sets
