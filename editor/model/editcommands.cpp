#include "editcommands.h"

#include "project/xmldocument.h"
#include "widgets/core/tamlodoc.h"
#include "widgets/core/widgetfilereader.h"

namespace {

std::vector<CHmiWidget*> WithoutWindow(const CTamloDoc& document, const std::vector<CHmiWidget*>& widgets)
{
    std::vector<CHmiWidget*> result;
    for (CHmiWidget* widget : widgets)
        if (widget != document.GetWindowWidget())
            result.push_back(widget);
    return result;
}

} // namespace

bool DeleteWidgets(CTamloDoc& document, const std::vector<CHmiWidget*>& widgets)
{
    const std::vector<CHmiWidget*> deletable = WithoutWindow(document, widgets);
    if (deletable.empty())
        return false;
    CUndoStepGuard step(document);
    for (CHmiWidget* widget : deletable)
        step.Record(UndoOperation::Deleted, widget);
    return true;
}

std::string CopyWidgets(const std::vector<CHmiWidget*>& widgets)
{
    std::string text;
    for (const CHmiWidget* widget : widgets) {
        if (widget->GetWidgetClassName() != "window")
            widget->Serialize(text);
    }
    if (text.empty())
        return text;
    return "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n" + text + "</hmiwidget>\n";
}

std::vector<CHmiWidget*> PasteWidgets(CTamloDoc& document, const std::string& text)
{
    std::vector<HmiWidgetPtr> read;
    ReadWindowDocument(XmlDocument::Parse(text), [&read](HmiWidgetPtr widget) {
        if (widget->GetWidgetClassName() != "window")
            read.push_back(std::move(widget));
    });
    std::vector<CHmiWidget*> pasted;
    if (read.empty())
        return pasted;
    CUndoStepGuard step(document);
    for (HmiWidgetPtr& widget : read) {
        const HmiRect& r = widget->GetWidgetRect();
        widget->SetWidgetRect({r.left + kPasteOffset, r.top + kPasteOffset, r.right + kPasteOffset,
                               r.bottom + kPasteOffset});
        if (document.HasWidgetName(widget->GetWidgetName()))
            widget->SetWidgetName({});
        widget->m_pView = document.Views().empty() ? nullptr : document.Views().front();
        CHmiWidget* added = widget.get();
        if (document.AddWidget(std::move(widget), true, false)) {
            step.Record(UndoOperation::Added, added);
            pasted.push_back(added);
        }
    }
    return pasted;
}
