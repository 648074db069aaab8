#pragma once

#include "widgets/documentchange.h"

class CCanvasControl;
class CControlMouseForwarder;
class CHmiCtrlWidget;
class CHmiView;
class CTamloDoc;
class QWidget;

// The live controls of one canvas: a real child widget for each control widget of the document
// (check box, combo box, edit box, and the report lists of the alarm window and the history list).
// The widgets own their controls; this class gives new widgets their controls and, told each
// change of the document by its canvas, keeps exactly the controls of changed widgets in step:
// it moves them, shows their edited properties, and hides those of widgets that left the window.
class CCanvasControls : public CDocumentObserver {
public:
    // view converts window coordinates to the canvas's client coordinates.
    CCanvasControls(QWidget& canvas, const CHmiView& view, CTamloDoc& document);
    // Takes the controls back from the widgets, which then draw pictures of them.
    ~CCanvasControls() override;
    CCanvasControls(const CCanvasControls&) = delete;
    CCanvasControls& operator=(const CCanvasControls&) = delete;

    // The control of a widget when this canvas made it, else null.
    CCanvasControl* ControlOf(const CHmiCtrlWidget& widget) const;

    // The canvas tells each change after it has asked for its own repaint, so that the controls
    // that move join that repaint.
    void DocumentChanged(const CDocumentChange& change) override;
    // Hides every control while the canvas shows something else than the document, and shows
    // those of the window's widgets again.
    void SetHidden(bool hidden);
    // Moves every control to its widget's rectangle, after the view's mapping changed.
    void PlaceAll();

private:
    // Brings every control in step with the document, as after a load.
    void Sync();
    // Brings the control of one widget in step with what changed about it.
    void Update(CHmiCtrlWidget& widget, DocChange what);
    void CreateControl(CHmiCtrlWidget& widget);

    QWidget& m_canvas;
    const CHmiView& m_view;
    CTamloDoc& m_document;
    CControlMouseForwarder* m_forwarder; // a child of the canvas
};
