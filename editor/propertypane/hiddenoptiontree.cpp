#include "hiddenoptiontree.h"

bool SameRowValue(OptionItemKind kind, const OptionRowValue& a, const OptionRowValue& b)
{
    switch (kind) {
    case OptionItemKind::Color: return a.color == b.color;
    case OptionItemKind::CheckBox: return a.checked == b.checked;
    case OptionItemKind::Combo: return a.selection == b.selection;
    case OptionItemKind::Root: return true;
    default: return a.text == b.text;
    }
}

void ShowRowValue(COptionTreeItem& item, OptionItemKind kind, const OptionRowValue& value)
{
    switch (kind) {
    case OptionItemKind::Color: item.SetColor(value.color); break;
    case OptionItemKind::CheckBox: item.SetCheck(value.checked); break;
    case OptionItemKind::Combo: item.SetCurSel(value.selection); break;
    case OptionItemKind::Static:
    case OptionItemKind::Font:
    case OptionItemKind::Event: item.SetStaticText(value.text); break;
    case OptionItemKind::Root: break;
    default: item.SetEditText(value.text); break;
    }
}

void TakeRowValue(COptionTreeItem& item, const COptionTreeItem& committed)
{
    switch (committed.GetKind()) {
    case OptionItemKind::Edit:
    case OptionItemKind::File:
    case OptionItemKind::Variable: item.SetEditText(committed.GetEditText()); break;
    case OptionItemKind::Color: item.SetColor(committed.GetColor()); break;
    case OptionItemKind::CheckBox: item.SetCheck(committed.GetCheck()); break;
    case OptionItemKind::Combo: item.SetCurSel(committed.GetCurSel()); break;
    default: break;
    }
}

COptionTreeItem* CHiddenOptionTree::CreateNewRootItem(const std::string& caption, const std::string& info)
{
    return CreateNewItem(OptionItemKind::Root, nullptr, caption, info);
}

COptionTreeItem* CHiddenOptionTree::CreateNewItem(OptionItemKind kind, COptionTreeItem* parent,
                                                  const std::string& caption, const std::string& info)
{
    if (m_used == m_items.size())
        m_items.push_back(std::make_unique<CHiddenOptionItem>());
    CHiddenOptionItem& item = *m_items[m_used++];
    item.kind = kind;
    // Every parent a widget passes is an item it got from this tree.
    item.parent = static_cast<CHiddenOptionItem*>(parent);
    item.caption = caption;
    item.info = info;
    item.key.clear();
    item.bindable = false;
    item.mark = kHmiColor3DFace;
    item.choices.clear();
    item.value = {};
    return &item;
}
