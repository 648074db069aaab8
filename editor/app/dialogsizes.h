#pragma once

#include "editor/extensions/projectcontext.h"

class QSettings;

// Runs each dialog at the size the user last gave a dialog of its class, kept in the settings
// under "Dialogs/CLASS/size"; a dialog the user did not resize keeps the size it chose itself.
// Without the settings (gone at the end of the run) the dialogs run as they are.
ProjectContext::DialogRunner RememberingDialogSizes(QSettings& settings, ProjectContext::DialogRunner run);
