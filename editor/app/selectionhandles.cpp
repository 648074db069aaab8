#include "selectionhandles.h"

#include "editor/model/canvasgeometry.h"
#include "editor/model/canvasmapping.h"
#include "editor/model/canvasselection.h"
#include "widgets/hmipainterdc.h"
#include "widgets/hmiwidget.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>

namespace {

// A selection of more widgets than this keeps its handles in an image: fewer are drawn faster
// than a whole canvas's image is laid over it.
constexpr std::size_t kWidgetsDrawnDirectly = 64;
// Changes after which the handles are drawn anew, and those that may only move them.
constexpr DocChange kHandlesRedrawnAfter =
    DocChange::Properties | DocChange::Added | DocChange::Removed | DocChange::Order | DocChange::Reloaded;
constexpr DocChange kHandlesMovedBy = DocChange::Geometry;
// The image reaches this far beyond the canvas's edges, so that the squares of widgets at an
// edge, which reach out of the canvas, are whole in it, and move in with a step of the widgets.
constexpr int kImageMargin = 16;

// The painter's drawing target, which sets the squares of the handles straight into the pixels
// of the image the painter paints on, where the painter maps whole pixels: a square is then two
// runs of opaque pixels per row, which is what the painter would set, a good deal faster.
class CHandleDC : public CHmiPainterDC {
public:
    CHandleDC(QPainter& painter, QImage* image) : CHmiPainterDC(painter), m_bounds(image ? image->rect() : QRect())
    {
        if (image && PaintsWholeDevicePixels() && !painter.hasClipping()) {
            m_bits = image->bits();
            m_stride = image->bytesPerLine();
            const QTransform transform = painter.combinedTransform();
            m_offset = QPoint(int(transform.dx()), int(transform.dy()));
        }
    }

    void FillSolidRect(const HmiRect& rect, HmiColor color) override
    {
        if (!m_bits) {
            m_drawn = m_bounds;
            return CHmiPainterDC::FillSolidRect(rect, color);
        }
        const HmiRect r = rect.ForDrawing().Normalized();
        const QRect square = QRect(r.left, r.top, r.Width(), r.Height()).translated(m_offset);
        m_drawn |= square;
        const QRect area = square & m_bounds;
        const QRgb pixel = qRgb(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
        for (int y = area.top(); y <= area.bottom(); ++y) {
            QRgb* const row = reinterpret_cast<QRgb*>(m_bits + y * m_stride);
            std::fill(row + area.left(), row + area.right() + 1, pixel);
        }
    }

    // What the squares cover in the image's pixels, unclipped; the whole image where the
    // painter filled them.
    QRect Drawn() const { return m_drawn; }

private:
    uchar* m_bits = nullptr; // the image's pixels; null: filled through the painter
    qsizetype m_stride = 0;
    QRect m_bounds;
    QPoint m_offset;
    QRect m_drawn;
};

} // namespace

CSelectionHandles::CSelectionHandles(const CCanvasSelection& selection, const CCanvasMapping& mapping,
                                     std::int64_t maxImagePixels)
    : m_selection(selection), m_mapping(mapping), m_maxImagePixels(maxImagePixels)
{
}

void CSelectionHandles::Paint(QPainter& painter, const QRegion& region)
{
    const QPaintDevice& device = *painter.device();
    const QSize size(device.width(), device.height());
    const bool keep = m_selection.Widgets().size() > kWidgetsDrawnDirectly && device.devicePixelRatio() == 1.0 &&
                      std::int64_t(size.width()) * size.height() <= m_maxImagePixels;
    const QSize imageSize = size.grownBy({kImageMargin, kImageMargin, kImageMargin, kImageMargin});
    if (!keep) {
        if (m_image.size() != imageSize)
            m_image = QImage();
        Draw(painter, nullptr);
        return;
    }
    if (m_image.size() != imageSize) {
        m_image = QImage(imageSize, QImage::Format_ARGB32_Premultiplied);
        m_upToDate = false;
    }
    if (!m_upToDate) {
        m_image.fill(Qt::transparent);
        QPainter imagePainter(&m_image);
        imagePainter.translate(kImageMargin, kImageMargin);
        m_drawn = Draw(imagePainter, &m_image);
        m_shift = QPoint(kImageMargin, kImageMargin);
        m_upToDate = true;
    }
    for (const QRect& rect : region)
        painter.drawImage(rect, m_image, rect.translated(m_shift));
}

void CSelectionHandles::DocumentChanged(const CDocumentChange& change)
{
    if (!change.Has(kHandlesMovedBy | kHandlesRedrawnAfter) || !m_upToDate)
        return;
    const std::optional<QPoint> step = CommonStep(change);
    // A square that stood out of the image was drawn only in part, and one that would leave it
    // could not come back.
    const QRect image = m_image.rect();
    if (!step || !image.contains(m_drawn) || !image.contains(m_drawn.translated(*step)))
        return Invalidate();
    m_drawn.translate(*step);
    m_shift -= *step;
}

std::optional<QPoint> CSelectionHandles::CommonStep(const CDocumentChange& change) const
{
    const std::vector<CHmiWidget*>& selected = m_selection.Widgets();
    if (m_mapping.Percent() != 100 || change.Has(kHandlesRedrawnAfter) ||
        change.widgets.size() != selected.size())
        return std::nullopt;
    std::optional<HmiPoint> step;
    for (const HmiWidgetChange& entry : change.widgets) {
        const HmiRect& before = entry.rectBefore;
        const HmiRect& after = entry.widget->GetWidgetRect();
        const HmiPoint moved{after.left - before.left, after.top - before.top};
        // A widget that converts through another view is drawn at that view's zoom. (The window
        // widget, whose handles stay at the canvas's origin, is never among many selected.)
        if (!m_selection.IsSelected(entry.widget) || entry.widget->m_pView != &m_selection.View() ||
            after.right - before.right != moved.x ||
            after.bottom - before.bottom != moved.y || (step && *step != moved))
            return std::nullopt;
        step = moved;
    }
    if (!step)
        return std::nullopt;
    return QPoint(step->x, step->y); // at 100 % a window step is the same step in client pixels
}

QRect CSelectionHandles::Draw(QPainter& painter, QImage* image) const
{
    const std::vector<CHmiWidget*>& widgets = m_selection.Widgets();
    CHandleDC canvasDC(painter, image); // one for the many widgets that draw where they stand
    QRect drawn;
    for (CHmiWidget* widget : widgets) {
        const TrackerState state = widget == widgets.back() ? TrackerState::active : TrackerState::selected;
        // The window widget draws at the canvas origin, wherever it stands on the panel.
        const HmiPoint origin = CanvasOrigin(*widget);
        if (origin == HmiPoint{}) {
            widget->DrawTracker(canvasDC, state);
            continue;
        }
        const HmiPoint shift = m_mapping.DocToClient(origin);
        painter.save();
        painter.translate(-double(shift.x), -double(shift.y));
        CHandleDC dc(painter, image);
        widget->DrawTracker(dc, state);
        drawn |= dc.Drawn();
        painter.restore();
    }
    return drawn | canvasDC.Drawn();
}
