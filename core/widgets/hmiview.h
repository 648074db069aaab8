#pragma once

#include "base/hmitypes.h"

// What a widget needs from a canvas that shows it: coordinate conversion between window
// coordinates (the panel's pixels) and the view's client area, and repainting.
class CHmiView {
public:
    virtual ~CHmiView() = default;

    virtual HmiPoint DocToClient(HmiPoint point) const = 0;
    virtual HmiPoint ClientToDoc(HmiPoint point) const = 0;

    // Repaints an area given in window coordinates (the view adds room for selection handles).
    virtual void InvalidateDocRect(const HmiRect& area) = 0;
    // Repaints the whole view without erasing its background first.
    virtual void InvalidateView() = 0;
};
