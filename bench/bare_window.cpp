// A bare main window that ends after its first paint: the floor of the editor's start-up time.
// With "--furnished", the window has what any editor's frame has, empty: a menu bar, a tool bar,
// a status text and three panes. That floor tells what Qt itself asks for such a frame apart from
// what the editor adds to it.

#include "editor/app/firstpaintexit.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeWidget>

namespace {

void Furnish(QMainWindow& window)
{
    for (const char* title : {"&File", "&Edit", "&View", "F&ormat", "&Tools", "&Window", "&Help"}) {
        QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(title));
        for (int i = 1; i <= 8; ++i)
            menu->addAction(QStringLiteral("Command %1").arg(i));
    }
    QToolBar* tools = window.addToolBar(QStringLiteral("Standard"));
    QPixmap blank(16, 16);
    blank.fill(Qt::transparent);
    for (int i = 1; i <= 12; ++i)
        tools->addAction(QIcon(blank), QStringLiteral("Command %1").arg(i));
    const auto addPane = [&window](const char* title, Qt::DockWidgetArea area) {
        auto* pane = new QDockWidget(QString::fromLatin1(title), &window);
        pane->setWidget(new QTreeWidget);
        window.addDockWidget(area, pane);
    };
    addPane("Project", Qt::LeftDockWidgetArea);
    addPane("Toolbox", Qt::LeftDockWidgetArea);
    addPane("Properties", Qt::RightDockWidgetArea);
    window.statusBar()->showMessage(QStringLiteral("Ready"));
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    CFirstPaintExit::InstallWhenAsked(application);
    QMainWindow window;
    if (QApplication::arguments().contains(QStringLiteral("--furnished")))
        Furnish(window);
    window.resize(1280, 860);
    window.show();
    return QApplication::exec();
}
