#pragma once

#include <cstdint>
#include <memory>
#include <string>

class CHmiDynamicType;
class COptionTreeItem;

// The editor item a property gets in the property list.
enum PropItemType : std::int32_t {
    PROP_EDIT = 0,
    PROP_COLOR = 1,
    PROP_COMBO = 2,
    PROP_CHECKBOX = 3,
    PROP_FILE = 4,
    PROP_VARIABLE = 5,
    PROP_TEXT = 6,
    PROP_FONT = 7,
    PROP_STATIC = 8,
};

// Describes one editable property of a widget: its file key, its row in the property list and
// its binding to an expression. The value itself lives in the widget's own fields.
class CHmiWidgetProp {
public:
    CHmiWidgetProp(const char* name, const char* label, const char* description, std::int32_t bindable,
                   const char* group, PropItemType itemType);
    // Copies share the tree items and the combo list; the dynamic type object is owned by each
    // record, so a copy gets a clone of it rather than a second owner of the same object.
    CHmiWidgetProp(const CHmiWidgetProp& other);
    CHmiWidgetProp& operator=(const CHmiWidgetProp& other);
    CHmiWidgetProp(CHmiWidgetProp&&) noexcept;
    CHmiWidgetProp& operator=(CHmiWidgetProp&&) noexcept;
    virtual ~CHmiWidgetProp();

    // Stores the choices of a combo item. Nothing is copied: the array must outlive the record.
    void SetComboList(const char* const* strings, std::int32_t count);

    // Takes ownership of the binding's type object (null removes it).
    void SetDynamicType(std::unique_ptr<CHmiDynamicType> type);
    CHmiDynamicType* GetDynamicType() const { return m_pDynamicType.get(); }

    std::string m_strName;        // key in the window file, e.g. "left"
    std::string m_strLabel;       // caption of the row, e.g. "Left"
    std::string m_strDescription; // help text of the row
    std::int32_t m_nBindable = 0; // non-zero: may be bound to an expression
    PropItemType m_nItemType = PROP_EDIT;
    COptionTreeItem* m_pTreeItem = nullptr;   // row built by the last CreateWidgetPropertyTree; not owned
    std::string m_strGroup;                   // caption of the group root item
    COptionTreeItem* m_pParentItem = nullptr; // root item of the group; not owned
    std::string m_strExpression;              // the bound runtime expression; empty: static property
    const char* const* m_pComboList = nullptr;
    std::int32_t m_nComboCount = 0;

private:
    std::unique_ptr<CHmiDynamicType> m_pDynamicType;
};
