#include "logcategories.h"

Q_LOGGING_CATEGORY(lcLibraries, "kelvo.libraries", QtWarningMsg)
Q_LOGGING_CATEGORY(lcFile, "kelvo.file", QtWarningMsg)
Q_LOGGING_CATEGORY(lcProject, "kelvo.project", QtWarningMsg)
Q_LOGGING_CATEGORY(lcPreview, "kelvo.preview", QtWarningMsg)
