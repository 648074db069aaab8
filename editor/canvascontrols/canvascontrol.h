#pragma once

#include "widgets/hmictrlwidget.h"

#include <QPointer>
#include <QWidget>

// A live control on the canvas: a real child widget of the canvas that a control widget of the
// document owns through the core's CHmiControl interface. Destroying it destroys the child widget.
class CCanvasControl : public CHmiControl {
public:
    // Takes a widget that is already a child of the canvas.
    explicit CCanvasControl(QWidget* widget);
    ~CCanvasControl() override;
    CCanvasControl(const CCanvasControl&) = delete;
    CCanvasControl& operator=(const CCanvasControl&) = delete;

    HmiRect GetClientRect() const override;
    void MoveTo(const HmiRect& clientRect) override;
    void Hide() override;

    // Shows the widget's current properties (a caption, list items, columns); a control that
    // shows none has nothing to do.
    virtual void Refresh() {}

    // Null once the canvas has destroyed its children.
    QWidget* Widget() const { return m_widget; }

private:
    QPointer<QWidget> m_widget;
    // As asked for, even where the toolkit cannot follow (an inverted or a too small rectangle), so
    // that the widget does not find it out of place and move it again at every repaint.
    HmiRect m_clientRect;
};
