#pragma once

#include "recentfilelist.h"

#include "editor/preferences/editorpreferences.h"

#include "project/scriptfunctions.h"
#include "libraries/widgetlibraryloader.h"

#include <QKeySequence>
#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

class CChildFrame;
class COptionTreeItem;
class CEditorPrompts;
class CEditorSession;
class CFileWatch;
class CFormatActions;
class CHistoryDock;
class CHmiWidget;
class CProblemsPane;
class CProjectExplorer;
class CPreviewActions;
class CPropertyPane;
class CSearchResults;
class CTamloDoc;
class CViewZoomActions;
class CTamloView;
class CToolbox;
class CVariablesDock;
class CWidgetLibraryDialog;
class CWidgetNameCombo;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QSettings;
struct OpenWindow;
struct PlaceLink;

// The editor's main window: one child window per open window file in an MDI area, the project
// explorer, the toolbox and the property pane in docks, the list of widget names, and the menus
// that act on the active window. It watches the open window files, so that each window tells
// when another program changes its file.
class CMainFrame : public QMainWindow {
    Q_OBJECT
public:
    CMainFrame(CEditorPrompts& prompts, QSettings& settings, CEditorSession& session, QWidget* parent = nullptr);
    ~CMainFrame() override;

    // The user's preferences; the canvases and the undo history follow their changes.
    CEditorPreferences& Preferences() { return m_preferences; }

    CChildFrame* NewDocument();
    // Opens a window file, or shows it if it is open already. Null when it cannot be read
    // (the user has been told why); the user is also told what to know about a file that opened.
    CChildFrame* OpenDocument(const QString& path);
    // The same, but what the user should be told goes to message instead.
    CChildFrame* OpenDocument(const QString& path, QString& message);
    // Reads a window file for a child window and adds it to the recent files; null when it
    // cannot be read. message tells why, or what to know about a file that was read.
    std::unique_ptr<CTamloDoc> LoadDocument(const QString& path, QString& message);
    // Shows a document that is in memory already in a new child window.
    CChildFrame* AddChild(std::unique_ptr<CTamloDoc> document);
    // The child window that shows the window file, or null.
    CChildFrame* FindChild(const QString& path) const;
    CChildFrame* ActiveChild() const;
    CTamloView* ActiveView() const;
    QList<CChildFrame*> Children() const;

    CProjectExplorer& Explorer() const { return *m_explorer; }
    CPropertyPane& PropertyPane() const { return *m_propertyPane; }
    CToolbox& Toolbox() const { return *m_toolbox; }
    CWidgetNameCombo& NameCombo() const { return *m_nameCombo; }
    CVariablesDock& VariablesDock() const { return *m_variables; }
    CPreviewActions& Preview() const { return *m_preview; }
    QMdiArea& MdiArea() const { return *m_mdiArea; }
    const CRecentFileList& RecentFiles() const { return m_recentFiles; }

    // The script functions the event dialog offers.
    void SetScriptFunctions(std::vector<ScriptFunction> functions) { m_scriptFunctions = std::move(functions); }

    // What became of the widget libraries at start-up, for "Help > Widget Libraries". When a
    // library failed, a notice in the status bar offers the report.
    void SetWidgetLibraries(WidgetLibraryLoadReport report);

    // Shows the project at GetProjectPath(), after something else than the main frame's own
    // commands has changed it.
    void FollowProjectPath();

    // Brings the window to the front after another editor start handed a file over.
    void RaiseAndRestore();

    // Runs the step from the event loop once the frame has painted for the first time, so that
    // what the first window can do without does not delay it. Steps run in the order given.
    void AfterFirstPaint(std::function<void()> step);

public slots:
    // Lists every use of a variable reference in the project's windows under "Search Results".
    void FindReferences(const QString& reference);

signals:
    // The user closed the editor, and every window's changes were saved or discarded.
    void closedByUser();

protected:
    void closeEvent(QCloseEvent* event) override;
    // Notices the first paint, after which the waiting panes are filled in.
    bool event(QEvent* event) override;

private:
    void CreateActions();
    void CreateMenus();
    void CreateDocks();
    void ConnectRowDialogs();
    using RowDialog = std::function<bool(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row)>;
    // Opens the dialog of a row's button for the widget the pane shows.
    void RunRowDialog(COptionTreeItem* row, const RowDialog& dialog);
    QAction* AddCanvasAction(const QString& text, const QString& statusText, QKeySequence::StandardKey key,
                             void (CMainFrame::*slot)());
    QAction* AddAction(QMenu* menu, const QString& text, const QString& statusText, void (CMainFrame::*slot)());

