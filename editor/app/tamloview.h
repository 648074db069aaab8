#pragma once

#include "editor/canvascontrols/canvascontrols.h"
#include "editor/model/canvasselection.h"
#include "editor/model/canvastools.h"
#include "widgets/hmiview.h"

#include <QImage>
#include <QWidget>

#include <vector>

class CTamloDoc;
class QMenu;

// The canvas of one HMI window: draws the document and the selection trackers, and hands the
// mouse to the current canvas tool and the arrow keys to the nudge command. Client coordinates
// are window coordinates, because the canvas is as large as the window and scrolls as a whole.
class CTamloView : public QWidget, public CHmiView, public CCanvasToolHost {
    Q_OBJECT
public:
    explicit CTamloView(CTamloDoc& document, QWidget* parent = nullptr);
    ~CTamloView() override;

    CTamloDoc& Document() const { return m_document; }

    // CHmiView
    HmiPoint DocToClient(HmiPoint point) const override { return point; }
    HmiPoint ClientToDoc(HmiPoint point) const override { return point; }
    void InvalidateDocRect(const HmiRect& area) override;
    // Also brings the live controls in step with the document, which may have changed as a whole
    // (loaded, pasted into, undone, edited in the property pane).
    void InvalidateView() override;
    void WidgetRemoved(CHmiWidget* widget) override;

    // CCanvasToolHost
    CCanvasSelection& Selection() override { return m_selection; }
    bool IsLocked() const override { return m_locked; }
    void SetMouseCapture(bool capture) override;
    void SetCanvasCursor(CanvasCursor cursor) override;
    void ShowDragFeedback(std::vector<HmiRect> clientRects) override;

    void SetLocked(bool locked) { m_locked = locked; }
    const CCanvasControls& Controls() const { return m_controls; }
    // The menu the canvas pops up on a right click; the main frame provides it.
    void SetContextMenu(QMenu* menu) { m_contextMenu = menu; }
    // Grows or shrinks the canvas to the window widget's size.
    void FitToWindow();

signals:
    // Widgets joined or left the selection.
    void selectionChanged();
    // The mouse or the keyboard changed the document (a column width dragged on a list control too).
    void documentEdited();
    // The mouse stands over this point of the window.
    void cursorMoved(const QPoint& point);
    // The document is about to destroy a widget; whoever shows it must let go.
    void widgetDestroyed(CHmiWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void PaintCanvas(QPainter& painter, const QRect& area) const;
    void DrawTrackers(QPainter& painter) const;
    void DrawDragFeedback(QPainter& painter) const;
    QRect FeedbackArea() const;

    CTamloDoc& m_document;
    CCanvasSelection m_selection;
    bool m_locked = false;
    std::vector<HmiRect> m_feedback;
    QImage m_dragBackdrop; // the canvas as it stood when the drag began
    QMenu* m_contextMenu = nullptr;
    CCanvasControls m_controls; // last: it hands the controls back before the canvas goes
};
