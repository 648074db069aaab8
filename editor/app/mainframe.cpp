#include "mainframe.h"

#include "childframe.h"
#include "editorprompts.h"
#include "firststartlayout.h"
#include "formatactions.h"
#include "historydock.h"
#include "layoutaidactions.h"
#include "pathtext.h"
#include "previewactions.h"
#include "tamloview.h"
#include "toolbox.h"
#include "toolboxicons.h"
#include "viewzoomactions.h"
#include "widgetlibrarydialog.h"
#include "widgetnamecombo.h"

#include "editor/dynamicdialogs/dynpropertyedit.h"
#include "editor/dynamicdialogs/eventedit.h"
#include "editor/explorer/filewatch.h"
#include "editor/explorer/projectexplorer.h"
#include "editor/model/editcommands.h"
#include "editor/model/editorsession.h"
#include "editor/model/undohistory.h"
#include "editor/problems/problemspane.h"
#include "editor/problems/renamevariabledialog.h"
#include "editor/problems/searchresults.h"
#include "editor/preferences/preferencesdialog.h"
#include "editor/preview/variablesdock.h"
#include "editor/projectdialogs/modeltext.h"
#include "editor/projectdialogs/projectwindowdialog.h"
#include "editor/projectdialogs/widgetitemdialogs.h"
#include "editor/propertypane/propertypane.h"
#include "dynamics/expressiontext.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUndoGroup>
#include <QUndoView>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

// Widgets on the clipboard travel as the text of a window file.
const QString kWidgetsMimeType = QStringLiteral("application/x-kelvo-hmi-widgets");
const QString kGeometryKey = QStringLiteral("MainFrame/geometry");
const QString kStateKey = QStringLiteral("MainFrame/state");
// A window of the panels' common size opens without scrolling in a main window of the first start.
constexpr QSize kFirstStartCanvas(1024, 768);
// How long what waits for the frame's first paint waits at most once the frame is shown.
constexpr std::chrono::milliseconds kLongestWaitForFirstPaint(1000);

// What a child window takes around its canvas.
QSize ChildFrameExtent(const QStyle& style)
{
    return {2 * style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth) + 4, style.pixelMetric(QStyle::PM_TitleBarHeight) + 8};
}

// Shows a child as large as its canvas and no larger than the area, which has its size only
// once the main window is laid out.
void ShowAtCanvasSize(CChildFrame& child, const QMdiArea& area)
{
    child.resize(child.View().size() + ChildFrameExtent(*child.style()));
    child.show();
    QTimer::singleShot(0, &child, [&child, &area] {
        const QPoint place(std::max(0, child.x()), std::max(0, child.y()));
        const QSize room = area.viewport()->size() - QSize(place.x(), place.y());
        child.setGeometry(QRect(place, child.size().boundedTo(room)));
    });
}

} // namespace

CMainFrame::CMainFrame(CEditorPrompts& prompts, QSettings& settings, CEditorSession& session, QWidget* parent)
    : QMainWindow(parent)
    , m_prompts(prompts)
    , m_settings(settings)
    , m_session(session)
    , m_preferences(settings)
    , m_recentFiles(settings)
    , m_mdiArea(new QMdiArea(this))
    , m_cursorPosition(new QLabel(this))
    , m_windowFiles(new CFileWatch(this))
{
    setWindowTitle(QStringLiteral("Kelvo HMI Editor"));
    setCentralWidget(m_mdiArea);
    m_formatActions = new CFormatActions(m_prompts, [this] { return ActiveView(); }, this);
    m_canvasMenu = m_formatActions->CreateContextMenu(this);
    m_zoomActions = new CViewZoomActions(*m_mdiArea, *statusBar(), this);
    m_zoomActions->AddToContextMenu(*m_canvasMenu);
    CreateDocks();
    CreateActions();
    CreateMenus();
    statusBar()->showMessage(tr("Ready"));
    m_cursorPosition->setObjectName(QStringLiteral("cursorPosition"));
    const int positionWidth = m_cursorPosition->fontMetrics().horizontalAdvance(QStringLiteral("00000, 00000"));
    m_cursorPosition->setMinimumWidth(positionWidth);
    statusBar()->addPermanentWidget(m_cursorPosition);

    connect(m_mdiArea, &QMdiArea::subWindowActivated, this, &CMainFrame::ChildActivated);
    connect(m_windowFiles, &CFileWatch::changed, this, [this](const QString& path) {
        for (CChildFrame* child : Children())
            if (child->FilePath() == path)
                child->CheckDiskCopy();
    });
    connect(m_formatActions, &CFormatActions::documentEdited, this, &CMainFrame::UpdateEditActions);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &CMainFrame::UpdateEditActions);
    connect(&m_historyDock->Group(), &QUndoGroup::indexChanged, this, &CMainFrame::UpdateEditActions);
    connect(&m_preferences, &CEditorPreferences::changed, this, &CMainFrame::UpdateEditActions);
    if (!restoreGeometry(m_settings.value(kGeometryKey).toByteArray())) {
        const QSize canvas = kFirstStartCanvas + QSize(CTamloView::kCanvasMargin, CTamloView::kCanvasMargin);
        setGeometry(FirstStartGeometry(*this, *m_mdiArea, canvas + ChildFrameExtent(*style())));
    }
    restoreState(m_settings.value(kStateKey).toByteArray());
    UpdateRecentFileActions();
    UpdateEditActions();
}

