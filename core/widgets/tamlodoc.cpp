#include "tamlodoc.h"

#include "hmiwidgetwindow.h"
#include "widgetfilereader.h"
#include "windowfilecheck.h"

#include <algorithm>
#include <filesystem>
#include <utility>

CTamloDoc::CChangeBatch::CChangeBatch(CTamloDoc& document) : m_document(document)
{
    ++m_document.m_nBatchDepth;
}

CTamloDoc::CChangeBatch::~CChangeBatch()
{
    --m_document.m_nBatchDepth;
    m_document.SendChange();
}

int& CTamloDoc::WidgetNameCounter()
{
    static int counter = 1;
    return counter;
}

CTamloDoc::~CTamloDoc()
{
    for (CDocumentObserver* observer : std::exchange(m_observers, {}))
        observer->DocumentDestroyed();
}

void CTamloDoc::AddObserver(CDocumentObserver* observer)
{
    if (std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end())
        m_observers.push_back(observer);
}

void CTamloDoc::RemoveObserver(CDocumentObserver* observer)
{
    std::erase(m_observers, observer);
}

void CTamloDoc::Record(CHmiWidget& widget, DocChange what, const HmiRect& rectBefore)
{
    if (HasAny(what, DocChange::Added | DocChange::Removed | DocChange::Order))
        m_grid.Invalidate(); // deleted or brought back, or moved in the order
    else if (HasAny(what, DocChange::Geometry))
        m_grid.Moved(widget);
    // A reloaded document has no widget changes to tell: every widget is new.
    if (!m_change.Has(DocChange::Reloaded)) {
        m_change.what |= what;
        const auto [known, added] = m_changeIndex.try_emplace(&widget, m_change.widgets.size());
        if (added)
            m_change.widgets.push_back({&widget, what, rectBefore});
        else
            m_change.widgets[known->second].what |= what; // the rectangle before stays the first one
    }
    SendChange();
}

void CTamloDoc::Record(CHmiWidget& widget, DocChange what)
{
    Record(widget, what, widget.GetWidgetRect());
}

void CTamloDoc::SendChange()
{
    if (IsCollecting())
        return;
    if (m_bModified != m_bModifiedTold) {
        m_bModifiedTold = m_bModified;
        m_change.what |= DocChange::Modified;
    }
    if (m_change.what != DocChange::None) {
        const CDocumentChange change = std::exchange(m_change, {});
        m_changeIndex.clear();
        if (m_history)
            m_history->DocumentChanged(change);
        // An observer may go or come while another one is told.
        const std::vector<CDocumentObserver*> observers = m_observers;
        for (CDocumentObserver* observer : observers)
            if (std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end())
                observer->DocumentChanged(change);
    }
    for (HmiWidgetPtr& removed : std::exchange(m_removedWidgets, {}))
        if (m_history)
            m_history->KeepRemovedWidget(std::move(removed));
}

void CTamloDoc::SetHistory(CDocumentHistory* history)
{
    DestroyDeletedWidgets();
    m_history = history;
}

void CTamloDoc::ResetChange(DocChange what)
{
    m_change = {what, {}};
    m_changeIndex.clear();
}

void CTamloDoc::ClearUndoStep()
{
    m_undoStep.clear();
    m_deletedWidgets.clear();
}

void CTamloDoc::WidgetChanged(CHmiWidget& widget, DocChange what)
{
    WidgetChanged(widget, what, widget.GetWidgetRect());
}

void CTamloDoc::WidgetChanged(CHmiWidget& widget, DocChange what, const HmiRect& rectBefore)
{
    CChangeBatch batch(*this);
    if (widget.GetWidgetRect() != rectBefore)
        what |= DocChange::Geometry;
    Record(widget, what, rectBefore);
    SetModifiedFlag();
}

void CTamloDoc::WidgetsChanged(const std::vector<HmiWidgetChange>& changes)
{
    CChangeBatch batch(*this);
    for (const HmiWidgetChange& change : changes)
        WidgetChanged(*change.widget, change.what, change.rectBefore);
}

