#pragma once

#include "base/hmitypes.h"

#include <string>
#include <string_view>

// The property list as the widgets see it: a tree of root items (one per property group)
// whose rows are editor items of several kinds. The editor implements it on a tree view;
// tests implement it in memory. Only the operations that widgets use are here.

// Background of a row's extra column when the property has no bound expression
// (the face colour of three-dimensional controls).
constexpr HmiColor kHmiColor3DFace = 0x00F0F0F0;
// Background of the extra column of a row whose property is bound to an expression.
constexpr HmiColor kHmiColorBound = 0x000000FF;

// The colour that marks, in a row's extra column, whether its property is bound (its expression).
constexpr HmiColor BindingMarkColor(std::string_view expression)
{
    return expression.empty() ? kHmiColor3DFace : kHmiColorBound;
}

class COptionTreeItem {
public:
    virtual ~COptionTreeItem() = default;

    virtual COptionTreeItem* GetParent() const = 0;
    virtual std::string GetLabelText() const = 0;
    virtual void Expand() = 0;
    virtual void SetAdtColumnBkColor(HmiColor color) = 0;
    // A bindable row gets a button that opens the dynamic-property dialogs.
    virtual void SetBindable(bool bindable) = 0;

    // Value access; each kind of item answers the calls that fit it and ignores the others.
    virtual std::string GetEditText() const = 0;       // edit, file and variable items
    virtual void SetEditText(const std::string& text) = 0;
    virtual HmiColor GetColor() const = 0;             // colour items
    virtual void SetColor(HmiColor color) = 0;
    virtual bool GetCheck() const = 0;                 // check-box items
    virtual void SetCheck(bool checked) = 0;
    virtual void AddString(const std::string& text) = 0; // combo items
    virtual int GetCurSel() const = 0;                 // -1: no selection
    virtual void SetCurSel(int index) = 0;             // an index outside the list clears the selection
    virtual void SetStaticText(const std::string& text) = 0; // static and font items
};

// Font rows show the font as read-only text; a button asks the editor for its font dialog.
enum class OptionItemKind { Root, Edit, Color, Combo, CheckBox, File, Variable, Static, Font };

class COptionTree {
public:
    virtual ~COptionTree() = default;

    virtual COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info) = 0;
    // Creates a row of the given kind under parent; the caller sets its value.
    virtual COptionTreeItem* CreateNewItem(OptionItemKind kind, COptionTreeItem* parent,
                                           const std::string& caption, const std::string& info) = 0;
};
