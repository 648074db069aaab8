#pragma once

#include <QListWidget>

#include <string>

class CCanvasTools;
struct CWidgetRunTimeClass;

// The toolbox pane: "Pointer", then the built-in widget kinds in their toolbox order, then every
// other class the registry knows (those of widget libraries), each with the label and icon its
// registration gives (by default its key, and for a library's class a common icon). Choosing an
// entry makes the placing tool create that class, choosing "Pointer" brings back the selection
// tool.
class CToolbox : public QListWidget {
    Q_OBJECT
public:
    explicit CToolbox(CCanvasTools& tools, QWidget* parent = nullptr);

    // Shows the pointer again once the selection tool is back (a click that placed nothing).
    void SyncWithCurrentTool();

private:
    void AddClass(const CWidgetRunTimeClass& entry);
    bool HasClass(const std::string& key) const;
    void Choose(QListWidgetItem* item);

    CCanvasTools& m_tools;
};
