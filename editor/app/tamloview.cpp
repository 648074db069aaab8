#include "tamloview.h"

#include "canvasoverlay.h"
#include "editor/model/canvasgeometry.h"
#include "editor/model/formatcommands.h"
#include "editor/model/previewsession.h"
#include "widgets/hmipainterdc.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace {

// Room around a widget for its handles, which stand 3 pixels outside and 4 inside its corners.
constexpr int kHandleMargin = 6;
// A repaint during a drag that covers more than this part of the canvas copies the canvas drawn
// once instead of drawing it...
constexpr int kLargeRepaintDivisor = 16;
// ...unless the canvas, zoomed in on a large window, is larger than any canvas at 100 %: the copy
// would take too much memory.
constexpr std::int64_t kMaxBackdropSide = kMaxDrawnWindowExtent + CTamloView::kCanvasMargin;
constexpr std::int64_t kMaxBackdropPixels = kMaxBackdropSide * kMaxBackdropSide;
// A change of more widgets than this repaints the whole canvas: so many separate areas would
// cost more to gather than to paint.
constexpr std::size_t kWidgetsRepaintedOneByOne = 64;
// A drag that shows more outlines than this repaints the area around all of them at once.
constexpr std::size_t kOutlinesRepaintedOneByOne = 16;
// An outline at least this wide and high repaints only its edges.
constexpr int kLeastOutlineRepaintedByEdges = 100;
// The grid shows as faint dots, never closer than this many screen pixels: a finer grid shows
// every second, third... dot.
constexpr int kLeastGridDotSpacing = 4;
const QColor kGridDotColor(0x80, 0x80, 0x80, 0xA0);
const QColor kSnapGuideColor(Qt::magenta);
// How far the ends of a gap marker reach across it.
constexpr int kGapMarkerTick = 3;

QRect ToQRect(const HmiRect& rect)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    return QRect(QPoint(r.left, r.top), QPoint(r.right - 1, r.bottom - 1));
}

HmiPoint ToHmiPoint(const QPoint& point)
{
    return {point.x(), point.y()};
}

QPoint ToQPoint(HmiPoint point)
{
    return {point.x, point.y};
}

MouseFlags ToMouseFlags(Qt::KeyboardModifiers modifiers)
{
    return {modifiers.testFlag(Qt::ControlModifier), modifiers.testFlag(Qt::ShiftModifier),
            modifiers.testFlag(Qt::AltModifier)};
}

// The first multiple of step at or after value.
int FirstMultipleFrom(int value, int step)
{
    const int below = value / step * step;
    return below >= value ? below : below + step;
}

Qt::CursorShape ToCursorShape(CanvasCursor cursor)
{
    switch (cursor) {
    case CanvasCursor::Arrow:
        return Qt::ArrowCursor;
    case CanvasCursor::Cross:
        return Qt::CrossCursor;
    case CanvasCursor::SizeNWSE:
        return Qt::SizeFDiagCursor;
    case CanvasCursor::SizeNESW:
        return Qt::SizeBDiagCursor;
    case CanvasCursor::SizeNS:
        return Qt::SizeVerCursor;
    case CanvasCursor::SizeWE:
        return Qt::SizeHorCursor;
    }
    return Qt::ArrowCursor;
}

std::optional<NudgeKey> ToNudgeKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return NudgeKey::Left;
    case Qt::Key_Right:
        return NudgeKey::Right;
    case Qt::Key_Up:
        return NudgeKey::Up;
    case Qt::Key_Down:
        return NudgeKey::Down;
    default:
        return std::nullopt;
    }
}

