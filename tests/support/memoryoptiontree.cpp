#include "memoryoptiontree.h"

MemoryOptionItem::MemoryOptionItem(OptionItemKind kind, MemoryOptionItem* parent, std::string caption,
                                   std::string info)
    : kind(kind)
    , parent(parent)
    , caption(std::move(caption))
    , info(std::move(info))
{
}

COptionTreeItem* MemoryOptionTree::CreateNewItem(OptionItemKind kind, COptionTreeItem* parent,
                                                 const std::string& caption, const std::string& info)
{
    items.push_back(std::make_unique<MemoryOptionItem>(kind, static_cast<MemoryOptionItem*>(parent), caption, info));
    return items.back().get();
}

MemoryOptionItem* MemoryOptionTree::Find(const std::string& caption, const std::string& rootCaption) const
{
    for (const auto& item : items) {
        if (item->caption != caption)
            continue;
        if (rootCaption.empty() || (item->parent && item->parent->caption == rootCaption))
            return item.get();
    }
    return nullptr;
}

std::vector<MemoryOptionItem*> MemoryOptionTree::ChildrenOf(const MemoryOptionItem* parent) const
{
    std::vector<MemoryOptionItem*> children;
    for (const auto& item : items) {
        if (item->parent == parent)
            children.push_back(item.get());
    }
    return children;
}
