// How a widget fills the property list and takes edits back from it.

#include "hmiwidget.h"

#include "base/numberparsers.h"
#include "optiontree.h"

#include <optional>

namespace {

constexpr const char* kBasicRootCaption = "Basic properties";
constexpr const char* kEventRootCaption = "Event";

// The item a record's type builds; none for a type outside the table.
std::optional<OptionItemKind> ItemKindOf(PropItemType type)
{
    switch (type) {
    case PROP_EDIT:
    case PROP_TEXT: return OptionItemKind::Edit;
    case PROP_COLOR: return OptionItemKind::Color;
    case PROP_COMBO: return OptionItemKind::Combo;
    case PROP_CHECKBOX: return OptionItemKind::CheckBox;
    case PROP_FILE: return OptionItemKind::File;
    case PROP_VARIABLE: return OptionItemKind::Variable;
    case PROP_FONT: return OptionItemKind::Font;
    case PROP_STATIC: return OptionItemKind::Static;
    }
    return std::nullopt;
}

// Shows a value text in an item of the kind the record asks for.
void ShowValue(COptionTreeItem& item, const CHmiWidgetProp& prop, const std::string& text)
{
    switch (ItemKindOf(prop.m_nItemType).value_or(OptionItemKind::Edit)) {
    case OptionItemKind::Color: item.SetColor(HmiColor(HmiDecimalToLong(text))); break;
    case OptionItemKind::Combo:
        item.SetCurSel(prop.m_nComboCount >= 1 ? HmiDecimalToLong(text) : -1);
        break;
    case OptionItemKind::CheckBox: item.SetCheck(HmiDecimalToLong(text) != 0); break;
    case OptionItemKind::Static:
    case OptionItemKind::Font:
    case OptionItemKind::Event: item.SetStaticText(text); break;
    default: item.SetEditText(text); break;
    }
}

} // namespace

COptionTreeItem* CHmiWidget::CreateNewRootItem(const std::string& caption, const std::string& info)
{
    COptionTreeItem* root = m_pPropertyTree->CreateNewRootItem(caption, info);
    m_rootItems.push_back(root);
    return root;
}

COptionTreeItem* CHmiWidget::CreateNewStaticItem(COptionTreeItem* parent, const std::string& caption,
                                                 const std::string& info, const std::string& text)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::Static, parent, caption, info);
    item->SetStaticText(text);
    return item;
}

COptionTreeItem* CHmiWidget::CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                                   const std::string& info, const std::string& text)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::Edit, parent, caption, info);
    item->SetEditText(text);
    return item;
}

COptionTreeItem* CHmiWidget::CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                                   const std::string& info, std::int32_t value)
{
    return CreateNewPropEditItem(parent, caption, info, std::to_string(value));
}

COptionTreeItem* CHmiWidget::CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                                   const std::string& info, float value)
{
    return CreateNewPropEditItem(parent, caption, info, HmiFormatFloat(value));
}

COptionTreeItem* CHmiWidget::CreateNewPropColorItem(COptionTreeItem* parent, const std::string& caption,
                                                    const std::string& info, HmiColor color)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::Color, parent, caption, info);
    item->SetColor(color);
    return item;
}

COptionTreeItem* CHmiWidget::CreateNewPropComboItem(COptionTreeItem* parent, const std::string& caption,
                                                    const std::string& info, const char* const* list,
                                                    std::int32_t count, std::int32_t selection)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::Combo, parent, caption, info);
    for (std::int32_t i = 0; i < count; ++i)
        item->AddString(list[i]);
    if (count >= 1)
        item->SetCurSel(selection);
    return item;
}

COptionTreeItem* CHmiWidget::CreateNewPropCheckboxItem(COptionTreeItem* parent, const std::string& caption,
                                                       const std::string& info, bool checked)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::CheckBox, parent, caption, info);
    item->SetCheck(checked);
    return item;
}

COptionTreeItem* CHmiWidget::CreateNewPropFileItem(COptionTreeItem* parent, const std::string& caption,
                                                   const std::string& info, const std::string& path)
{
    COptionTreeItem* item = m_pPropertyTree->CreateNewItem(OptionItemKind::File, parent, caption, info);
    item->SetEditText(path);
    return item;
}

void CHmiWidget::CreateWidgetRootItems(COptionTree& tree)
{
    m_pPropertyTree = &tree;
    m_rootItems.clear();
    m_pBasicRootItem = CreateNewRootItem(kBasicRootCaption, "Basic Properties");
    m_pEventRootItem = CreateNewRootItem(kEventRootCaption, "Set event scripts");
    m_pBasicRootItem->Expand();
    m_pEventRootItem->Expand();
}