void CTamloDoc::SetModifiedFlag(bool modified)
{
    m_bModified = modified;
    if (modified)
        ++m_nRevision;
    SendChange();
}

void CTamloDoc::DeleteContents()
{
    ResetChange(DocChange::Reloaded);
    ClearUndoStep();
    while (!m_widgets.empty())
        TakeOut(m_widgets.begin());
}

void CTamloDoc::TakeOut(std::deque<HmiWidgetPtr>::iterator widget)
{
    m_removedWidgets.push_back(std::move(*widget));
    m_widgets.erase(widget);
    ListChanged();
}

void CTamloDoc::AddWindowWidget(bool atTail)
{
    HmiWidgetPtr window(new CHmiWidgetWindow);
    window->SetWidgetName(kWindowClassKey);
    AddWidget(std::move(window), atTail);
}

void CTamloDoc::OnNewDocument()
{
    CChangeBatch batch(*this);
    DeleteContents();
    AddWindowWidget(true);
    m_bModified = false;
}

bool CTamloDoc::AddWidget(HmiWidgetPtr widget, bool atTail, CWidgetNames* names)
{
    if (!widget)
        return false;
    if (!widget->m_pView && !m_views.empty())
        widget->m_pView = m_views.front();
    if (!widget->Init())
        return false;
    CChangeBatch batch(*this);
    CHmiWidget& added = *widget;
    if (atTail)
        m_widgets.push_back(std::move(widget));
    else
        m_widgets.push_front(std::move(widget));
    ListChanged();
    added.m_pDocument = this;
    if (added.GetWidgetName().empty()) {
        const std::string classKey = added.GetWidgetClassName();
        std::string name;
        do
            name = classKey + std::to_string(WidgetNameCounter()++);
        while (names ? names->Contains(name) : HasWidgetName(name));
        added.SetWidgetName(std::move(name));
    }
    if (names)
        names->Add(added.GetWidgetName());
    Record(added, DocChange::Added);
    SetModifiedFlag();
    return true;
}

void CTamloDoc::RemoveWidget(CHmiWidget* widget)
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [widget](const HmiWidgetPtr& w) { return w.get() == widget; });
    if (found == m_widgets.end())
        return;
    CChangeBatch batch(*this);
    std::erase_if(m_undoStep, [widget](const HmiUndoEntry& entry) { return entry.widget == widget; });
    m_deletedWidgets.erase(widget);
    TakeOut(found);
    Record(*widget, DocChange::Removed);
    SetModifiedFlag();
}

void CTamloDoc::DestroyDeletedWidgets()
{
    // The observers were told of their removal when they were deleted.
    for (const HmiUndoEntry& entry : m_undoStep) {
        if (entry.operation != UndoOperation::Deleted)
            continue;
        const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                        [&entry](const HmiWidgetPtr& w) { return w.get() == entry.widget; });
        if (found != m_widgets.end())
            TakeOut(found);
    }
    ClearUndoStep();
    SendChange();
}

void CTamloDoc::BeginUndoStep()
{
    DestroyDeletedWidgets();
    m_bUndoStepOpen = true;
}

void CTamloDoc::RecordUndo(UndoOperation operation, CHmiWidget* widget)
{
    if (!m_bUndoStepOpen || !widget)
        return;
    if (operation == UndoOperation::Deleted && m_history)
        return RemoveWidget(widget); // it leaves for the history at once
    m_undoStep.push_back({operation, widget->GetWidgetRect(), widget});
    if (operation == UndoOperation::Deleted) {
        m_deletedWidgets.insert(widget);
        Record(*widget, DocChange::Removed);
    }
}