// Sets the dots of an outline, given in canvas coordinates, in an image of white dots that
// covers the canvas from origin on: every other pixel, on a checkerboard fixed to the canvas.
void SetOutlineDots(QImage& dots, const QRect& outline, QPoint origin)
{
    const QRect local = outline.translated(-origin);
    const int parity = (origin.x() + origin.y()) & 1;
    uchar* const bits = dots.bits();
    const qsizetype stride = dots.bytesPerLine();
    const auto dot = [bits, stride](int x, int y) { reinterpret_cast<QRgb*>(bits + y * stride)[x] = 0xFFFFFFFF; };
    // Each run is held to the image first: a window file may make an outline far larger.
    const int left = std::max(local.left(), 0);
    const int right = std::min(local.right(), dots.width() - 1);
    const int top = std::max(local.top(), 0);
    const int bottom = std::min(local.bottom(), dots.height() - 1);
    for (const int y : {local.top(), local.bottom()})
        if (y >= 0 && y < dots.height())
            for (int x = left + ((left + y + parity) & 1); x <= right; x += 2)
                dot(x, y);
    for (const int x : {local.left(), local.right()})
        if (x >= 0 && x < dots.width())
            for (int y = top + ((x + top + parity) & 1); y <= bottom; y += 2)
                dot(x, y);
}

} // namespace

CTamloView::CTamloView(CTamloDoc& document, CCanvasTools& tools, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
    , m_tools(tools)
    , m_selection(document, *this)
    , m_handles(m_selection, m_mapping, kMaxBackdropPixels)
    , m_outlines(document)
    , m_overlay(new CCanvasOverlay(*this, [this](QPainter& painter, const QRegion& region) {
        PaintOverlay(painter, region);
    }))
    , m_controls(*this, *this, document)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // handle cursors while no button is down
    m_selection.SetOnChanged([this] {
        m_handles.Invalidate();
        setFocus(Qt::OtherFocusReason);
        emit selectionChanged();
    });
    m_document.AddView(this);
    m_document.AddObserver(this);
    FitToWindow();
}

CTamloView::~CTamloView()
{
    m_document.RemoveObserver(this);
    m_document.RemoveView(this);
}

void CTamloView::FitToWindow()
{
    const CHmiWidget* window = m_document.FindWindowWidget();
    const HmiRect rect = window ? CanvasRect(*window) : HmiRect{};
    const QSize size(m_mapping.ClientLength(std::clamp(rect.right, 0, kMaxDrawnWindowExtent)) + kCanvasMargin,
                     m_mapping.ClientLength(std::clamp(rect.bottom, 0, kMaxDrawnWindowExtent)) + kCanvasMargin);
    if (size != this->size())
        setFixedSize(size);
}

void CTamloView::SetZoomPercent(int percent)
{
    const int before = m_mapping.Percent();
    m_mapping.SetPercent(percent);
    if (m_mapping.Percent() == before)
        return;
    m_backdrop = QImage();
    m_handles.Invalidate();
    FitToWindow();
    m_controls.PlaceAll();
    m_overlay->update();
    emit zoomChanged(m_mapping.Percent());
}

QRect CTamloView::ToClientRect(const HmiRect& docRect) const
{
    // Room for the handles, which keep their size on screen, and for what widgets draw around
    // their rectangles, which grows with the zoom.
    const int room = std::max(kHandleMargin, m_mapping.ClientLength(kHandleMargin));
    return ToQRect(m_mapping.DocRectToClient(docRect)).adjusted(-room, -room, room, room);
}

void CTamloView::InvalidateDocRect(const HmiRect& area)
{
    if (!m_painting)
        m_overlay->update(ToClientRect(area));
}

void CTamloView::InvalidateView()
{
    if (!m_painting)
        m_overlay->update();
}

void CTamloView::DocumentChanged(const CDocumentChange& change)
{
    RepaintChanged(change);
    // The controls move once the canvas has asked for its repaint: the repaint their moves ask
    // for then joins it (see CCanvasOverlay).
    m_controls.DocumentChanged(change);
}