CMainFrame::~CMainFrame()
{
    // The children's documents go before the panes that show their widgets, without questions;
    // closed children may still wait for their deletion.
    const QList<CChildFrame*> children = m_mdiArea->findChildren<CChildFrame*>();
    for (CChildFrame* child : children)
        child->disconnect(this);
    qDeleteAll(children);
}

void CMainFrame::CreateDocks()
{
    m_explorer = new CProjectExplorer;
    auto* explorerDock = new QDockWidget(tr("Project"), this);
    explorerDock->setObjectName(QStringLiteral("explorerDock"));
    explorerDock->setWidget(m_explorer);
    addDockWidget(Qt::LeftDockWidgetArea, explorerDock);
    connect(m_explorer, &CProjectExplorer::windowOpenRequested, this,
            qOverload<const QString&>(&CMainFrame::OpenDocument));
    connect(m_explorer, &CProjectExplorer::findReferencesRequested, this, &CMainFrame::FindReferences);

    m_toolbox = new CToolbox(m_session.Tools());
    auto* toolboxDock = new QDockWidget(tr("Toolbox"), this);
    toolboxDock->setObjectName(QStringLiteral("toolboxDock"));
    toolboxDock->setWidget(m_toolbox);
    addDockWidget(Qt::LeftDockWidgetArea, toolboxDock);
    AfterFirstPaint([this] { m_toolbox->ShowIcons(); });

    // The widget names stand above the property pane, which shows the chosen widget.
    auto* properties = new QWidget;
    auto* layout = new QVBoxLayout(properties);
    layout->setContentsMargins(0, 0, 0, 0);
    m_nameCombo = new CWidgetNameCombo;
    m_propertyPane = new CPropertyPane;
    layout->addWidget(m_nameCombo);
    layout->addWidget(m_propertyPane, 1);
    auto* propertyDock = new QDockWidget(tr("Properties"), this);
    propertyDock->setObjectName(QStringLiteral("propertyDock"));
    propertyDock->setWidget(properties);
    addDockWidget(Qt::RightDockWidgetArea, propertyDock);

    connect(m_nameCombo, &CWidgetNameCombo::widgetChosen, this, [this](CHmiWidget* widget) {
        if (CTamloView* view = ActiveView())
            view->Selection().Select(widget, false);
    });
    ConnectRowDialogs();
    CreateProjectDocks();
    CreatePreviewDock(); // after the property dock, whose tab it shares
    m_historyDock = new CHistoryDock(this);
    addDockWidget(Qt::RightDockWidgetArea, m_historyDock);
    tabifyDockWidget(propertyDock, m_historyDock);
    propertyDock->raise();
}

void CMainFrame::CreatePreviewDock()
{
    m_variables = new CVariablesDock;
    auto* dock = new QDockWidget(tr("Variables"), this);
    dock->setObjectName(QStringLiteral("variablesDock"));
    dock->setWidget(m_variables);
    m_variables->BuildWhenInSight(*dock);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    QDockWidget* properties = findChild<QDockWidget*>(QStringLiteral("propertyDock"));
    tabifyDockWidget(properties, dock);
    properties->raise(); // the preview raises the Variables
    m_preview = new CPreviewActions(*m_variables, [this] { return ActiveView(); }, this);
    connect(m_variables, &CVariablesDock::escapePressed, this, &CMainFrame::CancelTool);
    // Queued: a preview also ends while its window is being destroyed, when the active view is no
    // longer one to ask.
    connect(m_preview, &CPreviewActions::runningChanged, this, &CMainFrame::PreviewRunningChanged,
            Qt::QueuedConnection);
    connect(m_preview, &CPreviewActions::message, this, [this](const QString& text) {
        statusBar()->showMessage(text);
    });
}

void CMainFrame::PreviewRunningChanged(bool running)
{
    m_propertyPane->setEnabled(!running);
    m_historyDock->widget()->setEnabled(!running);
    m_toolbox->setEnabled(!running);
    m_formatActions->SyncWithActiveView();
    UpdateEditActions();
    if (running) {
        m_variables->parentWidget()->show();
        m_variables->parentWidget()->raise();
    }
    statusBar()->showMessage(running ? tr("Preview: F5 or Esc returns to editing")
                                     : tr("Ready"));
}