void CTamloDoc::EndUndoStep()
{
    // A click records its widget too, with the rectangle unchanged: that alone is no edit.
    const bool changed = std::any_of(m_undoStep.begin(), m_undoStep.end(), [](const HmiUndoEntry& entry) {
        return entry.operation != UndoOperation::Changed || entry.rectBefore != entry.widget->GetWidgetRect();
    });
    if (changed)
        SetModifiedFlag();
    m_bUndoStepOpen = false;
    if (m_history)
        ClearUndoStep(); // the history undoes the step
    SendChange();
}

bool CTamloDoc::IsWidgetDeleted(const CHmiWidget* widget) const
{
    return m_deletedWidgets.contains(widget);
}

void CTamloDoc::Undo()
{
    CChangeBatch batch(*this);
    m_bUndoStepOpen = false;
    const std::vector<HmiUndoEntry> step = m_undoStep;
    ClearUndoStep();
    if (step.empty())
        return;
    for (auto entry = step.rbegin(); entry != step.rend(); ++entry) {
        CHmiWidget* widget = entry->widget;
        switch (entry->operation) {
        case UndoOperation::Changed:
            if (widget->GetWidgetRect() != entry->rectBefore) {
                Record(*widget, DocChange::Geometry);
                widget->SetWidgetRect(entry->rectBefore);
            }
            break;
        case UndoOperation::Deleted:
            Record(*widget, DocChange::Added);
            break;
        case UndoOperation::Added:
            RemoveWidget(widget);
            break;
        }
    }
    SetModifiedFlag();
}

CHmiWidget* CTamloDoc::FindWindowWidget() const
{
    CHmiWidget* window = GetWindowWidget();
    return window && !IsWidgetDeleted(window) ? window : nullptr;
}

bool CTamloDoc::MoveWidget(CHmiWidget* widget, std::size_t index)
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [widget](const HmiWidgetPtr& w) { return w.get() == widget; });
    if (found == m_widgets.end())
        return false;
    CChangeBatch batch(*this);
    HmiWidgetPtr moved = std::move(*found);
    m_widgets.erase(found);
    m_widgets.insert(m_widgets.begin() + std::ptrdiff_t(std::min(index, m_widgets.size())), std::move(moved));
    ListChanged();
    Record(*widget, DocChange::Order);
    SetModifiedFlag();
    return true;
}

void CTamloDoc::PutBackWidget(HmiWidgetPtr widget, std::size_t index)
{
    if (!widget)
        return;
    CChangeBatch batch(*this);
    CHmiWidget& back = *widget;
    m_widgets.insert(m_widgets.begin() + std::ptrdiff_t(std::min(index, m_widgets.size())), std::move(widget));
    ListChanged();
    Record(back, DocChange::Added);
    SetModifiedFlag();
}

bool CTamloDoc::ReplaceWidget(CHmiWidget* widget, HmiWidgetPtr replacement)
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [widget](const HmiWidgetPtr& w) { return w.get() == widget; });
    if (found == m_widgets.end() || !replacement)
        return false;
    CChangeBatch batch(*this);
    const std::size_t index = std::size_t(found - m_widgets.begin());
    RemoveWidget(widget);
    replacement->m_pDocument = this;
    PutBackWidget(std::move(replacement), index);
    return true;
}

bool CTamloDoc::RestoreOrder(const std::vector<CHmiWidget*>& order)
{
    if (order.size() != m_widgets.size())
        return false;
    std::unordered_map<const CHmiWidget*, std::size_t> index;
    for (std::size_t i = 0; i < m_widgets.size(); ++i)
        index.emplace(m_widgets[i].get(), i);
    if (!std::all_of(order.begin(), order.end(), [&index](const CHmiWidget* w) { return index.contains(w); }) ||
        std::unordered_set<const CHmiWidget*>(order.begin(), order.end()).size() != order.size())
        return false;
    CChangeBatch batch(*this);
    std::deque<HmiWidgetPtr> reordered;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::size_t from = index.at(order[i]);
        reordered.push_back(std::move(m_widgets[from]));
        if (from != i)
            Record(*order[i], DocChange::Order);
    }
    m_widgets = std::move(reordered);
    ListChanged();
    SetModifiedFlag();
    return true;
}

