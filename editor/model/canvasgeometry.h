#pragma once

#include "widgets/core/hmitypes.h"

class CHmiWidget;

// The canvas draws the window widget from its origin, wherever the window stands on the panel,
// so the tools see the window's rectangle as (0, 0, width, height). Points given to the window
// widget's own hit-testing and handle dragging are shifted by its position to match.
HmiPoint CanvasOrigin(const CHmiWidget& widget);
HmiRect CanvasRect(const CHmiWidget& widget);
// A point on the canvas in the coordinates of the widget's own rectangle.
HmiPoint ToWidgetSpace(const CHmiWidget& widget, HmiPoint canvasPoint);