void CTamloView::RepaintChanged(const CDocumentChange& change)
{
    constexpr DocChange kDrawn =
        DocChange::Geometry | DocChange::Properties | DocChange::Added | DocChange::Removed | DocChange::Order;
    // The window widget is the canvas's background: a change of it changes everything drawn.
    const auto isBackground = [](const HmiWidgetChange& entry) {
        return HasAny(entry.what, kDrawn) && IsWindowWidget(*entry.widget);
    };
    m_handles.DocumentChanged(change);
    const bool background = std::any_of(change.widgets.begin(), change.widgets.end(), isBackground);
    if (background || change.Has(DocChange::Reloaded) || change.widgets.size() > kWidgetsRepaintedOneByOne ||
        (change.Has(kDrawn) && change.widgets.empty())) {
        // The kept copy of the document is redrawn where it is next shown: a drag of thousands
        // of widgets that ends here is followed by another band or drag that copies it again.
        if (!m_backdrop.isNull())
            m_staleBackdrop = rect();
        FitToWindow();
        return InvalidateView();
    }
    for (const HmiWidgetChange& entry : change.widgets) {
        if (HasAny(entry.what, DocChange::Geometry))
            RedrawDocRect(entry.rectBefore);
        if (HasAny(entry.what, kDrawn))
            RedrawDocRect(entry.widget->GetWidgetRect());
    }
}

void CTamloView::RedrawDocRect(const HmiRect& area)
{
    if (!m_backdrop.isNull())
        m_staleBackdrop += ToClientRect(area);
    InvalidateDocRect(area);
}

void CTamloView::SetMouseCapture(bool capture)
{
    // Qt keeps sending the mouse to the pressed widget until the release; an explicit grab is
    // needed only while no button is down, which the tools never ask for.
    if (!capture)
        ShowDragFeedback({});
}

void CTamloView::SetCanvasCursor(CanvasCursor cursor)
{
    setCursor(ToCursorShape(cursor));
}

void CTamloView::ShowDragFeedback(std::vector<HmiRect> clientRects)
{
    InvalidateFeedback();
    m_feedback = std::move(clientRects);
    InvalidateFeedback();
}

void CTamloView::InvalidateFeedback()
{
    if (m_feedback.size() > kOutlinesRepaintedOneByOne)
        return m_overlay->update(FeedbackArea());
    // Only the outlines change: a large widget dragged over many repaints none of them inside.
    // A small one is repainted whole, which is one area instead of four.
    for (const HmiRect& rect : m_feedback) {
        const QRect outline = ToQRect(rect);
        const int width = outline.width() + 2;
        const int height = outline.height() + 2;
        if (std::min(width, height) < kLeastOutlineRepaintedByEdges) {
            m_overlay->update(outline.adjusted(-1, -1, 1, 1));
            continue;
        }
        m_overlay->update(outline.left() - 1, outline.top() - 1, width, 3);
        m_overlay->update(outline.left() - 1, outline.bottom() - 1, width, 3);
        m_overlay->update(outline.left() - 1, outline.top() - 1, 3, height);
        m_overlay->update(outline.right() - 1, outline.top() - 1, 3, height);
    }
}

void CTamloView::SetLayoutAids(const LayoutAids& aids)
{
    const bool gridChanged = aids.showGrid != m_aids.showGrid || (aids.showGrid && aids.gridSize != m_aids.gridSize);
    m_aids = aids;
    if (gridChanged)
        m_overlay->update();
}

void CTamloView::ShowSnapGuides(std::vector<SnapGuide> guides)
{
    if (guides == m_snapGuides)
        return;
    InvalidateSnapGuides();
    m_snapGuides = std::move(guides);
    InvalidateSnapGuides();
}

QRect CTamloView::SnapGuideArea(const SnapGuide& guide) const
{
    const int room = guide.kind == SnapGuide::Kind::Gap ? kGapMarkerTick + 1 : 1;
    return QRect(ToQPoint(DocToClient(guide.from)), ToQPoint(DocToClient(guide.to)))
        .normalized()
        .adjusted(-room, -room, room, room);
}

void CTamloView::InvalidateSnapGuides()
{
    for (const SnapGuide& guide : m_snapGuides)
        m_overlay->update(SnapGuideArea(guide));
}

QRect CTamloView::FeedbackArea() const
{
    QRect area;
    for (const HmiRect& rect : m_feedback)
        area |= ToQRect(rect).adjusted(-1, -1, 1, 1);
    return area;
}

