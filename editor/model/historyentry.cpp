#include "historyentry.h"

#include "undohistory.h"

#include "editor/translations/coretexts.h"

#include "base/textcodec.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

namespace {

// The names of the property lines in which two states of a widget differ.
void AddChangedProperties(const WidgetState& before, const WidgetState& after, std::set<std::string>& names)
{
    if (!before.text || !after.text)
        return;
    const auto lines = [](std::string_view text) {
        std::vector<std::string_view> result;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = std::min(text.find('\n', start), text.size());
            result.push_back(text.substr(start, end - start));
            start = end + 1;
        }
        return result;
    };
    const std::vector<std::string_view> old = lines(*before.text);
    const std::vector<std::string_view> now = lines(*after.text);
    constexpr std::string_view kPropertyName = "<property name=\"";
    for (std::size_t i = 0; i < std::min(old.size(), now.size()); ++i) {
        if (old[i] == now[i])
            continue;
        if (now[i].find("<widget name=") != std::string_view::npos) {
            names.emplace("name"); // the widget's name stands in its element's first line
            continue;
        }
        const std::size_t name = now[i].find(kPropertyName);
        if (name == std::string_view::npos)
            continue;
        const std::size_t begin = name + kPropertyName.size();
        names.emplace(now[i].substr(begin, now[i].find('"', begin) - begin));
    }
}

bool IsGeometryKey(const std::string& name)
{
    return name == "left" || name == "top" || name == "right" || name == "bottom" || name == "width" ||
           name == "height";
}

// The label of the one property other than the rectangle that the widgets changed; empty when
// they changed none or several.
QString ChangedPropertyLabel(const HistoryEntry& entry, const std::set<std::string>& names)
{
    std::vector<std::string> others;
    std::copy_if(names.begin(), names.end(), std::back_inserter(others), [](const std::string& name) {
        return !IsGeometryKey(name);
    });
    if (others.size() != 1)
        return {};
    const CHmiWidgetProp* prop = entry.widgets.front().slot->widget->FindProperty(others.front());
    return prop ? TranslateCoreText(CoreTextContext::kProperty, prop->m_strLabel)
                : QString::fromStdString(Gb2312ToUtf8OrKeep(others.front()));
}

} // namespace

// The texts of the entries, in the editor's language.
class CEntryText {
    Q_DECLARE_TR_FUNCTIONS(CEntryText)
public:
    static QString Of(const HistoryEntry& entry, const QString& verb);

private:
    // "rect2" for one widget, "3 widgets" for more.
    static QString Subject(const std::vector<const CHmiWidget*>& widgets);
};

QString CEntryText::Subject(const std::vector<const CHmiWidget*>& widgets)
{
    if (widgets.size() == 1)
        return QString::fromStdString(Gb2312ToUtf8OrKeep(widgets.front()->GetWidgetName()));
    return tr("%n widgets", nullptr, int(widgets.size()));
}

QString CEntryText::Of(const HistoryEntry& entry, const QString& verb)
{
    DocChange what = DocChange::None;
    std::vector<const CHmiWidget*> widgets;
    bool resized = false;
    for (const HistoryWidgetChange& change : entry.widgets) {
        what |= change.what;
        widgets.push_back(change.slot->widget);
        resized |= change.before.rect.Width() != change.after.rect.Width() ||
                   change.before.rect.Height() != change.after.rect.Height();
    }
    const QString subject = Subject(widgets);
    if (!verb.isEmpty())
        return verb.arg(subject);
    if (HasAny(what, DocChange::Removed))
        return tr("Delete %1").arg(subject);
    if (HasAny(what, DocChange::Added))
        return tr("Add %1").arg(subject);
    if (widgets.empty()) { // only the drawing order changed: a widget went to the top or the bottom
        const bool toTop = entry.reordered.size() == 1 && entry.reordered.front() == entry.orderAfter.back();
        return toTop ? tr("Move to Top") : tr("Move to Bottom");
    }
    if (HasAny(what, DocChange::Events))
        return tr("Change events of %1").arg(subject);
    if (HasAny(what, DocChange::Bindings))
        return tr("Change bindings of %1").arg(subject);
    std::set<std::string> names;
    for (const HistoryWidgetChange& change : entry.widgets)
        if (HasAny(change.what, DocChange::Properties))
            AddChangedProperties(change.before, change.after, names);
    // A width typed in the pane is a resize, as a drag of a handle is.
    const bool rectangleOnly = !names.empty() && std::all_of(names.begin(), names.end(), IsGeometryKey);
    if (HasAny(what, DocChange::Properties) && !rectangleOnly) {
        const QString label = ChangedPropertyLabel(entry, names);
        return label.isEmpty() ? tr("Change %1").arg(subject) : tr("Change %1 of %2").arg(label, subject);
    }
    return resized ? tr("Resize %1").arg(subject) : tr("Move %1").arg(subject);
}

QString DescribeEntry(const HistoryEntry& entry, const QString& verb)
{
    return CEntryText::Of(entry, verb);
}

CHistoryCommand::CHistoryCommand(CUndoHistory& history, HistoryEntry entry, const QString& text)
    : QUndoCommand(text), m_history(history), m_entry(std::move(entry))
{
}

void CHistoryCommand::undo()
{
    m_history.Apply(m_entry, CUndoHistory::Direction::Undo);
}

void CHistoryCommand::redo()
{
    if (!std::exchange(m_done, false))
        m_history.Apply(m_entry, CUndoHistory::Direction::Redo);
}
