// A bare main window that ends after its first paint: the floor of the editor's start-up time.

#include "editor/app/firstpaintexit.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    CFirstPaintExit::InstallWhenAsked(application);
    QMainWindow window;
    window.resize(1280, 860);
    window.show();
    return QApplication::exec();
}
