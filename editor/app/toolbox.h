#pragma once

#include <QListWidget>

#include <string>
#include <vector>

class CCanvasTools;
struct CWidgetRunTimeClass;

// The toolbox pane: "Pointer", then the built-in widget kinds in their toolbox order, then every
// other class the registry knows (those of widget libraries), each with the label and icon its
// registration gives (by default its key, and for a library's class a common icon; the built-in
// kinds have drawn icons). Choosing an entry makes the placing tool create that class, choosing
// "Pointer" brings back the selection tool. The entry of the current tool stays highlighted.
class CToolbox : public QListWidget {
    Q_OBJECT
public:
    explicit CToolbox(CCanvasTools& tools, QWidget* parent = nullptr);

    // Highlights the entry of the current tool after the canvas changed it: the pointer once the
    // selection tool is back (a click that placed nothing, Escape).
    void SyncWithCurrentTool();

    // Large enough for every entry.
    QSize sizeHint() const override;

    // Gives the entries their icons; until then blank icons of the same size hold their places,
    // so that drawing the icons can wait for the main frame's first paint.
    void ShowIcons();

private:
    void AddClass(const CWidgetRunTimeClass& entry);
    QListWidgetItem* AddEntry(const QIcon& icon, const QString& label);
    bool HasClass(const std::string& key) const;
    void Choose(QListWidgetItem* item);

    CCanvasTools& m_tools;
    std::vector<QIcon> m_icons; // by row, until they are shown
};
