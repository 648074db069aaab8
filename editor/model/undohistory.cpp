#include "undohistory.h"

#include "canvasselection.h"

#include "widgets/hmiview.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/widgetfilereader.h"
#include "widgets/widgetfilewriter.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr DocChange kEdits = DocChange::Geometry | DocChange::Properties | DocChange::Bindings |
                             DocChange::Events | DocChange::Added | DocChange::Removed | DocChange::Order;

WidgetState StateOf(const CHmiWidget& widget)
{
    CWindowFileWriter writer;
    writer.Write(widget);
    return {std::make_shared<const std::string>(writer.Finish()), widget.GetWidgetRect()};
}

// A new object in the state, ready to stand in the document; null if the state cannot be read.
HmiWidgetPtr WidgetFromState(const WidgetState& state, CHmiView* view)
{
    HmiWidgetPtr widget;
    if (state.text)
        ReadWindowText(*state.text, [&widget](HmiWidgetPtr read) { widget = std::move(read); });
    if (!widget || !widget->Init())
        return nullptr;
    widget->SetWidgetRect(state.rect);
    widget->m_pView = view;
    return widget;
}

std::unordered_map<const CHmiWidget*, std::size_t> Positions(const std::vector<CHmiWidget*>& order)
{
    std::unordered_map<const CHmiWidget*, std::size_t> positions;
    for (std::size_t i = 0; i < order.size(); ++i)
        positions.emplace(order[i], i);
    return positions;
}

std::size_t PositionOf(const std::unordered_map<const CHmiWidget*, std::size_t>& positions, const CHmiWidget* widget)
{
    const auto found = positions.find(widget);
    return found == positions.end() ? 0 : found->second;
}

std::vector<CHmiWidget*> ListOf(const CTamloDoc& document)
{
    std::vector<CHmiWidget*> widgets;
    widgets.reserve(document.Widgets().size());
    for (const HmiWidgetPtr& widget : document.Widgets())
        widgets.push_back(widget.get());
    return widgets;
}

} // namespace

CUndoHistory::CUndoHistory(CTamloDoc& document, CCanvasSelection& selection)
    : m_document(document), m_selection(selection)
{
    m_document.SetHistory(this);
    TakeSnapshot();
    SelectionChanged();
    if (m_document.IsModified())
        m_stack.resetClean(); // no entry leads back to what was saved
    // Undo and redo move the stack's index; the document is modified unless it is where it was
    // saved. A push needs no such care: the edit has marked the document already.
    m_followIndex = QObject::connect(&m_stack, &QUndoStack::indexChanged, [this] {
        if (!m_telling)
            m_document.SetModifiedFlag(!m_stack.isClean());
    });
}

CUndoHistory::~CUndoHistory()
{
    QObject::disconnect(m_followIndex);
    m_document.SetHistory(nullptr);
    m_stack.clear(); // the entries go before the widgets they keep
}

void CUndoHistory::SelectionChanged()
{
    if (!m_document.IsCollecting())
        m_userSelection = SlotsOf(m_selection.Widgets());
}

void CUndoHistory::NameNextEntry(const QString& verb)
{
    m_nextVerb = verb;
    QTimer::singleShot(0, &m_stack, [this] { m_nextVerb.clear(); });
}

void CUndoHistory::TakeSnapshot()
{
    m_slots.clear();
    m_order = ListOf(m_document);
    for (CHmiWidget* widget : m_order)
        m_slots.emplace(widget, std::make_shared<WidgetSlot>(WidgetSlot{widget, nullptr, StateOf(*widget)}));
}

WidgetSlotPtr CUndoHistory::SlotOf(const CHmiWidget* widget) const
{
    const auto found = m_slots.find(widget);
    return found == m_slots.end() ? nullptr : found->second;
}

std::vector<WidgetSlotPtr> CUndoHistory::SlotsOf(const std::vector<CHmiWidget*>& widgets) const
{
    std::vector<WidgetSlotPtr> known;
    known.reserve(widgets.size());
    for (const CHmiWidget* widget : widgets)
        if (WidgetSlotPtr slot = SlotOf(widget))
            known.push_back(std::move(slot));
    return known;
}

void CUndoHistory::DocumentChanged(const CDocumentChange& change)
{
    const auto telling = std::exchange(m_telling, true);
    if (change.Has(DocChange::Reloaded)) {
        m_openEntry = nullptr;
        m_userSelection.clear();
        m_stack.clear();
        TakeSnapshot();
    } else if (change.Has(kEdits)) {
        HistoryEntry entry = Observe(change);
        if (!m_applying && (!entry.widgets.empty() || !entry.orderAfter.empty())) {
            CloseLastEntry();
            entry.selectionBefore = m_userSelection;
            const QString text = DescribeEntry(entry, std::exchange(m_nextVerb, {}));
            m_openEntry = new CHistoryCommand(*this, std::move(entry), text);
            m_stack.push(m_openEntry);
            // Once the command has ended, its selection is known.
            QTimer::singleShot(0, &m_stack, [this] { CloseLastEntry(); });
        }
    }
    if (change.Has(DocChange::Modified) && !m_document.IsModified())
        m_stack.setClean(); // saved
    m_telling = telling;
}

