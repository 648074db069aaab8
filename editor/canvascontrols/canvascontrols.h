#pragma once

#include <QObject>

class CCanvasControl;
class CControlMouseForwarder;
class CHmiCtrlWidget;
class CHmiView;
class CTamloDoc;
class QWidget;

// The live controls of one canvas: a real child widget for each control widget of the document
// (check box, combo box, edit box, and the report lists of the alarm window and the history list).
// The widgets own their controls and keep them at their rectangles when they are drawn; this class
// gives new widgets their controls, shows their current properties and hides deleted ones.
class CCanvasControls : public QObject {
    Q_OBJECT
public:
    // view converts window coordinates to the canvas's client coordinates.
    CCanvasControls(QWidget& canvas, const CHmiView& view, CTamloDoc& document);
    // Takes the controls back from the widgets, which then draw pictures of them.
    ~CCanvasControls() override;

    // Brings the controls in step with the document: creates the missing ones (after loading,
    // placing, pasting), shows edited properties, and shows a control exactly while its widget
    // is not deleted (undo brings a deleted widget back). Call it whenever the document changed.
    void Sync();

    // The control of a widget when this canvas made it, else null.
    CCanvasControl* ControlOf(const CHmiCtrlWidget& widget) const;

signals:
    // The user dragged a column width of a list control; the widget has it and the document is
    // marked modified.
    void columnResized();

private:
    void CreateControl(CHmiCtrlWidget& widget);

    QWidget& m_canvas;
    const CHmiView& m_view;
    CTamloDoc& m_document;
    CControlMouseForwarder* m_forwarder; // a child of the canvas
};
