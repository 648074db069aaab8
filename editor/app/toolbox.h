#pragma once

#include <QListWidget>

#include <string>
#include <vector>

// One entry of the toolbox: the label shown and the class key it places (empty: the pointer).
struct ToolboxEntry {
    QString label;
    std::string classKey;
};

// "Pointer", then the built-in widget kinds in their toolbox order, then every other class the
// registry knows (those of widget libraries), labelled by its key. The window is never placed.
std::vector<ToolboxEntry> ToolboxEntries();

// The toolbox pane: choosing an entry makes the placing tool create that class, choosing
// "Pointer" brings back the selection tool.
class CToolbox : public QListWidget {
    Q_OBJECT
public:
    explicit CToolbox(QWidget* parent = nullptr);

    // Shows the pointer again once the selection tool is back (a click that placed nothing).
    void SyncWithCurrentTool();

private:
    void Choose(QListWidgetItem* item);
};
