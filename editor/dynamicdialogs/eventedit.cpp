#include "eventedit.h"

#include "dialogservices.h"
#include "eventeditdialog.h"
#include "widgets/hmiwidget.h"
#include "widgets/optiontree.h"
#include "widgets/tamlodoc.h"

#include <algorithm>

namespace {

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    std::size_t start = 0;
    for (std::size_t found = text.find(from); found != std::string_view::npos; found = text.find(from, start)) {
        result.append(text.substr(start, found - start)).append(to);
        start = found + from.size();
    }
    return result.append(text.substr(start));
}

} // namespace

std::string ToEditorLineEnds(std::string_view code)
{
    return ReplaceAll(ReplaceAll(code, "\n", "\r\n"), "\r\r\n", "\r\n");
}

bool EditWidgetEvent(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row,
                     const std::vector<ScriptFunction>& functions)
{
    if (row.GetKind() != OptionItemKind::Event)
        return false;
    const std::string label = row.GetLabelText();
    const std::vector<CHmiWidgetEvent>& events = widget.GetEvents();
    const auto event = std::find_if(events.begin(), events.end(),
                                    [&label](const CHmiWidgetEvent& candidate) { return candidate.label == label; });
    if (event == events.end())
        return false;
    CEventEditDialog dialog(FromModelText(ToEditorLineEnds(event->code)), functions, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const std::string code = ToModelText(dialog.Code());
    if (code == event->code)
        return false;
    widget.SetWidgetEventCode(event->name, code);
    row.SetStaticText(code);
    if (widget.m_pDocument)
        widget.m_pDocument->WidgetChanged(widget, DocChange::Events);
    return true;
}
