#pragma once

#include <QLoggingCategory>

// The editor's diagnostics beside the core's (core/base/logcategories.h); off unless
// QT_LOGGING_RULES turns them on ("kelvo.handover.debug=true").
Q_DECLARE_LOGGING_CATEGORY(lcHandover) // kelvo.handover: the hand-over between two starts of the editor
