#pragma once

#include <cstdint>
#include <vector>

class CHmiWidget;
class CTamloDoc;

// The Format menu's commands on the widgets selected on a canvas, given in selection order (the
// last one is the reference). Each command that changes geometry records the old rectangles
// as one undo step of the document, whose views repaint what changed.

// The alignment family, in the order of its consecutive command identifiers.
enum class AlignCommand {
    Left,
    CenterHorizontal,
    Right,
    Top,
    CenterVertical,
    Bottom,
    SameWidth,
    SameHeight,
    SameSize,
};

enum class SpacingDirection { LeftToRight, TopToBottom };

enum class NudgeKey { Left, Right, Up, Down };

// Aligns or sizes every selected widget after the reference, which stays where it is.
void AlignWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, AlignCommand command);
// Spreads three or more widgets evenly between the first and the last along one direction.
void SpaceWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, SpacingDirection direction);
// Scales the selected rectangles by a percentage about the top-left corner of the selection.
void ZoomWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, std::int32_t percent);
// Moves the earliest selected widget to the end of the drawing order, or just above the first
// widget (the window's background). Not undoable.
void MoveWidgetToTop(CTamloDoc& document, const std::vector<CHmiWidget*>& selection);
void MoveWidgetToBottom(CTamloDoc& document, const std::vector<CHmiWidget*>& selection);
// Moves the selection by distance pixels, or with resize set grows or shrinks its right or bottom
// edge. Returns false when there is nothing to move.
bool NudgeWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, NudgeKey key, bool resize,
                  std::int32_t distance = 1);