void CTamloView::paintEvent(QPaintEvent* event)
{
    const QScopedValueRollback painting(m_painting, true);
    QPainter painter(this);
    if (m_preview)
        return PaintPreview(painter, event->region());
    // When a drag shows rectangles or guides over much of the canvas, as a band over thousands
    // of widgets does, the document is drawn once and then copied, so that they follow the mouse;
    // the copy is redrawn where the document changed as far as a repaint shows it, and serves
    // every repaint, so that the selection the drag ends with shows at the cost of its handles.
    const QRect area = event->rect();
    const bool large =
        std::int64_t(area.width()) * area.height() > std::int64_t(width()) * height() / kLargeRepaintDivisor;
    if (m_backdrop.size() != size() * devicePixelRatio())
        m_backdrop = QImage();
    if (const QRegion stale = m_staleBackdrop & event->region(); !m_backdrop.isNull() && !stale.isEmpty()) {
        QPainter backdrop(&m_backdrop);
        PaintDocument(backdrop, stale);
        m_staleBackdrop -= stale;
    }
    const bool backdropFits = std::int64_t(width()) * height() <= kMaxBackdropPixels;
    if (!m_feedback.empty() && large && backdropFits && m_backdrop.isNull()) {
        m_backdrop = QImage(size() * devicePixelRatio(), QImage::Format_ARGB32_Premultiplied);
        m_backdrop.setDevicePixelRatio(devicePixelRatio());
        m_staleBackdrop = QRegion();
        QPainter backdrop(&m_backdrop);
        PaintDocument(backdrop, rect());
    }
    ClipTo(painter, event->region());
    if (m_backdrop.isNull())
        PaintDocument(painter, event->region());
    else
        CopyBackdrop(painter, event->region());
    DrawGrid(painter, event->region());
}

void CTamloView::PaintOverlay(QPainter& painter, const QRegion& region)
{
    if (m_preview)
        return;
    painter.save();
    ClipTo(painter, region);
    m_handles.Paint(painter, region);
    DrawSnapGuides(painter);
    painter.restore();
    DrawDragFeedback(painter, region.boundingRect());
}

void CTamloView::CopyBackdrop(QPainter& painter, const QRegion& region) const
{
    // Rectangle by rectangle, so that guides far apart copy only what they cover; the copy is
    // opaque and needs no blending.
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect& rect : region)
        painter.drawImage(rect, m_backdrop, rect);
    painter.restore();
}

void CTamloView::ClipTo(QPainter& painter, const QRegion& region)
{
    if (region.rectCount() == 1)
        painter.setClipRect(region.boundingRect()); // the painter's fast way
    else
        painter.setClipRegion(region);
}

void CTamloView::PaintDocument(QPainter& painter, const QRegion& region) const
{
    PaintAsWhole(painter, region, [this](QPainter& target, const QRegion& area, const QRect& device) {
        DrawDocument(target, area, device);
    });
}

