#pragma once

#include "hiddenoptiontree.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

class CHmiWidget;

// A row that every one of several widgets has: the same key (a property's name, an event's
// name, or else the caption under its group) and the same kind of item, for a combo also the
// same list. Its value is the widgets' common one, unless they differ.
struct SharedRow {
    static constexpr std::size_t kNoGroup = std::size_t(-1); // a row made without a group row

    std::string key;
    OptionItemKind kind;
    std::size_t group; // index into CSharedRows::Groups(), or kNoGroup
    std::string caption;
    std::string info;
    std::vector<std::string> choices;
    bool bindable = false;
    bool bound = false;    // some widget binds it to an expression
    bool readOnly = false; // a value that no two widgets may share
    bool agree = true;     // every widget holds value
    OptionRowValue value;
};

// A group row (root item) that holds shared rows.
struct SharedGroup {
    std::string caption;
    std::string info;
};

// The rows that several widgets share, in the order of the first widget. Each widget fills a
// hidden option tree of its own, one after the other, exactly as it fills the property pane;
// an edit of a shared row goes to each widget's own row and through the widget's own write-back,
// so every rule a widget keeps for its rows holds for each widget alone. The widgets are read a
// part at a time, so that thousands of them never hold up the editor for long.
class CSharedRows {
public:
    // Finds the first widget's rows; the widgets' values are read by ReadMore.
    explicit CSharedRows(std::vector<CHmiWidget*> widgets);

    // Reads up to count more widgets; true once every widget has been read, when the rows are
    // those all of them have and hold their values.
    bool ReadMore(std::size_t count);
    // Reads the widgets' values of the same rows again, after they changed.
    void Reread() { m_nextWidget = 0; }

    const std::vector<SharedRow>& Rows() const { return m_rows; }
    const std::vector<SharedGroup>& Groups() const { return m_groups; }
    // Gives the widget's own row the value committed in a row of the same kind, and lets the
    // widget take it as it takes a user's edit.
    void Apply(CHmiWidget& widget, std::size_t row, const COptionTreeItem& committed);

private:
    // Lets the widget fill the hidden tree and gives each row its key.
    void Fill(CHmiWidget& widget);
    void TakeRowsOfFilling();
    // Compares a widget's rows with the shared ones: the first widget read gives the values.
    void ReadWidget(std::size_t index);
    // Keeps only the rows that every widget has.
    void DropMissingRows();

    const std::vector<CHmiWidget*> m_widgets;
    std::size_t m_nextWidget = 0;
    bool m_narrowing = true; // the first reading finds out which rows all widgets have
    CHiddenOptionTree m_tree;
    std::vector<SharedRow> m_rows;
    std::vector<SharedGroup> m_groups;
    std::unordered_map<std::string, std::size_t> m_rowByKey;
    std::vector<char> m_missing; // per row: some widget lacks it
    std::vector<char> m_seen;    // per row: the widget being read has it
};