    // The Problems and Search Results docks, the Tools menu and the commands behind them.
    void CreateProjectDocks();
    void CreateToolsMenu();
    // The Variables dock and the preview that plays its values.
    void CreatePreviewDock();
    // While a preview runs, nothing that changes a document can be reached.
    void PreviewRunningChanged(bool running);
    void ToolsCheckProject();
    void ToolsRenameVariable();
    void EditFindReferences();
    // Opens the window and shows the widget and its property's or event's row.
    void ShowPlace(const PlaceLink& link);
    // The project folder; empty, after telling the user, when there is none.
    std::string ProjectFolder();
    std::vector<OpenWindow> OpenWindows() const;

    void ChildActivated(QMdiSubWindow* window);
    // Shows the shown child's widgets in the name list and its selection in the property pane.
    void ShowChildInPanes();
    // Shows the widget selected last on the canvas in the property pane and the name list.
    void ShowSelection(CTamloView& view);
    // The waiting steps run, and the project explorer reads the project, once the frame has
    // painted, so that the first window shows sooner.
    void FinishAfterFirstPaint();
    // Enables the commands that have something to act on; the panes and the canvas follow the
    // documents' changes themselves.
    void UpdateEditActions();
    void UpdateRecentFileActions();
    void UpdateWindowMenu();
    // Watches the files of the open windows; leaving is a child that is going away.
    void WatchWindowFiles(const CChildFrame* leaving = nullptr);

    // Commands.
    void FileNew();
    void FileOpen();
    void FileOpenProject();
    void FileOpenProjectWindow();
    void FileSave();
    void FileSaveAs();
    void EditUndo();
    void EditRedo();
    void EditCut();
    void EditCopy();
    void EditPaste();
    void EditDelete();
    void EditSelectAll();
    void HelpWidgetLibraries();
    void ToolsPreferences();
    // Returns from the placing tool to the selection tool.
    void CancelTool();

    CEditorPrompts& m_prompts;
    QSettings& m_settings;
    CEditorSession& m_session;
    CEditorPreferences m_preferences;
    CRecentFileList m_recentFiles;
    QMdiArea* m_mdiArea;
    QLabel* m_cursorPosition; // where the mouse stands on the canvas, in window coordinates
    CProjectExplorer* m_explorer = nullptr;
    CFileWatch* m_windowFiles = nullptr;
    CToolbox* m_toolbox = nullptr;
    CPropertyPane* m_propertyPane = nullptr;
    CWidgetNameCombo* m_nameCombo = nullptr;
    CProblemsPane* m_problems = nullptr;
    CSearchResults* m_searchResults = nullptr;
    CFormatActions* m_formatActions = nullptr;
    CViewZoomActions* m_zoomActions = nullptr;
    CVariablesDock* m_variables = nullptr;
    CPreviewActions* m_preview = nullptr;
    CHistoryDock* m_historyDock = nullptr;
    CChildFrame* m_shownChild = nullptr; // the child whose widgets the panes show
    bool m_painted = false;              // the frame has painted once: the explorer shows the project
    std::vector<std::function<void()>> m_afterFirstPaint;
    QMenu* m_canvasMenu = nullptr;
    QMenu* m_windowMenu = nullptr;
    std::vector<ScriptFunction> m_scriptFunctions;
    WidgetLibraryLoadReport m_libraries;
    QPointer<CWidgetLibraryDialog> m_libraryDialog; // open until the user closes it

    QAction* m_newAction = nullptr;
    QAction* m_openAction = nullptr;
    QAction* m_saveAction = nullptr;
    QAction* m_saveAsAction = nullptr;
    QAction* m_recentFileActions[CRecentFileList::kSize] = {};
    QAction* m_recentSeparator = nullptr;
    QAction* m_exitAction = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr; // shown with an unlimited undo history
    QAction* m_cutAction = nullptr;
    QAction* m_copyAction = nullptr;
    QAction* m_pasteAction = nullptr;
    QAction* m_deleteAction = nullptr;
    QAction* m_selectAllAction = nullptr;
};
