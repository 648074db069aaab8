#include "memoryoptiontree.h"

MemoryOptionItem* MemoryOptionTree::Find(const std::string& caption, const std::string& rootCaption) const
{
    for (const auto& item : items)
        if (item->caption == caption && (rootCaption.empty() || (item->parent && item->parent->caption == rootCaption)))
            return item.get();
    return nullptr;
}

std::vector<MemoryOptionItem*> MemoryOptionTree::ChildrenOf(const MemoryOptionItem* parent) const
{
    std::vector<MemoryOptionItem*> children;
    for (const auto& item : items)
        if (item->parent == parent)
            children.push_back(item.get());
    return children;
}
