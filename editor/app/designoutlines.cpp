#include "designoutlines.h"

#include "toolboxicons.h"

#include "editor/model/canvasmapping.h"
#include "widgets/hmictrlwidget.h"
#include "widgets/hmidc.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"

#include <QPainter>

#include <algorithm>

namespace {

// The side of the class's icon, or of the box that holds its key's initial, in screen pixels.
constexpr int kGlyphSize = 16;
constexpr double kIconOpacity = 0.6;
const QColor kOutlineColor(0, 0, 0, 110);

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

// The class's toolbox icon, its record's own or the built-in kind's, else its key's initial in a box.
void DrawOutline(QPainter& painter, const QRect& outline, const std::string& classKey)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kOutlineColor, 0, Qt::DashLine));
    painter.drawRect(outline);
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