void CMainFrame::ConnectRowDialogs()
{
    connect(m_propertyPane, &CPropertyPane::dynPropEditRequested, this, [this](COptionTreeItem* row) {
        RunRowDialog(row, [this](QWidget* parent, CHmiWidget& widget, COptionTreeItem& item) {
            return EditDynamicProperty(parent, widget, item, m_prompts.dynamicDialogs);
        });
    });
    connect(m_propertyPane, &CPropertyPane::eventEditRequested, this, [this](COptionTreeItem* row) {
        RunRowDialog(row, [this](QWidget* parent, CHmiWidget& widget, COptionTreeItem& item) {
            return EditWidgetEvent(parent, widget, item, m_scriptFunctions);
        });
    });
    const auto selectItem = [this](COptionTreeItem* row) {
        RunRowDialog(row, [this](QWidget* parent, CHmiWidget& widget, COptionTreeItem& item) {
            return SelectWidgetItem(parent, widget, item, m_prompts.projectDialogs);
        });
    };
    connect(m_propertyPane, &CPropertyPane::selectItemRequested, this, selectItem);
    connect(m_propertyPane, &CPropertyPane::fileRequested, this, selectItem);
    connect(m_propertyPane, &CPropertyPane::fontRequested, this, selectItem);
}

void CMainFrame::RunRowDialog(COptionTreeItem* row, const RowDialog& dialog)
{
    if (CHmiWidget* widget = m_propertyPane->CurrentWidget(); widget && row)
        dialog(this, *widget, *row);
}