void CTamloView::PaintAsWhole(QPainter& painter, const QRegion& region, const RegionPaint& paint) const
{
    const QRect device(0, 0, painter.device()->width(), painter.device()->height());
    if (m_mapping.Percent() == 100 || region.isEmpty())
        return paint(painter, region, device);
    // Zoomed, the painter sets the first row and column of a clip a little otherwise than the
    // same pixels further in. The region is painted a pixel further up and left, in a layer
    // whose own first row and column lie there too, and only the region is laid down.
    const QRegion grown =
        (region + region.translated(-1, 0) + region.translated(0, -1) + region.translated(-1, -1)) & rect();
    if (grown == region) // it begins at the canvas's own first row and column, as a whole repaint does
        return paint(painter, region, device);
    const QRect bounds = grown.boundingRect();
    QImage layer(bounds.size() * devicePixelRatio(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull())
        return paint(painter, region, device); // out of memory: a pixel off is the lesser harm
    layer.setDevicePixelRatio(devicePixelRatio());
    QPainter layerPainter(&layer);
    layerPainter.translate(-bounds.topLeft());
    paint(layerPainter, grown, device.translated(-bounds.topLeft() * devicePixelRatio()));
    layerPainter.end();
    painter.save();
    ClipTo(painter, region);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(bounds.topLeft(), layer);
    painter.restore();
}

void CTamloView::DrawDocument(QPainter& painter, const QRegion& region, const QRect& device) const
{
    // Only the region to repaint is drawn: the drawing target takes the clip as what it shows,
    // and leaves out the widgets whose room lies wholly outside it.
    painter.save();
    ClipTo(painter, region);
    painter.fillRect(region.boundingRect(), palette().color(QPalette::Dark));
    std::vector<HmiRect> areas;
    for (const QRect& rect : region) {
        const HmiRect client{rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1};
        areas.push_back(m_mapping.ClientRectToDoc(client).Inflated(kHandleMargin, kHandleMargin));
    }
    painter.save();
    if (m_mapping.Percent() != 100)
        painter.scale(m_mapping.Scale(), m_mapping.Scale());
    // Kept drawings are pixels at 100 %: the drawing target paints from them only where the
    // painter maps whole pixels, so a zoomed canvas draws afresh.
    CHmiPainterDC dc(painter, &m_drawings, device);
    DrawWindow(m_document, dc, areas);
    painter.restore();
    m_outlines.Paint(painter, m_mapping, areas);
    painter.restore();
}

void CTamloView::DrawGrid(QPainter& painter, const QRegion& region) const
{
    const CHmiWidget* window = m_document.FindWindowWidget();
    if (!m_aids.showGrid || !window)
        return;
    // Dots at the grid's crossings in window coordinates, seen through the view's mapping.
    constexpr int kStepsMeasured = 100; // enough for a fraction of a pixel per step
    const int measured = DocToClient({kStepsMeasured * m_aids.gridSize, 0}).x - DocToClient({0, 0}).x;
    const double screenPerGridStep = std::max(measured, 1) / double(kStepsMeasured);
    const int every = std::max(1, int(std::ceil(kLeastGridDotSpacing / screenPerGridStep)));
    const int step = m_aids.gridSize * every;
    const HmiRect canvas = CanvasRect(*window).Normalized();
    QPolygon dots;
    for (const QRect& exposed : region) {
        const HmiPoint from = ClientToDoc(ToHmiPoint(exposed.topLeft()));
        const HmiPoint to = ClientToDoc(ToHmiPoint(exposed.bottomRight()));
        const int right = std::min(to.x, canvas.right - 1);
        const int bottom = std::min(to.y, canvas.bottom - 1);
        for (int y = FirstMultipleFrom(std::max(from.y, canvas.top), step); y <= bottom; y += step)
            for (int x = FirstMultipleFrom(std::max(from.x, canvas.left), step); x <= right; x += step)
                dots.append(ToQPoint(DocToClient({x, y})));
    }
    painter.setPen(QPen(kGridDotColor, 0));
    painter.drawPoints(dots);
}

void CTamloView::DrawSnapGuides(QPainter& painter) const
{
    painter.setPen(QPen(kSnapGuideColor, 0));
    for (const SnapGuide& guide : m_snapGuides) {
        const QPoint from = ToQPoint(DocToClient(guide.from));
        const QPoint to = ToQPoint(DocToClient(guide.to));
        painter.drawLine(from, to);
        if (guide.kind != SnapGuide::Kind::Gap)
            continue;
        const QPoint across = from.y() == to.y() ? QPoint(0, kGapMarkerTick) : QPoint(kGapMarkerTick, 0);
        painter.drawLine(from - across, from + across);
        painter.drawLine(to - across, to + across);
    }
}

void CTamloView::DrawDragFeedback(QPainter& painter, const QRect& exposed) const
{
    // Focus rectangles: dotted outlines that show on any background. The dots are set in an
    // image of their own and inverted onto the canvas at once, which outlines thousands of
    // widgets far faster than a dotted pen strokes them. The image is kept, as a drag shows the
    // outlines again at every mouse move: a new one would cost more than setting the dots.
    const QRect area = FeedbackArea() & exposed;
    if (area.isEmpty())
        return;
    if (m_outlineDots.width() < area.width() || m_outlineDots.height() < area.height())
        m_outlineDots = QImage(area.size().expandedTo(m_outlineDots.size()), QImage::Format_ARGB32_Premultiplied);
    QImage dots(m_outlineDots.bits(), area.width(), area.height(), m_outlineDots.bytesPerLine(),
                m_outlineDots.format());
    dots.fill(Qt::transparent);
    for (const HmiRect& rect : m_feedback) {
        const HmiRect r = rect.Normalized();
        if (r.Width() > 0 && r.Height() > 0)
            SetOutlineDots(dots, ToQRect(r), area.topLeft());
    }
    painter.save();
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.drawImage(area.topLeft(), dots);
    painter.restore();
}

void CTamloView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    if (m_preview)
        return emit previewClicked(ToQPoint(ClientToDoc(ToHmiPoint(event->position().toPoint()))));
    m_tools.ButtonDown(*this, ToHmiPoint(event->position().toPoint()), ToMouseFlags(event->modifiers()));
}

