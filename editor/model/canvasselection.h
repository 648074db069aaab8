#pragma once

#include "widgets/documentchange.h"
#include "base/hmitypes.h"

#include <functional>
#include <unordered_set>
#include <vector>

class CHmiView;
class CHmiWidget;
class CTamloDoc;

// The widgets selected on one canvas, in the order in which they were selected: the last one is
// the reference of the format commands. Selecting nothing selects the window widget, so the
// property pane always shows something; the window widget never stays selected with others.
// Widgets that leave the document leave the selection.
class CCanvasSelection : public CDocumentObserver {
public:
    CCanvasSelection(CTamloDoc& document, CHmiView& view);
    ~CCanvasSelection() override;
    CCanvasSelection(const CCanvasSelection&) = delete;
    CCanvasSelection& operator=(const CCanvasSelection&) = delete;

    // Called once a Select or a Deselect has changed the selection: the editor gives the canvas
    // the focus and shows the widget selected last in the property pane and the name list.
    void SetOnChanged(std::function<void()> onChanged) { m_onChanged = std::move(onChanged); }

    // Adds the widget (null: the window widget); without add the selection is emptied first.
    void Select(CHmiWidget* widget, bool add);
    void Deselect(CHmiWidget* widget);
    // Selects every widget that lies wholly inside a rectangle given in client coordinates.
    void SelectInRect(const HmiRect& clientRect, bool add);
    // Selects widgets other than the window widget in their order (without add: instead of the
    // selection), and tells of the change once, however many they are.
    void SelectWidgets(const std::vector<CHmiWidget*>& widgets, bool add);
    // Selects every widget of the window but the window widget, in drawing order.
    void SelectAll();
    bool IsSelected(const CHmiWidget* widget) const { return m_members.contains(widget); }

    // CDocumentObserver: a selection that loses its last widget selects the window widget.
    void DocumentChanged(const CDocumentChange& change) override;

    const std::vector<CHmiWidget*>& Widgets() const { return m_widgets; }
    bool IsEmpty() const { return m_widgets.empty(); }
    CTamloDoc& Document() const { return m_document; }
    CHmiView& View() const { return m_view; }

private:
    // Repaints the widgets' selection handles.
    void InvalidateTrackers(const std::vector<CHmiWidget*>& widgets) const;
    void Append(CHmiWidget* widget);
    void Clear();
    bool Remove(CHmiWidget* widget);

    CTamloDoc& m_document;
    CHmiView& m_view;
    std::vector<CHmiWidget*> m_widgets;
    std::unordered_set<const CHmiWidget*> m_members; // m_widgets, for tests of membership
    std::function<void()> m_onChanged;
};