QAction* CMainFrame::AddAction(QMenu* menu, const QString& text, const QString& statusText,
                               void (CMainFrame::*slot)())
{
    auto* action = menu->addAction(text);
    action->setStatusTip(statusText);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

QAction* CMainFrame::AddCanvasAction(const QString& text, const QString& statusText, QKeySequence::StandardKey key,
                                     void (CMainFrame::*slot)())
{
    // The edit commands act on the canvas; elsewhere (the property pane) their keys edit text.
    auto* action = new QAction(text, this);
    action->setStatusTip(statusText);
    action->setShortcuts(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_mdiArea->addAction(action);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void CMainFrame::CreateActions()
{
    m_undoAction = AddCanvasAction(tr("Undo(&U)\tCtrl+Z"), tr("Undo the last action"),
                                   QKeySequence::Undo, &CMainFrame::EditUndo);
    m_redoAction = AddCanvasAction(tr("Redo(&R)\tCtrl+Y"), tr("Redo the last undone action"),
                                   QKeySequence::Redo, &CMainFrame::EditRedo);
    m_redoAction->setObjectName(QStringLiteral("actionRedo"));
    m_redoAction->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    m_cutAction = AddCanvasAction(tr("Cu&t"),
                                  tr("Cut the selection and put it on the Clipboard"), QKeySequence::Cut,
                                  &CMainFrame::EditCut);
    m_copyAction = AddCanvasAction(tr("&Copy"),
                                   tr("Copy the selection and put it on the Clipboard"), QKeySequence::Copy,
                                   &CMainFrame::EditCopy);
    m_pasteAction = AddCanvasAction(tr("&Paste"), tr("Insert Clipboard contents"),
                                    QKeySequence::Paste, &CMainFrame::EditPaste);
    m_deleteAction = AddCanvasAction(tr("&Delete"), tr("Delete the selection"),
                                     QKeySequence::Delete, &CMainFrame::EditDelete);
    m_selectAllAction = AddCanvasAction(tr("Select &All"),
                                        tr("Select every widget of the window"),
                                        QKeySequence::SelectAll, &CMainFrame::EditSelectAll);
    // Escape also works while the toolbox, where the placing tool was chosen, has the focus.
    QAction* cancel = AddCanvasAction(tr("Cancel"), tr("Stop placing widgets"),
                                      QKeySequence::Cancel, &CMainFrame::CancelTool);
    m_toolbox->addAction(cancel);
}

void CMainFrame::CreateMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    m_newAction = AddAction(file, tr("&New"), tr("Create a new document"),
                            &CMainFrame::FileNew);
    m_newAction->setShortcut(QKeySequence::New);
    m_openAction = AddAction(file, tr("&Open..."), tr("Open an existing document"),
                             &CMainFrame::FileOpen);
    m_openAction->setShortcut(QKeySequence::Open);
    AddAction(file, tr("Open P&roject..."), tr("Choose the project folder"),
              &CMainFrame::FileOpenProject)
        ->setObjectName(QStringLiteral("actionOpenProject"));
    QAction* openProject = AddAction(file, tr("Open Project Window..."), tr("Open Project"),
                                     &CMainFrame::FileOpenProjectWindow);
    openProject->setObjectName(QStringLiteral("actionOpenProjectWindow"));
    m_saveAction = AddAction(file, tr("&Save"), tr("Save the active document"),
                             &CMainFrame::FileSave);
    m_saveAction->setShortcut(QKeySequence::Save);
    m_saveAsAction = AddAction(file, tr("Save &As..."),
                               tr("Save the active document with a new name"), &CMainFrame::FileSaveAs);
    m_saveAsAction->setShortcut(QKeySequence::SaveAs);
    m_recentSeparator = file->addSeparator();
    for (QAction*& recent : m_recentFileActions) {
        recent = file->addAction(QString());
        recent->setStatusTip(tr("Open this document"));
        connect(recent, &QAction::triggered, this, [this, recent] { OpenDocument(recent->data().toString()); });
    }
    file->addSeparator();
    m_exitAction = file->addAction(tr("E&xit"), this, &QWidget::close);
    m_exitAction->setStatusTip(tr("Quit the application"));
    m_exitAction->setShortcut(QKeySequence::Quit);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(m_undoAction);
    edit->addAction(m_redoAction);
    edit->addSeparator();
    edit->addAction(m_cutAction);
    edit->addAction(m_copyAction);
    edit->addAction(m_pasteAction);
    edit->addAction(m_deleteAction);
    edit->addSeparator();
    edit->addAction(m_selectAllAction);
    edit->addSeparator();
    AddAction(edit, tr("Find &References..."),
              tr("List every use of a variable in the project's windows"), &CMainFrame::EditFindReferences)
        ->setObjectName(QStringLiteral("actionFindReferences"));

    QToolBar* standard = addToolBar(tr("Standard"));
    standard->setObjectName(QStringLiteral("standardToolBar"));
    // The standard icons are read from image files, which waits for the first paint; until then
    // a blank icon keeps each button at its final size.
    const std::vector<std::pair<QAction*, QStyle::StandardPixmap>> icons = {
        {m_newAction, QStyle::SP_FileIcon},          {m_openAction, QStyle::SP_DialogOpenButton},
        {m_saveAction, QStyle::SP_DialogSaveButton}, {m_undoAction, QStyle::SP_ArrowBack},
        {m_redoAction, QStyle::SP_ArrowForward},     {m_deleteAction, QStyle::SP_TrashIcon}};
    for (const auto& [action, pixmap] : icons)
        action->setIcon(BlankIcon());
    AfterFirstPaint([this, icons] {
        for (const auto& [action, pixmap] : icons)
            action->setIcon(style()->standardIcon(pixmap));
    });
    standard->addActions({m_newAction, m_openAction, m_saveAction});
    standard->addSeparator();
    standard->addActions({m_undoAction, m_redoAction, m_deleteAction});

    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addAction(standard->toggleViewAction());
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        view->addAction(dock->toggleViewAction());
    view->addSeparator();
    AddLayoutAidToggles(*view, m_preferences);
    view->addSeparator();
    view->addAction(m_preview->PreviewAction());
    view->addSeparator();
    m_zoomActions->AddToViewMenu(*view);
    view->addSeparator();
    QAction* statusBarToggle = view->addAction(tr("&Status Bar"));
    statusBarToggle->setCheckable(true);
    statusBarToggle->setChecked(true);
    statusBarToggle->setStatusTip(tr("Show or hide the status bar"));
    connect(statusBarToggle, &QAction::toggled, statusBar(), &QStatusBar::setVisible);

    menuBar()->addMenu(m_formatActions->CreateFormatMenu(this));
    CreateToolsMenu();

    m_windowMenu = menuBar()->addMenu(tr("&Window"));
    connect(m_windowMenu, &QMenu::aboutToShow, this, &CMainFrame::UpdateWindowMenu);
    UpdateWindowMenu();

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    AddAction(help, tr("&Widget Libraries..."),
              tr("Show which widget libraries were loaded at start-up, and why others were not"),
              &CMainFrame::HelpWidgetLibraries);
}

void CMainFrame::SetWidgetLibraries(WidgetLibraryLoadReport report)
{
    m_libraries = std::move(report);
    if (std::none_of(m_libraries.libraries.begin(), m_libraries.libraries.end(),
                     [](const WidgetLibraryLoad& library) { return library.Failed(); }))
        return;
    // A notice, not a message box: nothing stops the start, and the report is there when wanted.
    auto* notice = new QPushButton(tr("Not all widget libraries were loaded"));
    notice->setObjectName(QStringLiteral("widgetLibraryNotice"));
    notice->setFlat(true);
    notice->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    notice->setStatusTip(tr("Show why, in Help > Widget Libraries"));
    connect(notice, &QPushButton::clicked, this, &CMainFrame::HelpWidgetLibraries);
    statusBar()->insertPermanentWidget(0, notice);
}

void CMainFrame::HelpWidgetLibraries()
{
    if (!m_libraryDialog) {
        m_libraryDialog = new CWidgetLibraryDialog(m_libraries, this);
        m_libraryDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_libraryDialog->show();
    m_libraryDialog->raise();
    m_libraryDialog->activateWindow();
}

void CMainFrame::UpdateWindowMenu()
{
    m_windowMenu->clear();
    QAction* cascade = m_windowMenu->addAction(tr("&Cascade"), m_mdiArea, &QMdiArea::cascadeSubWindows);
    cascade->setStatusTip(tr("Arrange windows so they overlap"));
    QAction* tile = m_windowMenu->addAction(tr("&Tile"), m_mdiArea, &QMdiArea::tileSubWindows);
    tile->setStatusTip(tr("Arrange windows as non-overlapping tiles"));
    const QList<CChildFrame*> children = Children();
    if (!children.isEmpty())
        m_windowMenu->addSeparator();
    for (int i = 0; i < children.size(); ++i) {
        CChildFrame* child = children[i];
        QAction* entry = m_windowMenu->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(child->DisplayName()));
        entry->setCheckable(true);
        entry->setChecked(child == ActiveChild());
        entry->setStatusTip(tr("Activate this window"));
        connect(entry, &QAction::triggered, this, [this, child] { m_mdiArea->setActiveSubWindow(child); });
    }
}

QList<CChildFrame*> CMainFrame::Children() const
{
    QList<CChildFrame*> children;
    for (QMdiSubWindow* window : m_mdiArea->subWindowList())
        if (auto* child = qobject_cast<CChildFrame*>(window))
            children.append(child);
    return children;
}

CChildFrame* CMainFrame::ActiveChild() const
{
    // The current window stays current while a dialog has the focus.
    return qobject_cast<CChildFrame*>(m_mdiArea->currentSubWindow());
}

CTamloView* CMainFrame::ActiveView() const
{
    CChildFrame* child = ActiveChild();
    return child ? &child->View() : nullptr;
}

CChildFrame* CMainFrame::FindChild(const QString& path) const
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    for (CChildFrame* child : Children())
        if (!canonical.isEmpty() && QFileInfo(child->FilePath()).canonicalFilePath() == canonical)
            return child;
    return nullptr;
}

CChildFrame* CMainFrame::NewDocument()
{
    auto document = std::make_unique<CTamloDoc>();
    document->OnNewDocument();
    return AddChild(std::move(document));
}

CChildFrame* CMainFrame::OpenDocument(const QString& path)
{
    QString message;
    CChildFrame* child = OpenDocument(path, message);
    if (message.isEmpty())
        return child;
    if (!child)
        m_prompts.ShowError(this, message);
    else // once the window is in place: at start-up the main window is not shown yet
        QTimer::singleShot(0, this, [this, message] { m_prompts.ShowInformation(this, message); });
    return child;
}

CChildFrame* CMainFrame::OpenDocument(const QString& path, QString& message)
{
    if (path.isEmpty())
        return nullptr;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (CChildFrame* open = FindChild(absolute)) {
        if (open->isMinimized())
            open->showNormal();
        m_mdiArea->setActiveSubWindow(open);
        return open;
    }
    std::unique_ptr<CTamloDoc> document = LoadDocument(absolute, message);
    return document ? AddChild(std::move(document)) : nullptr;
}

std::unique_ptr<CTamloDoc> CMainFrame::LoadDocument(const QString& path, QString& message)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    auto document = std::make_unique<CTamloDoc>();
    const FileResult result = document->Load(ToModelPath(absolute));
    if (!result) {
        message = QString::fromStdString(result.error);
        m_recentFiles.Remove(absolute);
        UpdateRecentFileActions();
        return {};
    }
    m_recentFiles.Add(absolute);
    UpdateRecentFileActions();
    if (!result.notices.empty()) {
        // A window of thousands of widgets can leave a note for each; the message stays on screen.
        constexpr std::size_t kShownNotices = 10;
        message = tr("%1 was opened. Please note:").arg(QDir::toNativeSeparators(absolute));
        for (std::size_t i = 0; i < std::min(result.notices.size(), kShownNotices); ++i)
            message += QStringLiteral("\n\n") + QString::fromStdString(result.notices[i]);
        if (result.notices.size() > kShownNotices)
            message += tr("\n\n... and %1 more notes.").arg(result.notices.size() - kShownNotices);
    }
    return document;
}

