#include "tamlodoc.h"

#include "hmictrlwidget.h"
#include "hmiview.h"
#include "hmiwidgetwindow.h"
#include "widgetfilereader.h"
#include "windowfilecheck.h"

#include <algorithm>
#include <utility>

int& CTamloDoc::WidgetNameCounter()
{
    static int counter = 1;
    return counter;
}

void CTamloDoc::DeleteContents()
{
    if (m_pNameList) {
        for (const HmiWidgetPtr& widget : m_widgets)
            m_pNameList->RemoveWidgetName(widget->GetWidgetName());
    }
    m_undoStep.clear();
    for (const HmiWidgetPtr& widget : m_widgets)
        for (CHmiView* view : m_views)
            view->WidgetRemoved(widget.get());
    m_widgets.clear();
}

void CTamloDoc::AddWindowWidget(bool atTail, bool select)
{
    HmiWidgetPtr window(new CHmiWidgetWindow);
    window->SetWidgetName(kWindowClassKey);
    AddWidget(std::move(window), atTail, select);
}

void CTamloDoc::OnNewDocument()
{
    DeleteContents();
    AddWindowWidget(true, true);
    m_bModified = false;
}

bool CTamloDoc::AddWidget(HmiWidgetPtr widget, bool atTail, bool select)
{
    if (!widget || !widget->Init())
        return false;
    CHmiWidget& added = *widget;
    if (atTail)
        m_widgets.push_back(std::move(widget));
    else
        m_widgets.push_front(std::move(widget));
    added.m_pDocument = this;
    if (added.GetWidgetName().empty()) {
        const std::string classKey = added.GetWidgetClassName();
        std::string name;
        do
            name = classKey + std::to_string(WidgetNameCounter()++);
        while (HasWidgetName(name));
        added.SetWidgetName(std::move(name));
    }
    if (m_pNameList)
        m_pNameList->AddWidgetName(added.GetWidgetName(), select);
    SetModifiedFlag();
    return true;
}

void CTamloDoc::RemoveWidget(CHmiWidget* widget)
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [widget](const HmiWidgetPtr& w) { return w.get() == widget; });
    if (found == m_widgets.end())
        return;
    if (m_pNameList)
        m_pNameList->RemoveWidgetName(widget->GetWidgetName());
    widget->Invalidate();
    for (CHmiView* view : m_views)
        view->WidgetRemoved(widget);
    std::erase_if(m_undoStep, [widget](const HmiUndoEntry& entry) { return entry.widget == widget; });
    m_widgets.erase(found);
    SetModifiedFlag();
}

void CTamloDoc::DestroyDeletedWidgets()
{
    std::vector<CHmiWidget*> deleted;
    for (const HmiUndoEntry& entry : m_undoStep)
        if (entry.operation == UndoOperation::Deleted)
            deleted.push_back(entry.widget);
    m_undoStep.clear();
    // Their names left the name list when they were deleted.
    CWidgetNameList* nameList = std::exchange(m_pNameList, nullptr);
    for (CHmiWidget* widget : deleted)
        RemoveWidget(widget);
    m_pNameList = nameList;
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
    m_undoStep.push_back({operation, widget->GetWidgetRect(), widget});
    if (operation == UndoOperation::Deleted) {
        if (m_pNameList)
            m_pNameList->RemoveWidgetName(widget->GetWidgetName());
        if (auto* control = dynamic_cast<CHmiCtrlWidget*>(widget))
            control->Hide();
        widget->Invalidate();
    }
}

void CTamloDoc::EndUndoStep()
{
    m_bUndoStepOpen = false;
    // A click records its widget too, with the rectangle unchanged: that alone is no edit.
    const bool changed = std::any_of(m_undoStep.begin(), m_undoStep.end(), [](const HmiUndoEntry& entry) {
        return entry.operation != UndoOperation::Changed || entry.rectBefore != entry.widget->GetWidgetRect();
    });
    if (changed)
        SetModifiedFlag();
}

bool CTamloDoc::IsWidgetDeleted(const CHmiWidget* widget) const
{
    return std::any_of(m_undoStep.begin(), m_undoStep.end(), [widget](const HmiUndoEntry& entry) {
        return entry.widget == widget && entry.operation == UndoOperation::Deleted;
    });
}

void CTamloDoc::Undo()
{
    m_bUndoStepOpen = false;
    const std::vector<HmiUndoEntry> step = std::exchange(m_undoStep, {});
    if (step.empty())
        return;
    for (auto entry = step.rbegin(); entry != step.rend(); ++entry) {
        CHmiWidget* widget = entry->widget;
        switch (entry->operation) {
        case UndoOperation::Changed:
            widget->Invalidate();
            widget->SetWidgetRect(entry->rectBefore);
            widget->Invalidate();
            break;
        case UndoOperation::Deleted:
            if (m_pNameList)
                m_pNameList->AddWidgetName(widget->GetWidgetName(), false);
            widget->Invalidate();
            break;
        case UndoOperation::Added:
            RemoveWidget(widget);
            break;
        }
    }
    SetModifiedFlag();
}

CHmiWidget* CTamloDoc::DocumentHitTest(HmiPoint point) const
{
    const CHmiWidget* window = GetWindowWidget();
    for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget) {
        if (widget->get() != window && !IsWidgetDeleted(widget->get()) && (*widget)->Intersects(point))
            return widget->get();
    }
    return nullptr;
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
    HmiWidgetPtr moved = std::move(*found);
    m_widgets.erase(found);
    m_widgets.insert(m_widgets.begin() + std::ptrdiff_t(std::min(index, m_widgets.size())), std::move(moved));
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
    for (const HmiWidgetPtr& widget : m_widgets) {
        if (IsWindowWidget(*widget))
            return widget.get();
    }
    return nullptr;
}

FileResult CTamloDoc::Load(const std::string& path)
{
    DeleteContents();
    m_strPathName = path;
    const FileResult result =
        ReadWindowFile(path, [this](HmiWidgetPtr widget) {
            widget->m_pView = m_views.empty() ? nullptr : m_views.front();
            AddWidget(std::move(widget), false, false);
        });
    if (!GetWindowWidget())
        AddWindowWidget(false, false);
    for (CHmiView* view : m_views)
        view->InvalidateView();
    m_bModified = false;
    return result;
}

CWindowFileWriter CTamloDoc::WriteWidgets() const
{
    CWindowFileWriter writer;
    for (const HmiWidgetPtr& widget : m_widgets) {
        if (!IsWidgetDeleted(widget.get()))
            writer.Write(*widget);
    }
    return writer;
}

std::string CTamloDoc::Serialize() const
{
    return WriteWidgets().Finish();
}

FileResult CTamloDoc::SerializeChecked(std::string& text) const
{
    CWindowFileWriter writer = WriteWidgets();
    text = writer.Finish();
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
        m_bModified = false;
        m_strPathName = path;
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
}

void CTamloDoc::RemoveView(CHmiView* view)
{
    std::erase(m_views, view);
}

void CTamloDoc::UpdateAllViews(const HmiRect& area) const
{
    for (CHmiView* view : m_views)
        view->InvalidateDocRect(area);
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
