#include "coretextlist.h"

#include "coretexts.h"

#include "base/textcodec.h"
#include "project/variabledatabase.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/optiontree.h"
#include "workspace/projectcheck.h"

#include <algorithm>
#include <memory>

namespace {

class CCoreTextCollector {
public:
    void Add(const char* context, const std::string& modelText)
    {
        CoreText entry{context, Gb2312ToUtf8OrKeep(modelText)};
        if (!entry.text.empty() && std::find(m_texts.begin(), m_texts.end(), entry) == m_texts.end())
            m_texts.push_back(std::move(entry));
    }
    std::vector<CoreText> Take() { return std::move(m_texts); }

private:
    std::vector<CoreText> m_texts;
};

// A row of the property pane that only takes note of what the pane would show: its choices.
class CCollectedItem : public COptionTreeItem {
public:
    CCollectedItem(CCoreTextCollector& texts, OptionItemKind kind, COptionTreeItem* parent, std::string caption)
        : m_texts(texts), m_kind(kind), m_parent(parent), m_caption(std::move(caption))
    {
    }

    OptionItemKind GetKind() const override { return m_kind; }
    COptionTreeItem* GetParent() const override { return m_parent; }
    std::string GetLabelText() const override { return m_caption; }
    void AddString(const std::string& text) override { m_texts.Add(CoreTextContext::kChoice, text); }
    void Expand() override {}
    void SetAdtColumnBkColor(HmiColor) override {}
    void SetBindable(bool) override {}
    std::string GetEditText() const override { return {}; }
    void SetEditText(const std::string&) override {}
    HmiColor GetColor() const override { return 0; }
    void SetColor(HmiColor) override {}
    bool GetCheck() const override { return false; }
    void SetCheck(bool) override {}
    int GetCurSel() const override { return -1; }
    void SetCurSel(int) override {}
    void SetStaticText(const std::string&) override {}

private:
    CCoreTextCollector& m_texts;
    const OptionItemKind m_kind;
    COptionTreeItem* const m_parent;
    const std::string m_caption;
};

// The property pane as a widget fills it, taking note of the texts of every row.
class CCollectingTree : public COptionTree {
public:
    explicit CCollectingTree(CCoreTextCollector& texts) : m_texts(texts) {}

    COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info) override
    {
        return CreateNewItem(OptionItemKind::Root, nullptr, caption, info);
    }
    COptionTreeItem* CreateNewItem(OptionItemKind kind, COptionTreeItem* parent, const std::string& caption,
                                   const std::string& info) override
    {
        const char* context = CoreTextContext::PaneRow(kind);
        m_texts.Add(context, caption);
        m_texts.Add(context, info);
        return m_items.emplace_back(std::make_unique<CCollectedItem>(m_texts, kind, parent, caption)).get();
    }

private:
    CCoreTextCollector& m_texts;
    std::vector<std::unique_ptr<CCollectedItem>> m_items;
};

void AddPaneTexts(CCoreTextCollector& texts, CHmiWidget& widget)
{
    CCollectingTree tree(texts);
    widget.CreateWidgetPropertyTree(tree);
    widget.ReleasePropertyTree();
}

} // namespace

std::vector<CoreText> ListCoreTexts()
{
    CCoreTextCollector texts;
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        if (!entry.m_strToolboxLabel.empty())
            texts.Add(CoreTextContext::kKind, entry.m_strToolboxLabel);
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        AddPaneTexts(texts, *entry.m_pRuntimeClass->CreateObject());
    CHmiWidgetCustom custom;
    AddPaneTexts(texts, custom);

    // An empty database holds only the headings that every project has.
    CHmiVariableDatabase database;
    std::vector<const VariableNode*> headings{&database.RealtimeRoot(), &database.HmiRoot()};
    headings.insert(headings.end(), database.HmiRoot().children.begin(), database.HmiRoot().children.end());
    // A database of rtdb.xml, unnamed, for the columns of its rows.
    const VariableNode realtimeDatabase{VariableNode::Kind::Database, {}, &database.RealtimeRoot(), {}, {}};
    headings.push_back(&realtimeDatabase);
    for (const VariableNode* node : headings) {
        texts.Add(CoreTextContext::kVariables, node->text);
        for (const std::string& column : CHmiVariableDatabase::Columns(*node))
            texts.Add(CoreTextContext::kVariables, column);
    }
    for (const CheckRule& rule : CheckRules())
        texts.Add(CoreTextContext::kCheckRule, rule.summary);
    return texts.Take();
}