void CHmiWidget::SetWidgetParentItem(CHmiWidgetProp& prop)
{
    prop.m_pParentItem = m_pBasicRootItem;
    for (COptionTreeItem* root : m_rootItems) {
        if (root != m_pEventRootItem && root->GetLabelText() == prop.m_strGroup) {
            prop.m_pParentItem = root;
            return;
        }
    }
}

void CHmiWidget::SetWidgetDynPropBkColor(CHmiWidgetProp& prop) const
{
    if (prop.m_pTreeItem)
        prop.m_pTreeItem->SetAdtColumnBkColor(BindingMarkColor(prop.m_strExpression));
}

COptionTreeItem* CHmiWidget::CreatePropItem(CHmiWidgetProp& prop)
{
    const std::optional<OptionItemKind> kind = ItemKindOf(prop.m_nItemType);
    if (!kind)
        return nullptr;
    COptionTreeItem* item =
        m_pPropertyTree->CreateNewItem(*kind, prop.m_pParentItem, prop.m_strLabel, prop.m_strDescription);
    if (*kind == OptionItemKind::Combo) {
        for (std::int32_t i = 0; i < prop.m_nComboCount; ++i)
            item->AddString(prop.m_pComboList[i]);
    }
    return item;
}

void CHmiWidget::CreateWidgetPropertyTree(COptionTree& tree)
{
    CreateWidgetRootItems(tree);
    for (const auto& prop : m_properties) {
        SetWidgetParentItem(*prop);
        prop->m_pTreeItem = CreatePropItem(*prop);
        if (!prop->m_pTreeItem)
            continue;
        RefreshPropItem(*prop);
        if (prop->m_nBindable)
            prop->m_pTreeItem->SetBindable(true);
        SetWidgetDynPropBkColor(*prop);
    }
    if (m_events.empty())
        CreateEventItems();
    for (const CHmiWidgetEvent& event : m_events) {
        COptionTreeItem* item =
            m_pPropertyTree->CreateNewItem(OptionItemKind::Event, m_pEventRootItem, event.label, event.description);
        item->SetStaticText(event.code);
    }
}

void CHmiWidget::ReleasePropertyTree()
{
    for (const auto& prop : m_properties) {
        prop->m_pTreeItem = nullptr;
        prop->m_pParentItem = nullptr;
    }
    m_pPropertyTree = nullptr;
    m_pBasicRootItem = nullptr;
    m_pEventRootItem = nullptr;
    m_rootItems.clear();
}

void CHmiWidget::RefreshPropItem(const CHmiWidgetProp& prop) const
{
    std::string text;
    if (prop.m_pTreeItem && GetWidgetPropValue(prop, text))
        ShowValue(*prop.m_pTreeItem, prop, text);
}

void CHmiWidget::UpdateTreeByWidgetProp()
{
    // The binding mark too, so that a binding made or deleted in a dialog shows at once.
    for (const auto& prop : m_properties) {
        RefreshPropItem(*prop);
        SetWidgetDynPropBkColor(*prop);
    }
}

CHmiWidgetProp* CHmiWidget::GetWidgetPropByTreeItem(const COptionTreeItem* item) const
{
    if (!item)
        return nullptr;
    for (const auto& prop : m_properties) {
        if (prop->m_pTreeItem == item)
            return prop.get();
    }
    return nullptr;
}

void CHmiWidget::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
    if (!prop)
        return;
    const std::string& name = prop->m_strName;
    const std::int32_t number = HmiDecimalToLong(item->GetEditText());
    HmiRect rect = m_rect;
    if (name == "name") {
        m_strName = item->GetEditText();
    } else if (name == "left") {
        rect.left = number;
        rect.right = number + m_rect.Width();
    } else if (name == "top") {
        rect.top = number;
        rect.bottom = number + m_rect.Height();
    } else if (name == "right") {
        if (number > m_rect.left)
            rect.right = number;
    } else if (name == "bottom") {
        if (number > m_rect.top)
            rect.bottom = number;
    } else if (name == "width") {
        rect.right = m_rect.left + number;
    } else if (name == "height") {
        rect.bottom = m_rect.top + number;
    } else if (name == "visible") {
        m_bVisible = item->GetCheck();
    } else if (name == "enable") {
        m_pExtension->enable = item->GetCheck();
    } else if (name == "noredraw") {
        m_bNoRedraw = item->GetCheck();
    } else if (name == "flash") {
        m_nFlash = item->GetCheck();
    } else if (name == "flashspeed") {
        m_nFlashSpeed = number;
    } else if (name == "xoffset") {
        m_pExtension->xoffset = number;
    } else if (name == "yoffset") {
        m_pExtension->yoffset = number;
    } else {
        return;
    }
    // Unlike MoveTo, an edit in the list is taken as typed: a negative width stays inverted.
    m_rect = rect;
    UpdateTreeByWidgetProp();
}
