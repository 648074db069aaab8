#pragma once

#include "hmiwidget.h"

#include <memory>

// A live control shown on the canvas for a widget (a check box, a combo box, a list). The editor
// implements it with a real child widget whose mouse input it forwards to the canvas, so that
// the control is selected and dragged like any other widget; the core never sees the toolkit.
class CHmiControl {
public:
    virtual ~CHmiControl() = default;

    // The control's rectangle in the client coordinates of the view it sits in.
    virtual HmiRect GetClientRect() const = 0;
    // Moves and resizes the control (client coordinates) and repaints it.
    virtual void MoveTo(const HmiRect& clientRect) = 0;
    virtual void Hide() = 0;
};

// The base of widgets shown as live controls. It works without a control too (saving,
// command-line use): then it draws a still picture of the control instead.
class CHmiCtrlWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiCtrlWidget)
public:
    CHmiCtrlWidget();
    ~CHmiCtrlWidget() override;

    // Keeps the widget's control in step with the widget's rectangle, or draws the still
    // picture when there is no control.
    void Draw(CHmiDC& dc) override;
    // Moves the control to the widget's rectangle in its view's client coordinates. False when
    // it stands there already, or there is no control.
    bool PlaceControl();

    // Hands the widget the control created for it; the widget owns it from then on.
    void SetCtrlWndProc(std::unique_ptr<CHmiControl> control);
    CHmiControl* GetControl() const { return m_pControl.get(); }
    void Hide();

protected:
    // What the control looks like, for targets that have no live control (rendering to an
    // image); the base draws nothing.
    virtual void DrawWithoutControl(CHmiDC& dc);

private:
    std::unique_ptr<CHmiControl> m_pControl;
};
