#pragma once

#include "editor/startup/widgetlibraryloader.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

// What became of each widget library at start-up: its file, the outcome and the reason. A
// library that is skipped because it crashed an earlier start can be let in at the next start.
class CWidgetLibraryDialog : public QDialog {
    Q_OBJECT
public:
    explicit CWidgetLibraryDialog(WidgetLibraryLoadReport report, QWidget* parent = nullptr);

private:
    // Whether the next start skips the library, as this one did after a crash.
    bool SkippedAtNextStart(const WidgetLibraryLoad& library) const;
    // The library of the chosen row when the next start would skip it after a crash.
    const WidgetLibraryLoad* SkippedLibrary() const;
    void LoadAgainAtNextStart();
    void UpdateLoadAgainButton();

    WidgetLibraryLoadReport m_report;
    QTreeWidget* m_list;
    QPushButton* m_loadAgain = nullptr;
};
