#include "sharedrows.h"

#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetprop.h"

#include <algorithm>

namespace {

// Names are unique in a window: giving several widgets one name is never meant.
constexpr const char* kUniqueKeys[] = {"name"};

// Property names are single words, so the keys of event rows and of a widget's own rows, which
// have a space, never meet them.
std::string EventKey(const std::string& name)
{
    return "event " + name;
}

std::string CaptionKey(const std::string& group, const std::string& caption)
{
    return "row " + group + '/' + caption;
}

const CHiddenOptionItem& GroupOf(const CHiddenOptionItem& item)
{
    const CHiddenOptionItem* group = &item;
    while (group->parent)
        group = group->parent;
    return *group;
}

} // namespace

CSharedRows::CSharedRows(std::vector<CHmiWidget*> widgets) : m_widgets(std::move(widgets))
{
    if (m_widgets.empty())
        return;
    Fill(*m_widgets.front());
    TakeRowsOfFilling();
    m_widgets.front()->ReleasePropertyTree();
    m_missing.assign(m_rows.size(), 0);
    m_seen.assign(m_rows.size(), 0);
}

void CSharedRows::Fill(CHmiWidget& widget)
{
    m_tree.Clear();
    widget.CreateWidgetPropertyTree(m_tree);
    // The widget was given only items of this tree.
    for (const auto& prop : widget.GetProperties())
        if (prop->m_pTreeItem)
            static_cast<CHiddenOptionItem*>(prop->m_pTreeItem)->key = prop->m_strName;
    const std::vector<CHmiWidgetEvent>& events = widget.GetEvents();
    for (std::size_t i = 0; i < m_tree.Size(); ++i) {
        CHiddenOptionItem& item = m_tree.Item(i);
        if (!item.key.empty() || item.kind == OptionItemKind::Root)
            continue;
        const auto event = item.kind != OptionItemKind::Event
                               ? events.end()
                               : std::find_if(events.begin(), events.end(),
                                              [&item](const CHmiWidgetEvent& e) { return e.label == item.caption; });
        item.key = event != events.end() ? EventKey(event->name) : CaptionKey(GroupOf(item).caption, item.caption);
    }
}

void CSharedRows::TakeRowsOfFilling()
{
    std::vector<const CHiddenOptionItem*> groups;
    for (std::size_t i = 0; i < m_tree.Size(); ++i) {
        const CHiddenOptionItem& item = m_tree.Item(i);
        if (item.kind == OptionItemKind::Root) {
            if (!item.parent) {
                groups.push_back(&item);
                m_groups.push_back({item.caption, item.info});
            }
            continue;
        }
        if (!m_rowByKey.try_emplace(item.key, m_rows.size()).second)
            continue; // a second row under the same key cannot be told apart from the first
        const auto group = std::find(groups.begin(), groups.end(), &GroupOf(item));
        SharedRow& row = m_rows.emplace_back();
        row.key = item.key;
        row.kind = item.kind;
        row.group = group == groups.end() ? SharedRow::kNoGroup : std::size_t(group - groups.begin());
        row.caption = item.caption;
        row.info = item.info;
        row.choices = item.choices;
        row.bindable = item.bindable;
        row.readOnly = std::find(std::begin(kUniqueKeys), std::end(kUniqueKeys), item.key) != std::end(kUniqueKeys);
    }
}

bool CSharedRows::ReadMore(std::size_t count)
{
    const std::size_t end = std::min(m_widgets.size(), m_nextWidget + count);
    for (; m_nextWidget < end; ++m_nextWidget)
        ReadWidget(m_nextWidget);
    if (m_nextWidget < m_widgets.size())
        return false;
    if (m_narrowing)
        DropMissingRows();
    m_narrowing = false;
    return true;
}

void CSharedRows::ReadWidget(std::size_t index)
{
    CHmiWidget& widget = *m_widgets[index];
    Fill(widget);
    std::fill(m_seen.begin(), m_seen.end(), 0);
    for (std::size_t i = 0; i < m_tree.Size(); ++i) {
        const CHiddenOptionItem& item = m_tree.Item(i);
        const auto found = m_rowByKey.find(item.key);
        if (item.kind == OptionItemKind::Root || found == m_rowByKey.end() || m_seen[found->second])
            continue;
        SharedRow& row = m_rows[found->second];
        if (item.kind != row.kind || item.choices != row.choices)
            continue;
        m_seen[found->second] = 1;
        const bool bound = item.mark == kHmiColorBound;
        if (index == 0) {
            row.value = item.value;
            row.agree = true;
            row.bound = bound;
        } else {
            row.agree = row.agree && SameRowValue(row.kind, row.value, item.value);
            row.bound = row.bound || bound;
        }
        row.bindable = row.bindable && item.bindable;
    }
    widget.ReleasePropertyTree();
    for (std::size_t r = 0; r < m_rows.size(); ++r) {
        if (!m_seen[r]) {
            m_missing[r] = 1;
            m_rows[r].agree = false;
        }
    }
}

void CSharedRows::DropMissingRows()
{
    std::vector<SharedRow> kept;
    m_rowByKey.clear();
    for (std::size_t r = 0; r < m_rows.size(); ++r) {
        if (!m_missing[r]) {
            m_rowByKey.emplace(m_rows[r].key, kept.size());
            kept.push_back(std::move(m_rows[r]));
        }
    }
    m_rows = std::move(kept);
    m_missing.assign(m_rows.size(), 0);
    m_seen.assign(m_rows.size(), 0);
}

void CSharedRows::Apply(CHmiWidget& widget, std::size_t row, const COptionTreeItem& committed)
{
    Fill(widget);
    for (std::size_t i = 0; i < m_tree.Size(); ++i) {
        CHiddenOptionItem& own = m_tree.Item(i);
        if (own.key == m_rows[row].key && own.kind == m_rows[row].kind) {
            TakeRowValue(own, committed);
            widget.UpdateWidgetPropByTree(&own);
            break;
        }
    }
    widget.ReleasePropertyTree();
}
