#include "formatcommands.h"

#include "widgets/tamlodoc.h"

#include <algorithm>

namespace {

// Assigns a rectangle as the commands do: directly, without normalising.
void SetRect(CTamloDoc& document, CHmiWidget& widget, const HmiRect& rect)
{
    const HmiRect before = widget.GetWidgetRect();
    widget.SetWidgetRect(rect);
    if (rect != before)
        document.WidgetChanged(widget, DocChange::Geometry, before);
}

HmiRect Aligned(HmiRect r, const HmiRect& ref, AlignCommand command)
{
    const std::int32_t w = r.Width();
    const std::int32_t h = r.Height();
    switch (command) {
    case AlignCommand::Left: r.left = ref.left; r.right = ref.left + w; break;
    case AlignCommand::CenterHorizontal:
        // Both edges are placed half a width from the centre, so an odd width loses a pixel.
        r.left = (ref.left + ref.right) / 2 - w / 2;
        r.right = (ref.left + ref.right) / 2 + w / 2;
        break;
    case AlignCommand::Right: r.left = ref.right - w; r.right = ref.right; break;
    case AlignCommand::Top: r.top = ref.top; r.bottom = ref.top + h; break;
    case AlignCommand::CenterVertical:
        r.top = (ref.top + ref.bottom) / 2 - h / 2;
        r.bottom = (ref.top + ref.bottom) / 2 + h / 2;
        break;
    case AlignCommand::Bottom: r.top = ref.bottom - h; r.bottom = ref.bottom; break;
    case AlignCommand::SameWidth: r.right = r.left + ref.Width(); break;
    case AlignCommand::SameHeight: r.bottom = r.top + ref.Height(); break;
    case AlignCommand::SameSize:
        r.right = r.left + ref.Width();
        r.bottom = r.top + ref.Height();
        break;
    }
    return r;
}

// The start and end of a rectangle along the spacing direction.
struct Span {
    std::int32_t HmiRect::*start;
    std::int32_t HmiRect::*end;
};

Span SpanOf(SpacingDirection direction)
{
    if (direction == SpacingDirection::LeftToRight)
        return {&HmiRect::left, &HmiRect::right};
    return {&HmiRect::top, &HmiRect::bottom};
}

} // namespace

void AlignWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, AlignCommand command)
{
    if (selection.empty())
        return;
    const HmiRect reference = selection.back()->GetWidgetRect();
    CUndoStepGuard step(document);
    for (std::size_t i = 0; i + 1 < selection.size(); ++i) {
        CHmiWidget& widget = *selection[i];
        step.Record(UndoOperation::Changed, &widget);
        SetRect(document, widget, Aligned(widget.GetWidgetRect(), reference, command));
    }
}

void SpaceWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, SpacingDirection direction)
{
    if (selection.size() < 2)
        return;
    const Span span = SpanOf(direction);
    // Sorted by start; a widget goes before the first whose start is not less than its own, so
    // widgets that start together end up in the reverse of their selection order.
    std::vector<CHmiWidget*> ordered;
    std::int32_t total = 0;
    for (CHmiWidget* widget : selection) {
        const std::int32_t start = widget->GetWidgetRect().*span.start;
        const auto at = std::find_if(ordered.begin(), ordered.end(),
                                     [&](CHmiWidget* other) { return other->GetWidgetRect().*span.start >= start; });
        ordered.insert(at, widget);
        total += widget->GetWidgetRect().*span.end - start;
    }
    const std::int32_t first = ordered.front()->GetWidgetRect().*span.start;
    const std::int32_t last = ordered.back()->GetWidgetRect().*span.end;
    const std::int32_t gap = (last - first - total) / std::int32_t(selection.size() - 1);
    if (selection.size() < 3)
        return;
    CUndoStepGuard step(document);
    std::int32_t previousEnd = 0;
    for (CHmiWidget* widget : ordered) {
        step.Record(UndoOperation::Changed, widget);
        HmiRect rect = widget->GetWidgetRect();
        if (widget != ordered.front()) {
            const std::int32_t size = rect.*span.end - rect.*span.start;
            rect.*span.start = previousEnd + gap;
            rect.*span.end = rect.*span.start + size;
            SetRect(document, *widget, rect);
        }
        previousEnd = rect.*span.end;
    }
}

void ZoomWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, std::int32_t percent)
{
    if (selection.empty())
        return;
    std::int32_t x0 = selection.front()->GetWidgetRect().left;
    std::int32_t y0 = selection.front()->GetWidgetRect().top;
    for (const CHmiWidget* widget : selection) {
        x0 = std::min(x0, widget->GetWidgetRect().left);
        y0 = std::min(y0, widget->GetWidgetRect().top);
    }
    CUndoStepGuard step(document);
    for (CHmiWidget* widget : selection)
        step.Record(UndoOperation::Changed, widget);
    if (percent > 0) {
        const auto scale = [percent](std::int32_t value, std::int32_t origin) {
            return origin + std::int32_t(std::uint32_t(value - origin) * std::uint32_t(percent)) / 100;
        };
        for (CHmiWidget* widget : selection) {
            const HmiRect& r = widget->GetWidgetRect();
            SetRect(document, *widget, {scale(r.left, x0), scale(r.top, y0), scale(r.right, x0), scale(r.bottom, y0)});
        }
    }
}

void MoveWidgetToTop(CTamloDoc& document, const std::vector<CHmiWidget*>& selection)
{
    if (!selection.empty())
        document.MoveWidget(selection.front(), document.Widgets().size() - 1);
}

void MoveWidgetToBottom(CTamloDoc& document, const std::vector<CHmiWidget*>& selection)
{
    if (!selection.empty())
        document.MoveWidget(selection.front(), 1);
}

bool NudgeWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& selection, NudgeKey key, bool resize,
                  std::int32_t distance)
{
    if (selection.empty())
        return false;
    const std::int32_t dx = key == NudgeKey::Left ? -distance : key == NudgeKey::Right ? distance : 0;
    const std::int32_t dy = key == NudgeKey::Up ? -distance : key == NudgeKey::Down ? distance : 0;
    CUndoStepGuard step(document);
    for (CHmiWidget* widget : selection) {
        step.Record(UndoOperation::Changed, widget);
        HmiRect r = widget->GetWidgetRect();
        if (!resize) {
            r.left += dx;
            r.top += dy;
        }
        r.right += dx;
        r.bottom += dy;
        SetRect(document, *widget, r);
    }
    return true;
}
