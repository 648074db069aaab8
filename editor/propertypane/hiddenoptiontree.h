#pragma once

#include "widgets/optiontree.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// The value a row holds; each kind of row uses the field that fits it.
struct OptionRowValue {
    std::string text; // edit, file and variable rows; static, font and event rows
    HmiColor color = 0;
    bool checked = false;
    int selection = -1;
};

// Whether two rows of the given kind hold the same value.
bool SameRowValue(OptionItemKind kind, const OptionRowValue& a, const OptionRowValue& b);
// Shows a value in a row of the given kind, through the row's own interface.
void ShowRowValue(COptionTreeItem& item, OptionItemKind kind, const OptionRowValue& value);
// Gives a row the value that the user committed in another row of the same kind. Rows that only
// show text (static, font, event) are changed by their dialogs, never in place, and take nothing.
void TakeRowValue(COptionTreeItem& item, const COptionTreeItem& committed);

// One row of a hidden option tree: it keeps what it is given, and the key under which rows of
// different widgets are matched (set by the tree's owner once the widget has filled it).
class CHiddenOptionItem : public COptionTreeItem {
public:
    OptionItemKind GetKind() const override { return kind; }
    COptionTreeItem* GetParent() const override { return parent; }
    std::string GetLabelText() const override { return caption; }
    void Expand() override {}
    void SetAdtColumnBkColor(HmiColor color) override { mark = color; }
    void SetBindable(bool value) override { bindable = value; }
    std::string GetEditText() const override { return value.text; }
    void SetEditText(const std::string& text) override { value.text = text; }
    HmiColor GetColor() const override { return value.color; }
    void SetColor(HmiColor color) override { value.color = color; }
    bool GetCheck() const override { return value.checked; }
    void SetCheck(bool checked) override { value.checked = checked; }
    void AddString(const std::string& text) override { choices.push_back(text); }
    int GetCurSel() const override { return value.selection; }
    void SetCurSel(int index) override { value.selection = index >= 0 && index < int(choices.size()) ? index : -1; }
    void SetStaticText(const std::string& text) override { value.text = text; }

    OptionItemKind kind = OptionItemKind::Root;
    CHiddenOptionItem* parent = nullptr;
    std::string caption;
    std::string info;
    std::string key;
    bool bindable = false;
    HmiColor mark = kHmiColor3DFace;
    std::vector<std::string> choices;
    OptionRowValue value;
};

// A property list nobody sees: a widget fills it as it fills the property pane, so that its rows
// can be read and edited without a view. Clearing keeps the items for the next filling, so that
// filling thousands of widgets one after the other allocates hardly anything.
class CHiddenOptionTree : public COptionTree {
public:
    COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info) override;
    COptionTreeItem* CreateNewItem(OptionItemKind kind, COptionTreeItem* parent, const std::string& caption,
                                   const std::string& info) override;

    // Forgets every row; the items made so far are handed out again.
    void Clear() { m_used = 0; }
    // The rows of the current filling, in creation order.
    std::size_t Size() const { return m_used; }
    CHiddenOptionItem& Item(std::size_t index) const { return *m_items[index]; }

private:
    std::vector<std::unique_ptr<CHiddenOptionItem>> m_items;
    std::size_t m_used = 0;
};
