#pragma once

#include "designoutlines.h"
#include "selectionhandles.h"

#include "editor/canvascontrols/canvascontrols.h"
#include "editor/model/canvasmapping.h"
#include "editor/model/canvasselection.h"
#include "editor/model/canvastools.h"
#include "widgets/documentchange.h"
#include "widgets/hmipainterdc.h"
#include "widgets/hmiview.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <functional>
#include <span>
#include <vector>

class CCanvasOverlay;
class CPreviewSession;
class CTamloDoc;
class QMenu;

// The canvas of one HMI window: draws the document and the selection trackers, and hands the
// mouse to the current canvas tool and the arrow keys to the nudge command. The canvas is as
// large as the window at the view's zoom and scrolls as a whole: client coordinates are window
// coordinates through the zoom's mapping. It repaints only where the document changed, and
// painting never asks for another repaint. The handles and the drag's outlines are drawn on a
// layer above the live controls.
class CTamloView : public QWidget, public CHmiView, public CCanvasToolHost, public CDocumentObserver {
    Q_OBJECT
public:
    // Empty canvas right and below the window, so that the window's own handles can be grabbed.
    static constexpr int kCanvasMargin = 8;

    // tools: the mouse tools, shared by every canvas of the editor.
    CTamloView(CTamloDoc& document, CCanvasTools& tools, QWidget* parent = nullptr);
    ~CTamloView() override;

    CTamloDoc& Document() const { return m_document; }

    // CHmiView
    HmiPoint DocToClient(HmiPoint point) const override { return m_mapping.DocToClient(point); }
    HmiPoint ClientToDoc(HmiPoint point) const override { return m_mapping.ClientToDoc(point); }
    // Both are ignored while the canvas paints: what a widget finds out of place then is in
    // place by the time the canvas has painted.
    void InvalidateDocRect(const HmiRect& area) override;
    void InvalidateView() override;

    // CDocumentObserver: repaints where changed widgets stood and stand, and the whole canvas
    // when the window widget, the background, changed; then brings the live controls in step.
    void DocumentChanged(const CDocumentChange& change) override;

    // CCanvasToolHost
    CCanvasSelection& Selection() override { return m_selection; }
    bool IsLocked() const override { return m_locked; }
    void SetMouseCapture(bool capture) override;
    void SetCanvasCursor(CanvasCursor cursor) override;
    void ShowDragFeedback(std::vector<HmiRect> clientRects) override;
    LayoutAids Aids() const override { return m_aids; }
    void ShowSnapGuides(std::vector<SnapGuide> guides) override;

    // The grid to show and what drags snap to; Ctrl+arrow keys move by one grid step.
    void SetLayoutAids(const LayoutAids& aids);

    // The view zoom: the canvas, its controls and its handles follow; the document does not.
    const CCanvasMapping& Mapping() const { return m_mapping; }
    void SetZoomPercent(int percent);

    void SetLocked(bool locked) { m_locked = locked; }
    const CCanvasControls& Controls() const { return m_controls; }
    // The menu the canvas pops up on a right click; the main frame provides it.
    void SetContextMenu(QMenu* menu) { m_contextMenu = menu; }

    // Shows a running preview of the document instead of the document, or the document again
    // (null). While it shows one the canvas is read-only: no mouse tools, keys, live controls,
    // trackers or context menu; a click is told as previewClicked instead.
    void SetPreview(const CPreviewSession* preview);
    const CPreviewSession* Preview() const { return m_preview; }
    // Repaints where the preview's drawing changed.
    void InvalidatePreview(std::span<const HmiRect> areas);

signals:
    // Widgets joined or left the selection.
    void selectionChanged();
    // A drag or a key has ended its command: the undo step and the canvas tool may have changed.
    void commandEnded();
    // The mouse stands over this point of the window.
    void cursorMoved(const QPoint& point);
    void zoomChanged(int percent);
    // The left button went down at this point of the window while the canvas shows a preview.
    void previewClicked(const QPoint& point);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // Grows or shrinks the canvas to the window widget's size at the zoom.
    void FitToWindow();
    void RepaintChanged(const CDocumentChange& change);
    QRect ToClientRect(const HmiRect& docRect) const;
    static void ClipTo(QPainter& painter, const QRegion& region);
    void CopyBackdrop(QPainter& painter, const QRegion& region) const;
    // Paints the region on a device of which the painter may paint only a part, a layer: device
    // is then the whole device in the layer's pixels.
    using RegionPaint = std::function<void(QPainter& painter, const QRegion& region, const QRect& device)>;
    // The region as a repaint of the whole canvas shows it, also when zoomed.
    void PaintAsWhole(QPainter& painter, const QRegion& region, const RegionPaint& paint) const;
    // The window's widgets in the region, without the selection's handles.
    void PaintDocument(QPainter& painter, const QRegion& region) const;
    void DrawDocument(QPainter& painter, const QRegion& region, const QRect& device) const;
    // On the overlay: the handles and the drag's outlines over the controls.
    void PaintOverlay(QPainter& painter, const QRegion& region);
    // The grid's dots that fall in the region, inside the window.
    void DrawGrid(QPainter& painter, const QRegion& region) const;
    void DrawSnapGuides(QPainter& painter) const;
    QRect SnapGuideArea(const SnapGuide& guide) const;
    void InvalidateSnapGuides();
    // Repaints an area whose drawing changed, and redraws the kept copy of the document there
    // before its next use.
    void RedrawDocRect(const HmiRect& area);
    // The preview's widgets in the region, with the widgets whose bindings fail outlined.
    void PaintPreview(QPainter& painter, const QRegion& region) const;
    void DrawPreview(QPainter& painter, const QRegion& region, const QRect& device) const;
    // The drag's focus rectangles that meet the exposed area.
    void DrawDragFeedback(QPainter& painter, const QRect& exposed) const;
    QRect FeedbackArea() const;
    // Repaints where the drag's focus rectangles are.
    void InvalidateFeedback();

    CTamloDoc& m_document;
    CCanvasTools& m_tools;
    CCanvasSelection m_selection;
    bool m_locked = false;
    CCanvasMapping m_mapping;
    CSelectionHandles m_handles;
    std::vector<HmiRect> m_feedback;
    LayoutAids m_aids;
    std::vector<SnapGuide> m_snapGuides; // in window coordinates
    QImage m_backdrop;       // the document drawn once for a large drag, kept
    QRegion m_staleBackdrop; // where the document changed and the backdrop is not redrawn yet
    mutable QImage m_outlineDots; // where the drag's outlines are set, kept from paint to paint
    // Widgets' drawings kept from paint to paint; a drawing is found by what it is drawn from, so
    // an edit needs no clearing: the edited widget's new drawing is kept beside its old one.
    mutable CHmiDrawingCache m_drawings;
    QMenu* m_contextMenu = nullptr;
    bool m_painting = false;
    const CPreviewSession* m_preview = nullptr;
    mutable CDesignOutlines m_outlines; // what it learns of the widgets while painting is kept
    CCanvasOverlay* m_overlay; // a child, of which the canvas asks every repaint
    CCanvasControls m_controls; // last: it hands the controls back before the canvas goes
};
