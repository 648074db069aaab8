#pragma once

#include "widgets/hmiview.h"

#include <vector>

// A view scrolled by an offset (client = window - offset) that records what it was asked to
// repaint.
class FakeView : public CHmiView {
public:
    explicit FakeView(HmiPoint scroll = {}) : scroll(scroll) {}

    HmiPoint DocToClient(HmiPoint p) const override { return {p.x - scroll.x, p.y - scroll.y}; }
    HmiPoint ClientToDoc(HmiPoint p) const override { return {p.x + scroll.x, p.y + scroll.y}; }
    void InvalidateDocRect(const HmiRect& area) override { invalidated.push_back(area); }
    void InvalidateView() override { ++wholeViewInvalidations; }

    HmiPoint scroll;
    std::vector<HmiRect> invalidated;
    int wholeViewInvalidations = 0;
};
