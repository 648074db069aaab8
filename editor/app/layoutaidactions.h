#pragma once

#include "editor/model/snapper.h"
#include "editor/preferences/editorpreferences.h"

class QMenu;

// The grid and snapping as the user's preferences hold them.
LayoutAids LayoutAidsOf(const CEditorPreferences::Values& values);

// Adds "Show Grid", "Snap to Grid" and "Snap to Widgets" to a menu: checkable actions that
// write the preferences and follow them when the Preferences dialog changes them.
void AddLayoutAidToggles(QMenu& menu, CEditorPreferences& preferences);
