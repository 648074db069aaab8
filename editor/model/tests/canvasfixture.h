#pragma once

#include "editor/model/canvasselection.h"
#include "editor/model/canvastools.h"
#include "tests/support/fakeview.h"
#include "tests/support/registryscope.h"
#include "catalogue/hmiwidgetrect.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

// A canvas without a display: a document with its window widget, a view scrolled by an
// offset, a selection and a tool host that records what the tools asked of it.
struct CanvasFixture : ::testing::Test, CCanvasToolHost {
    CanvasFixture() : view({5, 7}), selection(document, view)
    {
        document.AddView(&view);
        document.OnNewDocument();
        selection.Select(nullptr, false);
    }
    ~CanvasFixture() override { CHmiWidget::CurWidgetClass = nullptr; }

    CCanvasSelection& Selection() override { return selection; }
    bool IsLocked() const override { return locked; }
    void SetMouseCapture(bool capture) override { captured = capture; }
    void SetCanvasCursor(CanvasCursor value) override { cursor = value; }
    void ShowDragFeedback(std::vector<HmiRect> rects) override { feedback = std::move(rects); }
    LayoutAids Aids() const override { return aids; }
    void ShowSnapGuides(std::vector<SnapGuide> shown) override { guides = std::move(shown); }

    CHmiWidget* AddRect(const HmiRect& rect)
    {
        HmiWidgetPtr widget(new CHmiWidgetRect);
        widget->SetWidgetRect(rect);
        CHmiWidget* added = widget.get();
        document.AddWidget(std::move(widget), true);
        return added;
    }
    CHmiWidget* Window() const { return document.GetWindowWidget(); }

    // Client points for window coordinates.
    HmiPoint Client(int x, int y) const { return view.DocToClient({x, y}); }
    void Press(int x, int y, MouseFlags flags = {}) { tools.ButtonDown(*this, Client(x, y), flags); }
    void Move(int x, int y, MouseFlags flags = {}) { tools.MouseMove(*this, Client(x, y), flags); }
    void Release(int x, int y, MouseFlags flags = {}) { tools.ButtonUp(*this, Client(x, y), flags); }
    void Drag(int x0, int y0, int x1, int y1, MouseFlags flags = {})
    {
        Press(x0, y0, flags);
        Move(x1, y1, flags);
        Release(x1, y1, flags);
    }
    void Click(int x, int y, MouseFlags flags = {}) { Drag(x, y, x, y, flags); }

    std::vector<CHmiWidget*> Selected() const { return selection.Widgets(); }

    CRegistryScope registry;
    CCanvasTools tools;
    CTamloDoc document;
    FakeView view;
    CCanvasSelection selection;
    bool locked = false;
    bool captured = false;
    CanvasCursor cursor = CanvasCursor::Arrow;
    std::vector<HmiRect> feedback;
    LayoutAids aids;
    std::vector<SnapGuide> guides;
};