bool CTamloDoc::HasWidgetName(std::string_view name) const
{
    return std::any_of(m_widgets.begin(), m_widgets.end(),
                       [name](const HmiWidgetPtr& w) { return w->GetWidgetName() == name; });
}

CHmiWidget* CTamloDoc::GetWindowWidget() const
{
    if (!m_windowKnown) {
        const auto window = std::find_if(m_widgets.begin(), m_widgets.end(),
                                         [](const HmiWidgetPtr& widget) { return IsWindowWidget(*widget); });
        m_windowWidget = window == m_widgets.end() ? nullptr : window->get();
        m_windowKnown = true;
    }
    return m_windowWidget;
}

FileResult CTamloDoc::Load(const std::string& path)
{
    CChangeBatch batch(*this);
    DeleteContents();
    m_strPathName = path;
    const FileResult result =
        ReadWindowFile(path, [this](HmiWidgetPtr widget) { AddWidget(std::move(widget), false); });
    if (!GetWindowWidget())
        AddWindowWidget(false);
    m_bModified = false;
    std::error_code noSize;
    m_nLastTextSize = result ? std::size_t(std::filesystem::file_size(path, noSize)) : 0;
    if (noSize)
        m_nLastTextSize = 0;
    return result;
}

CWindowFileWriter CTamloDoc::WriteWidgets() const
{
    CWindowFileWriter writer(m_nLastTextSize);
    for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget) {
        if (!IsWidgetDeleted(widget->get()))
            writer.Write(**widget);
    }
    return writer;
}

std::string CTamloDoc::Serialize() const
{
    std::string text = WriteWidgets().Finish();
    m_nLastTextSize = text.size();
    return text;
}

FileResult CTamloDoc::SerializeChecked(std::string& text) const
{
    CWindowFileWriter writer = WriteWidgets();
    text = writer.Finish();
    m_nLastTextSize = text.size();
    return CheckWindowFileReadsBack(text, writer.Written(), writer.WidgetsEnd());
}

FileResult CTamloDoc::Save(const std::string& path)
{
    std::string text;
    FileResult result = SerializeChecked(text);
    if (!result)
        result.error = "Cannot save " + path + ": " + result.error;
    else
        result = WriteFileAtomically(path, text);
    if (result) {
        m_strPathName = path;
        SetModifiedFlag(false);
    }
    return result;
}

std::string CTamloDoc::GetPictureFolder() const
{
    if (!m_strPictureFolder.empty())
        return m_strPictureFolder.back() == '/' ? m_strPictureFolder : m_strPictureFolder + "/";
    const std::size_t slash = m_strPathName.rfind('/');
    return slash == std::string::npos ? std::string() : m_strPathName.substr(0, slash + 1);
}

void CTamloDoc::AddView(CHmiView* view)
{
    if (std::find(m_views.begin(), m_views.end(), view) == m_views.end())
        m_views.push_back(view);
    HandViewOver(nullptr);
}

void CTamloDoc::RemoveView(CHmiView* view)
{
    std::erase(m_views, view);
    HandViewOver(view);
}

void CTamloDoc::HandViewOver(const CHmiView* from)
{
    CHmiView* first = m_views.empty() ? nullptr : m_views.front();
    for (const HmiWidgetPtr& widget : m_widgets)
        if (widget->m_pView == from)
            widget->m_pView = first;
}

CWidgetNames::CWidgetNames(const CTamloDoc& document)
{
    for (const HmiWidgetPtr& widget : document.Widgets())
        m_names.insert(widget->GetWidgetName());
}

CUndoStepGuard::CUndoStepGuard(CTamloDoc& document) : m_document(document)
{
    m_document.BeginUndoStep();
}

CUndoStepGuard::~CUndoStepGuard()
{
    m_document.EndUndoStep();
}

void CUndoStepGuard::Record(UndoOperation operation, CHmiWidget* widget)
{
    m_document.RecordUndo(operation, widget);
}
