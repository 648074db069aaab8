#include "designoutlines.h"

#include "toolboxicons.h"

#include "editor/model/canvasmapping.h"
#include "widgets/hmictrlwidget.h"
#include "widgets/hmidc.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"

#include <QPainter>

#include <algorithm>
#include <cstdint>

namespace {

// The side of the class's icon, or of the box that holds its key's initial, in screen pixels.
constexpr int kGlyphSize = 16;
constexpr double kIconOpacity = 0.6;
const QColor kOutlineColor(0, 0, 0, 110);
// The outline's dashes: so many inked pixels in every period.
constexpr int kDashPeriod = 6;
constexpr int kDashLength = 4;

// A drawing target that paints nothing and notes whether anything drawn would have shown.
class CInkProbeDC : public CHmiStateDC {
public:
    bool Inked() const { return m_inked; }

    void LineTo(HmiPoint point) override
    {
        Note(m_pen.style != HmiPenStyle::Null && point != m_position);
        m_position = point;
    }
    void Rectangle(const HmiRect&) override { NoteShape(); }
    void Ellipse(const HmiRect&) override { NoteShape(); }
    void Polygon(std::span<const HmiPoint>) override { NoteShape(); }
    void FillSolidRect(const HmiRect& rect, HmiColor) override
    {
        const HmiRect r = rect.Normalized();
        Note(r.Width() > 0 && r.Height() > 0);
    }
    void DrawText(std::string_view text, const HmiRect&, std::uint32_t) override
    {
        Note(text.find_first_not_of(" \t\r\n") != std::string_view::npos);
    }
    HmiPoint GetTextExtent(std::string_view text) override
    {
        // Roughly the panel's default font: only whether anything is drawn counts here.
        return {std::int32_t(text.size()) * 7, 13};
    }
    bool DrawPictureFile(const std::string&, const HmiRect&, const HmiColor*) override
    {
        Note(true);
        return true;
    }
    HmiRect GetClipBox() const override { return {kHmiDrawingMin, kHmiDrawingMin, kHmiDrawingMax, kHmiDrawingMax}; }

private:
    void Note(bool inked) { m_inked = m_inked || inked; }
    void NoteShape() { Note(m_pen.style != HmiPenStyle::Null || !m_brush.hollow); }

