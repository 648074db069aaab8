#pragma once

#include "base/hmitypes.h"

#include <string>
#include <vector>

class CHmiWidget;
class CTamloDoc;

// The Edit menu's commands on the selected widgets. The window widget is never deleted, cut
// or copied: it is the window itself.

// Marks the widgets deleted in a new undo step; they stay in the document until the step is
// replaced, so that Undo brings them back. Returns false when nothing could be deleted.
bool DeleteWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& widgets);

// The widgets of the document as the text of a window file, for the clipboard, in the order
// the document saves them; empty when there is nothing to copy.
std::string CopyWidgets(const CTamloDoc& document, const std::vector<CHmiWidget*>& widgets);

// Whether Delete, Cut and Copy have anything to work on: a widget other than the window.
bool HasEditableWidgets(const std::vector<CHmiWidget*>& widgets);

// How far pasted widgets stand from the widgets they were copied from.
constexpr std::int32_t kPasteOffset = 10;

// Adds the widgets of a copied text at the top of the drawing order, moved by the paste offset,
// in one undo step; a name the window already has is replaced by a new unique one. Returns the
// widgets added (none for text that holds no widget).
std::vector<CHmiWidget*> PasteWidgets(CTamloDoc& document, const std::string& text);
