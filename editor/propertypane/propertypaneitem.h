#pragma once

#include "widgets/optiontree.h"

#include <QObject>

#include <functional>
#include <string>

class CPropertyPane;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeWidgetItem;

// One row of the property pane: a group row or a property with its editor in the value column.
// The committed value is kept here in model form (GB2312 bytes), so a row the user never
// touched hands back exactly the bytes it was given. The editors' signals are connected to
// this object and die with it, which keeps editors that Qt deletes later from reaching a
// cleared pane.
class CPropertyPaneItem : public QObject, public COptionTreeItem {
public:
    CPropertyPaneItem(CPropertyPane& pane, OptionItemKind kind, CPropertyPaneItem* parent, QTreeWidgetItem* row,
                      std::string caption);

    OptionItemKind GetKind() const override { return m_kind; }
    COptionTreeItem* GetParent() const override { return m_parent; }
    std::string GetLabelText() const override { return m_caption; }
    void Expand() override;
    void SetAdtColumnBkColor(HmiColor color) override;
    void SetBindable(bool bindable) override;
    std::string GetEditText() const override;
    void SetEditText(const std::string& text) override;
    HmiColor GetColor() const override { return m_color; }
    void SetColor(HmiColor color) override;
    bool GetCheck() const override;
    void SetCheck(bool checked) override;
    void AddString(const std::string& text) override;
    int GetCurSel() const override { return m_selection; }
    void SetCurSel(int index) override;
    void SetStaticText(const std::string& text) override;

    // Shows no value, since the widgets the row stands for differ: an empty field, a partly
    // checked box, a combo without selection, a colour swatch without colour. Any value set
    // afterwards is shown as usual, and any value the user commits is an edit.
    void ShowMixed();
    // The value can be read but not edited.
    void SetReadOnly();
    // Disables the row's buttons, telling why: their dialogs edit one widget.
    void DisableButtons(const QString& reason);

    QTreeWidgetItem* Row() const { return m_row; }
    // The value editor: line edit, combo box, check box, colour swatch or label; null on group rows.
    QWidget* Editor() const;
    // The "..." of file, variable, font and event rows; null on other rows.
    QToolButton* BrowseButton() const { return m_browse; }
    // The "..." of a bindable row; null unless the row is bindable.
    QToolButton* BindButton() const { return m_bind; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildEditor(const QString& info);
    QToolButton* AddButton(const std::function<void()>& request, const QString& toolTip);
    void CommitText();
    void ChooseColor();
    void ShowColor();

    CPropertyPane& m_pane;
    const OptionItemKind m_kind;
    CPropertyPaneItem* const m_parent;
    QTreeWidgetItem* const m_row; // owned by the tree
    const std::string m_caption;

    std::string m_text; // edit, file, variable, static and font rows
    HmiColor m_color = 0;
    int m_selection = -1;
    bool m_mixedColor = false;

    // Editors live in the value cell, which the tree owns.
    QWidget* m_cell = nullptr;
    QHBoxLayout* m_layout = nullptr;
    QLineEdit* m_edit = nullptr;
    QComboBox* m_combo = nullptr;
    QCheckBox* m_check = nullptr;
    QPushButton* m_swatch = nullptr;
    QLabel* m_label = nullptr;
    QToolButton* m_browse = nullptr;
    QToolButton* m_bind = nullptr;
};