void CTamloView::mouseMoveEvent(QMouseEvent* event)
{
    emit cursorMoved(ToQPoint(ClientToDoc(ToHmiPoint(event->position().toPoint()))));
    if (m_preview)
        return;
    m_tools.MouseMove(*this, ToHmiPoint(event->position().toPoint()), ToMouseFlags(event->modifiers()));
}

void CTamloView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_preview)
        return QWidget::mouseReleaseEvent(event);
    const bool wasDragging = m_tools.IsDragging();
    m_tools.ButtonUp(*this, ToHmiPoint(event->position().toPoint()), ToMouseFlags(event->modifiers()));
    if (wasDragging)
        emit commandEnded();
}

void CTamloView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_preview)
        return QWidget::mouseDoubleClickEvent(event);
    m_tools.DoubleClick(*this, ToHmiPoint(event->position().toPoint()), ToMouseFlags(event->modifiers()));
}

void CTamloView::keyPressEvent(QKeyEvent* event)
{
    if (m_locked || m_preview)
        return event->accept(); // a locked layout ignores every key, even for scrolling
    const std::optional<NudgeKey> key = ToNudgeKey(event->key());
    const bool resize = event->modifiers().testFlag(Qt::ShiftModifier);
    const int step = event->modifiers().testFlag(Qt::ControlModifier) ? m_aids.gridSize : 1;
    if (key && NudgeWidgets(m_document, m_selection.Widgets(), *key, resize, step))
        return emit commandEnded();
    QWidget::keyPressEvent(event);
}

void CTamloView::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_contextMenu && !m_preview)
        m_contextMenu->popup(event->globalPos());
}

void CTamloView::SetPreview(const CPreviewSession* preview)
{
    m_tools.Cancel(*this); // a drag in progress ends before the canvas turns read-only
    m_preview = preview;
    m_controls.SetHidden(preview != nullptr);
    m_overlay->update();
}

void CTamloView::InvalidatePreview(std::span<const HmiRect> areas)
{
    for (const HmiRect& area : areas)
        InvalidateDocRect(area);
}

void CTamloView::PaintPreview(QPainter& painter, const QRegion& region) const
{
    PaintAsWhole(painter, region, [this](QPainter& target, const QRegion& area, const QRect& device) {
        DrawPreview(target, area, device);
    });
}

void CTamloView::DrawPreview(QPainter& painter, const QRegion& region, const QRect& device) const
{
    ClipTo(painter, region);
    painter.fillRect(region.boundingRect(), palette().color(QPalette::Dark));
    painter.save();
    if (m_mapping.Percent() != 100)
        painter.scale(m_mapping.Scale(), m_mapping.Scale());
    CHmiPainterDC dc(painter, nullptr, device);
    m_preview->Draw(dc);
    painter.restore();
    painter.setPen(QPen(Qt::red, 2, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    for (const BindingProblem& problem : m_preview->Scene().Problems())
        painter.drawRect(ToQRect(m_mapping.DocRectToClient(problem.area)).adjusted(-1, -1, 1, 1));
}