CChildFrame* CMainFrame::AddChild(std::unique_ptr<CTamloDoc> document)
{
    auto* child = new CChildFrame(std::move(document), m_prompts, m_session, m_preferences);
    m_problems->WatchWindow(child->Document());
    m_historyDock->Watch(*child);
    CTamloView& view = child->View();
    view.SetContextMenu(m_canvasMenu);
    connect(&view, &CTamloView::selectionChanged, this, [this, child] {
        if (child == m_shownChild)
            ShowSelection(child->View());
    });
    connect(&view, &CTamloView::commandEnded, this, [this] {
        m_toolbox->SyncWithCurrentTool(); // a placing tool may have given way to the pointer
        UpdateEditActions();
    });
    connect(&view, &CTamloView::cursorMoved, this, [this](const QPoint& point) {
        m_cursorPosition->setText(QStringLiteral("%1, %2").arg(point.x()).arg(point.y()));
    });
    connect(child, &CChildFrame::documentSaved, this, [this](const QString& path) {
        m_recentFiles.Add(QFileInfo(path).absoluteFilePath());
        UpdateRecentFileActions();
        WatchWindowFiles();
    });
    connect(child, &QObject::destroyed, this, [this, child] {
        if (m_shownChild == child)
            ChildActivated(nullptr);
        WatchWindowFiles(child);
    });
    // A child opened while the active one is maximized is maximized too, as the others are. It
    // is not sized first: the area would keep that size under the maximized state.
    const CChildFrame* active = ActiveChild();
    const bool maximized = active && active->isMaximized();
    m_mdiArea->addSubWindow(child);
    if (maximized)
        child->showMaximized();
    else
        ShowAtCanvasSize(*child, *m_mdiArea);
    m_mdiArea->setActiveSubWindow(child);
    WatchWindowFiles();
    return child;
}

