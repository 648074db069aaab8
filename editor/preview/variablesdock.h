#pragma once

#include "preview/previewscene.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class CPreviewValues;
class CVariablesModel;
class QDockWidget;
class QKeyEvent;
class QShowEvent;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;
class QTreeWidget;

// The "Variables" dock of the preview: every variable of the project with its value, edited in
// place, with a filter and a generator per variable; the value set of the project
// (preview-values.json) is saved, loaded and reset from here. Below, the bindings of the
// previewed window that fail, with their errors. The dock owns the values the preview plays.
class CVariablesDock : public QWidget {
    Q_OBJECT
public:
    explicit CVariablesDock(QWidget* parent = nullptr);
    ~CVariablesDock() override;

    // Reads the variables of the project in the folder (ending in "/"); they start at their
    // init values. Whatever plays the old values must have let go of them.
    void LoadProject(const std::string& folder);
    const std::string& ProjectFolder() const { return m_folder; }
    CPreviewValues* Values() const { return m_values.get(); }

    // Lists the failing bindings of the previewed window; none while no preview runs.
    void ShowProblems(const std::vector<BindingProblem>& problems);

    // The dock's contents are built when it is first shown, or asked for here. In a dock widget,
    // they wait until the dock is in sight: a dock behind another dock's tab is shown as well,
    // only out of sight.
    void BuildWhenInSight(QDockWidget& dock);
    QTableView* Table();
    QLineEdit* Filter();
    QTreeWidget* ProblemList();

signals:
    // Escape reached the dock: no cell was being edited, so the user means to leave the preview.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // The filter, the table, the message and the problem list: the dock usually waits behind
    // the property pane's tab, and the start of the editor does not wait for it.
    void BuildContents();
    void FitColumns();
    void FillProblemList();
    void SaveValues();
    void LoadValues();
    void Tell(const QString& text);

    std::string m_folder;
    std::unique_ptr<CPreviewValues> m_values;
    CVariablesModel* m_model;
    QSortFilterProxyModel* m_filtered;
    QLineEdit* m_filter = nullptr;
    QTableView* m_table = nullptr;
    QLabel* m_message = nullptr;
    QTreeWidget* m_problemList = nullptr;
    QStringList m_shownProblems; // one line each, to leave the list alone when nothing changed
    bool m_buildsWhenInSight = false;
};
