#include "editcommands.h"

#include "project/xmldocument.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetfilereader.h"
#include "widgets/widgetfilewriter.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_set>

namespace {

bool IsWindow(const CHmiWidget* widget)
{
    return IsWindowWidget(*widget);
}

std::vector<CHmiWidget*> WithoutWindow(const std::vector<CHmiWidget*>& widgets)
{
    std::vector<CHmiWidget*> result;
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(result), std::not_fn(IsWindow));
    return result;
}

} // namespace

bool DeleteWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& widgets)
{
    const std::vector<CHmiWidget*> deletable = WithoutWindow(widgets);
    if (deletable.empty())
        return false;
    CUndoStepGuard step(document);
    for (CHmiWidget* widget : deletable)
        step.Record(UndoOperation::Deleted, widget);
    return true;
}

std::string CopyWidgets(const CTamloDoc& document, const std::vector<CHmiWidget*>& widgets)
{
    const std::unordered_set<const CHmiWidget*> copied(widgets.begin(), widgets.end());
    CWindowFileWriter writer;
    // From the top down, as a window file lists them, whatever order they were selected in.
    for (auto widget = document.Widgets().rbegin(); widget != document.Widgets().rend(); ++widget) {
        if (copied.contains(widget->get()) && !IsWindow(widget->get()))
            writer.Write(**widget);
    }
    return writer.Written().empty() ? std::string() : writer.Finish();
}

bool HasEditableWidgets(const std::vector<CHmiWidget*>& widgets)
{
    return !std::all_of(widgets.begin(), widgets.end(), IsWindow);
}

std::vector<CHmiWidget*> PasteWidgets(CTamloDoc& document, const std::string& text)
{
    std::vector<HmiWidgetPtr> read;
    ReadWindowText(text, [&read](HmiWidgetPtr widget) {
        if (!IsWindowWidget(*widget))
            read.push_back(std::move(widget));
    });
    std::vector<CHmiWidget*> pasted;
    if (read.empty())
        return pasted;
    CUndoStepGuard step(document);
    CWidgetNames names(document);
    // The text lists them from the top down, so the lowest goes onto the window first.
    std::reverse(read.begin(), read.end());
    for (HmiWidgetPtr& widget : read) {
        const HmiRect& r = widget->GetWidgetRect();
        widget->SetWidgetRect({r.left + kPasteOffset, r.top + kPasteOffset, r.right + kPasteOffset,
                               r.bottom + kPasteOffset});
        if (names.Contains(widget->GetWidgetName()))
            widget->SetWidgetName({});
        widget->m_pView = document.Views().empty() ? nullptr : document.Views().front();
        CHmiWidget* added = widget.get();
        if (document.AddWidget(std::move(widget), true, &names)) {
            step.Record(UndoOperation::Added, added);
            pasted.push_back(added);
        }
    }
    return pasted;
}