void CMainFrame::WatchWindowFiles(const CChildFrame* leaving)
{
    QStringList paths;
    for (const CChildFrame* child : Children())
        if (child != leaving && !child->FilePath().isEmpty())
            paths << child->FilePath();
    m_windowFiles->Watch(paths);
}

void CMainFrame::CreateProjectDocks()
{
    m_problems = new CProblemsPane;
    m_problems->setObjectName(QStringLiteral("problems"));
    m_searchResults = new CSearchResults;
    m_searchResults->setObjectName(QStringLiteral("searchResults"));
    QDockWidget* above = nullptr;
    for (CPlaceList* list : std::initializer_list<CPlaceList*>{m_problems, m_searchResults}) {
        auto* dock = new QDockWidget(list == m_problems ? tr("Problems") : tr("Search Results"),
                                     this);
        dock->setObjectName(list->objectName() + QStringLiteral("Dock"));
        dock->setWidget(list);
        addDockWidget(Qt::BottomDockWidgetArea, dock);
        if (above)
            tabifyDockWidget(above, dock);
        above = dock;
        connect(list, &CPlaceList::placeActivated, this, &CMainFrame::ShowPlace);
        dock->hide(); // until there is something to list
    }
}

void CMainFrame::CreateToolsMenu()
{
    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    AddAction(tools, tr("&Check Project"),
              tr("List what the panel would not find or not show in the project's windows"),
              &CMainFrame::ToolsCheckProject)
        ->setObjectName(QStringLiteral("actionCheckProject"));
    AddAction(tools, tr("&Rename Variable..."),
              tr("Rename a variable reference in every window of the project"),
              &CMainFrame::ToolsRenameVariable)
        ->setObjectName(QStringLiteral("actionRenameVariable"));
    tools->addSeparator();
    QAction* preferences = AddAction(tools, tr("&Preferences..."),
                                     tr("Choose how the editor works: undo history, grid and snapping, language"),
                                     &CMainFrame::ToolsPreferences);
    preferences->setObjectName(QStringLiteral("actionPreferences"));
    preferences->setMenuRole(QAction::PreferencesRole);
}

void CMainFrame::ToolsPreferences()
{
    CPreferencesDialog dialog(m_preferences, this);
    dialog.exec();
}

std::string CMainFrame::ProjectFolder()
{
    const std::string& folder = GetProjectPath();
    if (folder.empty())
        m_prompts.ShowError(this, tr("There is no project folder: open a window of a project first."));
    return folder;
}

std::vector<OpenWindow> CMainFrame::OpenWindows() const
{
    std::vector<OpenWindow> windows;
    for (CChildFrame* child : Children())
        if (!child->Document().GetPathName().empty())
            windows.push_back({child->Document().GetPathName(), &child->Document()});
    return windows;
}

void CMainFrame::ToolsCheckProject()
{
    if (const std::string folder = ProjectFolder(); !folder.empty()) {
        m_problems->CheckProject(folder);
        m_problems->parentWidget()->show();
        m_problems->parentWidget()->raise();
    }
}

void CMainFrame::EditFindReferences()
{
    if (const QString reference = m_prompts.AskVariableReference(this); !reference.isEmpty())
        FindReferences(reference);
}

void CMainFrame::FindReferences(const QString& reference)
{
    const std::string text = ToModel(reference.trimmed());
    if (!IsVariableReference(text))
        return m_prompts.ShowError(
            this, tr("\"%1\" is not a variable reference such as $plc.level or $setpoint.").arg(reference));
    if (const std::string folder = ProjectFolder(); !folder.empty()) {
        m_searchResults->FindReferences(folder, text, OpenWindows());
        m_searchResults->parentWidget()->show();
        m_searchResults->parentWidget()->raise();
    }
}

