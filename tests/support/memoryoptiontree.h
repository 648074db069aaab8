#pragma once

#include "widgets/optiontree.h"

#include <memory>
#include <string>
#include <vector>

// A property list held in memory: every item keeps what it was given, so tests can read the
// rows a widget built and play the user's edits back to it.
class MemoryOptionItem : public COptionTreeItem {
public:
    MemoryOptionItem(OptionItemKind kind, MemoryOptionItem* parent, std::string caption, std::string info)
        : kind(kind), parent(parent), caption(std::move(caption)), info(std::move(info))
    {
    }

    COptionTreeItem* GetParent() const override { return parent; }
    std::string GetLabelText() const override { return caption; }
    void Expand() override { expanded = true; }
    void SetAdtColumnBkColor(HmiColor color) override { extraColumnColor = color; }
    void SetBindable(bool value) override { bindable = value; }
    std::string GetEditText() const override { return editText; }
    void SetEditText(const std::string& text) override { editText = text; }
    HmiColor GetColor() const override { return color; }
    void SetColor(HmiColor value) override { color = value; }
    bool GetCheck() const override { return checked; }
    void SetCheck(bool value) override { checked = value; }
    void AddString(const std::string& text) override { choices.push_back(text); }
    int GetCurSel() const override { return selection; }
    void SetCurSel(int index) override { selection = index >= 0 && index < int(choices.size()) ? index : -1; }
    void SetStaticText(const std::string& text) override { staticText = text; }

    OptionItemKind kind;
    MemoryOptionItem* parent;
    std::string caption;
    std::string info;
    bool expanded = false;
    bool bindable = false;
    HmiColor extraColumnColor = 0;
    std::string editText;
    HmiColor color = 0;
    bool checked = false;
    std::vector<std::string> choices;
    int selection = -1;
    std::string staticText;
};

class MemoryOptionTree : public COptionTree {
public:
    COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info) override
    {
        return CreateNewItem(OptionItemKind::Root, nullptr, caption, info);
    }
    COptionTreeItem* CreateNewItem(OptionItemKind kind, COptionTreeItem* parent, const std::string& caption,
                                   const std::string& info) override
    {
        auto* memoryParent = static_cast<MemoryOptionItem*>(parent);
        return items.emplace_back(std::make_unique<MemoryOptionItem>(kind, memoryParent, caption, info)).get();
    }

    // The first item with this caption (under the given root caption, when one is given).
    MemoryOptionItem* Find(const std::string& caption, const std::string& rootCaption = {}) const;
    std::vector<MemoryOptionItem*> ChildrenOf(const MemoryOptionItem* parent) const;

    std::vector<std::unique_ptr<MemoryOptionItem>> items; // in creation order
};
