#include "logcategories.h"

Q_LOGGING_CATEGORY(lcHandover, "kelvo.handover", QtWarningMsg)