void CMainFrame::ToolsRenameVariable()
{
    const std::string folder = ProjectFolder();
    if (folder.empty())
        return;
    CRenameVariableDialog dialog(folder, OpenWindows(), QString(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    statusBar()->showMessage(tr("Renamed: %1 files written").arg(dialog.WrittenFiles().size()));
    if (m_problems->HasChecked()) // the windows, and perhaps the declarations, changed
        m_problems->CheckProject(folder);
    UpdateEditActions();
}

void CMainFrame::ShowPlace(const PlaceLink& link)
{
    CChildFrame* child = OpenDocument(link.path);
    if (!child)
        return;
    const CTamloDoc& document = child->Document();
    const auto widget = std::find_if(document.Widgets().begin(), document.Widgets().end(), [&](const HmiWidgetPtr& w) {
        return !document.IsWidgetDeleted(w.get()) && w->GetWidgetName() == link.widget;
    });
    if (widget == document.Widgets().end())
        return statusBar()->showMessage(tr("The window has no widget named \"%1\" any more.")
                                            .arg(FromModel(link.widget)));
    ChildActivated(child);
    child->View().Selection().Select(widget->get(), false);
    ShowSelection(child->View());
    if (link.place.kind == WidgetPlace::Kind::Event)
        m_propertyPane->ShowEventRow(link.place.name);
    else if (link.place.kind != WidgetPlace::Kind::Widget)
        m_propertyPane->ShowPropertyRow(link.place.name);
}

void CMainFrame::ChildActivated(QMdiSubWindow* window)
{
    // Leaving the main window for a dialog deactivates the children but changes nothing here.
    if (!window && m_mdiArea->currentSubWindow())
        return;
    auto* child = qobject_cast<CChildFrame*>(window);
    if (child == m_shownChild)
        return;
    if (m_preview->IsRunning() && (!child || &child->View() != m_preview->PreviewedView()))
        m_preview->Leave();
    m_shownChild = child;
    m_historyDock->ShowChild(child);
    ShowChildInPanes();
    m_formatActions->SyncWithActiveView();
    UpdateEditActions();
}

void CMainFrame::ShowChildInPanes()
{
    m_nameCombo->ShowDocument(m_shownChild ? &m_shownChild->Document() : nullptr);
    m_propertyPane->Clear();
    if (m_shownChild)
        ShowSelection(m_shownChild->View());
}

bool CMainFrame::event(QEvent* event)
{
    if (event->type() == QEvent::Paint && !m_painted)
        QTimer::singleShot(0, this, &CMainFrame::FinishAfterFirstPaint);
    // A frame shown minimised or on another desktop may not paint for a long time; the start
    // window and its recovery must not wait for that.
    if (event->type() == QEvent::Show && !m_painted)
        QTimer::singleShot(kLongestWaitForFirstPaint, this, &CMainFrame::FinishAfterFirstPaint);
    return QMainWindow::event(event);
}

void CMainFrame::AfterFirstPaint(std::function<void()> step)
{
    if (m_painted)
        QTimer::singleShot(0, this, std::move(step));
    else
        m_afterFirstPaint.push_back(std::move(step));
}

void CMainFrame::FinishAfterFirstPaint()
{
    if (m_painted)
        return;
    m_painted = true;
    // Queued first, so that the project shows also while a step's message box is open.
    QTimer::singleShot(0, this, &CMainFrame::FollowProjectPath);
    for (const std::function<void()>& step : std::exchange(m_afterFirstPaint, {}))
        step();
}

void CMainFrame::ShowSelection(CTamloView& view)
{
    const std::vector<CHmiWidget*>& selected = view.Selection().Widgets();
    if (selected.empty()) {
        m_propertyPane->Clear();
        m_nameCombo->SelectWidget(nullptr);
        return;
    }
    if (m_propertyPane->Widgets() != selected)
        m_propertyPane->ShowWidgets(selected);
    m_nameCombo->SelectWidget(selected.back());
}

void CMainFrame::UpdateEditActions()
{
    CTamloView* view = ActiveView();
    const bool editable = view && !view->Preview();
    const bool hasWidgets = editable && HasEditableWidgets(view->Selection().Widgets());
    CUndoHistory* history = editable ? ActiveChild()->History() : nullptr;
    m_undoAction->setEnabled(history ? history->Stack().canUndo() : editable && view->Document().CanUndo());
    m_redoAction->setEnabled(history && history->Stack().canRedo());
    m_redoAction->setVisible(m_preferences.Get().undoHistory == CEditorPreferences::UndoHistory::Unlimited);
    m_cutAction->setEnabled(hasWidgets);
    m_copyAction->setEnabled(hasWidgets);
    m_deleteAction->setEnabled(hasWidgets);
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();
    m_pasteAction->setEnabled(editable && clipboard && clipboard->hasFormat(kWidgetsMimeType));
    m_selectAllAction->setEnabled(view != nullptr);
    m_saveAction->setEnabled(view != nullptr);
    m_saveAsAction->setEnabled(view != nullptr);
}

void CMainFrame::UpdateRecentFileActions()
{
    const QStringList& files = m_recentFiles.Files();
    for (int i = 0; i < CRecentFileList::kSize; ++i) {
        QAction* action = m_recentFileActions[i];
        action->setVisible(i < files.size());
        if (i < files.size()) {
            action->setText(QStringLiteral("&%1 %2").arg(i + 1).arg(QDir::toNativeSeparators(files[i])));
            action->setData(files[i]);
        }
    }
    m_recentSeparator->setVisible(!files.isEmpty());
}

void CMainFrame::RaiseAndRestore()
{
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
    // A message box that is open must not end up behind the window it belongs to.
    if (QWidget* modal = QApplication::activeModalWidget())
        modal->raise();
}

void CMainFrame::closeEvent(QCloseEvent* event)
{
    for (CChildFrame* child : Children()) {
        if (!child->MaybeSave())
            return event->ignore();
    }
    m_settings.setValue(kGeometryKey, saveGeometry());
    m_settings.setValue(kStateKey, saveState());
    event->accept();
    emit closedByUser();
}

void CMainFrame::FileNew()
{
    NewDocument();
}

void CMainFrame::FileOpen()
{
    OpenDocument(m_prompts.AskOpenFileName(this, ToQtPath(GetProjectPath())));
}

void CMainFrame::FileOpenProject()
{
    const std::string& project = GetProjectPath();
    const QString folder = m_prompts.projectDialogs.chooseDirectory(
        this, tr("Please select project path!"), project.empty() ? QDir::currentPath() : ToQtPath(project));
    if (folder.isEmpty())
        return;
    SetProjectPath(ToModelPath(QDir::fromNativeSeparators(folder)));
    FollowProjectPath();
}

void CMainFrame::FileOpenProjectWindow()
{
    const std::optional<std::string> path = ChooseProjectWindow(this, m_prompts.projectDialogs);
    FollowProjectPath(); // the dialog's browse button may have chosen another project
    if (path)
        OpenDocument(ToQtPath(*path));
}

void CMainFrame::FollowProjectPath()
{
    m_explorer->Refresh();
    m_preview->FollowProject();
}

void CMainFrame::FileSave()
{
    if (CChildFrame* child = ActiveChild())
        child->Save();
}

void CMainFrame::FileSaveAs()
{
    if (CChildFrame* child = ActiveChild())
        child->SaveAs();
}

void CMainFrame::CancelTool()
{
    if (m_preview->IsRunning())
        return m_preview->Leave(); // Escape ends the preview first
    CCanvasTools& tools = m_session.Tools();
    if (CTamloView* view = ActiveView())
        tools.Cancel(*view); // ends a drag in progress too
    else
        tools.SetCurrentTool(CanvasTool::Select);
    m_toolbox->SyncWithCurrentTool();
}

void CMainFrame::EditUndo()
{
    CChildFrame* child = ActiveChild();
    if (!child || m_preview->IsRunning())
        return;
    if (CUndoHistory* history = child->History())
        history->Stack().undo();
    else if (child->Document().CanUndo())
        child->Document().Undo();
    UpdateEditActions();
}

void CMainFrame::EditRedo()
{
    CChildFrame* child = ActiveChild();
    if (CUndoHistory* history = child ? child->History() : nullptr; history && !m_preview->IsRunning())
        history->Stack().redo();
    UpdateEditActions();
}

void CMainFrame::EditCopy()
{
    CTamloView* view = ActiveView();
    const std::string text = view ? CopyWidgets(view->Document(), view->Selection().Widgets()) : std::string();
    if (text.empty())
        return;
    auto* data = new QMimeData;
    data->setData(kWidgetsMimeType, QByteArray::fromStdString(text));
    QApplication::clipboard()->setMimeData(data);
}

void CMainFrame::EditCut()
{
    EditCopy();
    if (CChildFrame* child = ActiveChild(); child && child->History())
        child->History()->NameNextEntry(tr("Cut %1"));
    EditDelete();
}

void CMainFrame::EditPaste()
{
    CTamloView* view = ActiveView();
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();
    if (!view || !clipboard || !clipboard->hasFormat(kWidgetsMimeType))
        return;
    if (CUndoHistory* history = ActiveChild()->History())
        history->NameNextEntry(tr("Paste %1"));
    const std::vector<CHmiWidget*> pasted =
        PasteWidgets(view->Document(), clipboard->data(kWidgetsMimeType).toStdString());
    if (!pasted.empty())
        view->Selection().SelectWidgets(pasted, false);
    UpdateEditActions();
}

void CMainFrame::EditSelectAll()
{
    if (CTamloView* view = ActiveView()) {
        view->Selection().SelectAll();
        UpdateEditActions();
    }
}

void CMainFrame::EditDelete()
{
    // The deleted widgets leave the selection, which then holds the window widget.
    if (CTamloView* view = ActiveView(); view && DeleteWidgets(view->Document(), view->Selection().Widgets()))
        UpdateEditActions();
}