    bool m_inked = false;
};

bool Meets(const HmiRect& a, const HmiRect& b)
{
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

bool HasLiveControl(const CHmiWidget& widget)
{
    const auto* control = dynamic_cast<const CHmiCtrlWidget*>(&widget);
    return control && control->GetControl();
}

// Dashes of an outline's side that lie in bounds. Pixel n of the side is pixel patternAt + n of
// the walk round the outline, whose pixels 1 to 4 of every 6 are inked.
void DashSide(QPainter& painter, QPoint first, QPoint step, std::int64_t pixels, std::int64_t patternAt,
              const QRect& bounds)
{
    // The pixels of the side inside bounds: from..to, along each axis it runs on or stands on.
    std::int64_t from = 0;
    std::int64_t to = pixels - 1;
    const auto holdTo = [&from, &to](int start, int direction, int low, int high) {
        if (direction == 0 && (start < low || start > high))
            to = -1;
        else if (direction != 0) {
            from = std::max(from, direction > 0 ? std::int64_t(low) - start : std::int64_t(start) - high);
            to = std::min(to, direction > 0 ? std::int64_t(high) - start : std::int64_t(start) - low);
        }
    };
    holdTo(first.x(), step.x(), bounds.left(), bounds.right());
    holdTo(first.y(), step.y(), bounds.top(), bounds.bottom());
    const auto at = [first, step](std::int64_t n) {
        return QPoint(int(first.x() + step.x() * n), int(first.y() + step.y() * n));
    };
    for (std::int64_t dash = std::max<std::int64_t>(patternAt + from - 1, 0) / kDashPeriod * kDashPeriod + 1;
         dash - patternAt <= to; dash += kDashPeriod) {
        const std::int64_t begin = std::max(dash - patternAt, from);
        const std::int64_t end = std::min(dash + kDashLength - 1 - patternAt, to);
        if (begin <= end)
            painter.fillRect(QRect(at(begin), at(begin)).united(QRect(at(end), at(end))), kOutlineColor);
    }
}

// A dashed outline round the edge pixels of area, walked clockwise from its top left corner, whose
// dashes stay where they are however a repaint clips it: a dashed pen restarts its dashes where
// the painted image ends, so a part repainted into the kept drawing or shown at the canvas's
// edge would show them shifted. The dashes fall where those of an unclipped dashed pen fall.
void DrawDashedOutline(QPainter& painter, const QRect& area)
{
    const QRect bounds = painter.hasClipping() ? painter.clipBoundingRect().toAlignedRect() : painter.window();
    const std::int64_t across = std::int64_t(area.width()) - 1;
    const std::int64_t down = std::int64_t(area.height()) - 1;
    DashSide(painter, area.topLeft(), {1, 0}, across, 0, bounds);
    DashSide(painter, area.topRight(), {0, 1}, down, across, bounds);
    DashSide(painter, area.bottomRight(), {-1, 0}, across, across + down, bounds);
    // The walk ends on the corner it started from.
    DashSide(painter, area.bottomLeft(), {0, -1}, down + 1, 2 * across + down, bounds);
}

// The class's toolbox icon, its record's own or the built-in kind's, else its key's initial in a box.
void DrawOutline(QPainter& painter, const QRect& outline, const std::string& classKey)
{
    painter.setBrush(Qt::NoBrush);
    DrawDashedOutline(painter, outline.adjusted(0, 0, 1, 1)); // a pen's rectangle covers one pixel more
    const QRect glyph(outline.topLeft() + QPoint(2, 2), QSize(kGlyphSize, kGlyphSize));
    if (!outline.contains(glyph) || classKey.empty())
        return;
    const CWidgetRunTimeClass* entry = CHmiWidget::FindWidgetClassEntry(classKey);
    const QIcon icon = entry && entry->m_pToolboxIcon ? QIcon(QPixmap::fromImage(QImage(entry->m_pToolboxIcon)))
                                                      : BuiltinKindIcon(classKey);
    if (!icon.isNull()) {
        painter.save();
        painter.setOpacity(kIconOpacity);
        icon.paint(&painter, glyph);
        painter.restore();
        return;
    }
    painter.setPen(QPen(kOutlineColor, 0, Qt::SolidLine));
    painter.drawRect(glyph.adjusted(0, 0, -1, -1));
    painter.drawText(glyph, Qt::AlignCenter, QString(QChar::fromLatin1(classKey.front())).toUpper());
}

} // namespace

CDesignOutlines::CDesignOutlines(CTamloDoc& document) : m_document(document)
{
    m_document.AddObserver(this);
}

CDesignOutlines::~CDesignOutlines()
{
    m_document.RemoveObserver(this);
}

void CDesignOutlines::DocumentChanged(const CDocumentChange& change)
{
    if (change.Has(DocChange::Properties | DocChange::Added | DocChange::Removed | DocChange::Order |
                   DocChange::Reloaded))
        m_candidates.reset();
    if (change.Has(DocChange::Reloaded))
        return m_drawsNothing.clear();
    for (const HmiWidgetChange& entry : change.widgets)
        if (HasAny(entry.what, DocChange::Properties | DocChange::Added | DocChange::Removed))
            m_drawsNothing.erase(entry.widget);
}

bool CDesignOutlines::DrawsNothing(CHmiWidget& widget)
{
    const auto [kept, isNew] = m_drawsNothing.try_emplace(&widget, false);
    if (isNew) {
        CInkProbeDC probe;
        widget.Draw(probe);
        kept->second = !probe.Inked();
    }
    return kept->second;
}

void CDesignOutlines::Paint(QPainter& painter, const CCanvasMapping& mapping, std::span<const HmiRect> areas)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    QFont font = painter.font();
    font.setPixelSize(kGlyphSize - 5);
    painter.setFont(font);
    for (CHmiWidget* widget : Candidates()) {
        const HmiRect rect = widget->GetWidgetRect().Normalized();
        const auto meets = [&rect](const HmiRect& area) { return Meets(rect, area); };
        const bool shown = std::any_of(areas.begin(), areas.end(), meets);
        if (!shown || m_document.IsWidgetDeleted(widget) || HasLiveControl(*widget) || !DrawsNothing(*widget))
            continue;
        const HmiRect client = mapping.DocRectToClient(rect).ForDrawing();
        if (client.Width() > 1 && client.Height() > 1)
            DrawOutline(painter, QRect(client.left, client.top, client.Width() - 1, client.Height() - 1),
                        widget->GetWidgetClassName());
    }
    painter.restore();
}

const std::vector<CHmiWidget*>& CDesignOutlines::Candidates()
{
    if (!m_candidates) {
        // A widget shown as a live control is not drawn here to be found out, as drawing
        // places its control: whether it draws nothing is asked when it has none.
        m_candidates.emplace();
        for (const HmiWidgetPtr& widget : m_document.Widgets())
            if (!IsWindowWidget(*widget) && (HasLiveControl(*widget) || DrawsNothing(*widget)))
                m_candidates->push_back(widget.get());
    }
    return *m_candidates;
}
