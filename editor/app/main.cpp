#include "editorprompts.h"
#include "firstpaintexit.h"
#include "tamloapp.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvo HMI Editor"));
    CFirstPaintExit::InstallWhenAsked(application);
    CEditorPrompts prompts;
    CTamloApp editor(prompts);
    switch (editor.Start(QApplication::arguments())) {
    case CTamloApp::StartResult::Started:
        return QApplication::exec();
    case CTamloApp::StartResult::HandedOver:
    case CTamloApp::StartResult::Ended:
        return 0;
    case CTamloApp::StartResult::Failed:
        break;
    }
    return 1;
}