HistoryEntry CUndoHistory::Observe(const CDocumentChange& change)
{
    HistoryEntry entry;
    std::unordered_map<const CHmiWidget*, std::size_t> before, after;
    if (change.Has(DocChange::Added | DocChange::Removed | DocChange::Order)) {
        before = Positions(m_order);
        if (change.Has(DocChange::Order))
            entry.orderBefore = SlotsOf(m_order);
        m_order = ListOf(m_document);
        after = Positions(m_order);
    }
    for (const HmiWidgetChange& told : change.widgets) {
        const bool added = HasAny(told.what, DocChange::Added);
        const bool removed = HasAny(told.what, DocChange::Removed);
        WidgetSlotPtr slot = SlotOf(told.widget);
        if (added && removed)
            continue; // came and went within the change
        if (added) {
            if (!slot)
                slot = m_slots.emplace(told.widget, std::make_shared<WidgetSlot>()).first->second;
            slot->widget = told.widget;
            slot->seen = StateOf(*told.widget);
            entry.widgets.push_back({slot, DocChange::Added, {}, {}, PositionOf(after, told.widget)});
        } else if (!slot) {
            continue; // a widget replaced by the history
        } else if (told.what == DocChange::Order) {
            entry.reordered.push_back(slot);
        } else if (removed) {
            // The slot stays with the widget until the document hands the widget over.
            entry.widgets.push_back({slot, DocChange::Removed, {}, {}, PositionOf(before, told.widget)});
        } else {
            HistoryWidgetChange widget{slot, told.what, slot->seen, {}, 0};
            widget.after = widget.IsGeometryOnly() ? WidgetState{slot->seen.text, told.widget->GetWidgetRect()}
                                                   : StateOf(*told.widget);
            slot->seen = widget.after;
            entry.widgets.push_back(std::move(widget));
        }
    }
    if (change.Has(DocChange::Order))
        entry.orderAfter = SlotsOf(m_order);
    if (entry.orderAfter == entry.orderBefore) // a widget moved to where it stood
        entry.orderBefore = entry.orderAfter = {};
    return entry;
}

void CUndoHistory::KeepRemovedWidget(HmiWidgetPtr widget)
{
    const auto found = m_slots.find(widget.get());
    if (found == m_slots.end())
        return; // replaced by the history: its slot holds the new object
    found->second->kept = std::move(widget);
    m_slots.erase(found);
}

void CUndoHistory::CloseLastEntry()
{
    if (m_openEntry)
        std::exchange(m_openEntry, nullptr)->Entry().selectionAfter = SlotsOf(m_selection.Widgets());
}

void CUndoHistory::Apply(HistoryEntry& entry, Direction direction)
{
    CloseLastEntry();
    const bool undo = direction == Direction::Undo;
    const DocChange leaving = undo ? DocChange::Added : DocChange::Removed;
    const DocChange returning = undo ? DocChange::Removed : DocChange::Added;
    std::vector<HistoryWidgetChange*> comingBack;
    m_applying = true;
    {
        CTamloDoc::CChangeBatch batch(m_document);
        for (HistoryWidgetChange& change : entry.widgets) {
            if (change.what == leaving)
                m_document.RemoveWidget(change.slot->widget);
            else if (change.what == returning)
                comingBack.push_back(&change);
            else
                Restore(change, undo ? change.before : change.after);
        }
        // In the order of their places, each goes where it stood among the others.
        std::sort(comingBack.begin(), comingBack.end(),
                  [](const HistoryWidgetChange* a, const HistoryWidgetChange* b) { return a->index < b->index; });
        for (HistoryWidgetChange* change : comingBack) {
            WidgetSlot& slot = *change->slot;
            if (!slot.kept)
                continue;
            m_slots[slot.widget] = change->slot;
            m_document.PutBackWidget(std::move(slot.kept), change->index);
        }
        const std::vector<WidgetSlotPtr>& order = undo ? entry.orderBefore : entry.orderAfter;
        if (!order.empty()) {
            std::vector<CHmiWidget*> widgets;
            for (const WidgetSlotPtr& slot : order)
                widgets.push_back(slot->widget);
            m_document.RestoreOrder(widgets);
        }
    }
    m_applying = false;
    Select(undo ? entry.selectionBefore : entry.selectionAfter);
}

void CUndoHistory::Restore(HistoryWidgetChange& change, const WidgetState& state)
{
    CHmiWidget* widget = change.slot->widget;
    if (change.IsGeometryOnly()) {
        const HmiRect before = widget->GetWidgetRect();
        widget->SetWidgetRect(state.rect);
        return m_document.WidgetChanged(*widget, DocChange::Geometry, before);
    }
    HmiWidgetPtr replacement = WidgetFromState(state, m_document.Views().empty() ? nullptr : m_document.Views().front());
    if (!replacement || !m_slots.contains(widget))
        return;
    // The slot follows the new object before the document tells of it.
    m_slots.erase(widget);
    change.slot->widget = replacement.get();
    m_slots[replacement.get()] = change.slot;
    m_document.ReplaceWidget(widget, std::move(replacement));
}

void CUndoHistory::Select(const std::vector<WidgetSlotPtr>& chosen)
{
    std::vector<CHmiWidget*> widgets;
    for (const WidgetSlotPtr& slot : chosen)
        if (m_slots.contains(slot->widget) && !IsWindowWidget(*slot->widget))
            widgets.push_back(slot->widget);
    if (widgets.empty())
        m_selection.Select(nullptr, false);
    else
        m_selection.SelectWidgets(widgets, false);
}
