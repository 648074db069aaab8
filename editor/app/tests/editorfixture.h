#pragma once

#include "editor/app/childframe.h"
#include "editor/app/editorprompts.h"
#include "editor/app/mainframe.h"
#include "editor/app/tamloview.h"
#include "editor/model/editorsession.h"
#include "editor/recovery/tests/recoveryfixture.h" // ReadBytes, WriteBytes
#include "catalogue/hmiwidgetrect.h"
#include "widgets/tamlodoc.h"

#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

Q_DECLARE_METATYPE(HmiRect)

// Answers the editor's questions from a script and remembers what it was asked.
struct ScriptedPrompts : CEditorPrompts {
    SaveAnswer AskSaveChanges(QWidget*, const QString& name) override
    {
        savedQuestions << name;
        return saveAnswer;
    }
    bool AskOverwriteChangedFile(QWidget*, const QString& name) override
    {
        overwriteQuestions << name;
        return overwriteAnswer;
    }
    QString AskSaveFileName(QWidget*, const QString&) override { return saveFileName; }
    QString AskOpenFileName(QWidget*, const QString&) override { return {}; } // the tests open files directly
    std::optional<int> AskZoomPercent(QWidget*) override { return zoomPercent; }
    void ShowError(QWidget*, const QString& text) override { errors << text; }
    void ShowInformation(QWidget*, const QString& text) override { information << text; }
    RecoveryAnswer AskRestoreWindows(QWidget*, const QList<RecoveryCopy>& copies) override
    {
        offeredCopies << copies;
        return recoveryAnswer;
    }

    SaveAnswer saveAnswer = SaveAnswer::Cancel;
    bool overwriteAnswer = false;
    QString saveFileName;
    std::optional<int> zoomPercent;
    RecoveryAnswer recoveryAnswer = RecoveryAnswer::Later;
    QStringList savedQuestions;
    QStringList overwriteQuestions;
    QStringList errors;
    QStringList information;
    QList<QList<RecoveryCopy>> offeredCopies;
};

// A shown main frame with profile and files in a temporary folder, wide enough that the canvas
// shows 600 x 600 pixels beside the docks.
struct EditorUnderTest {
    EditorUnderTest()
        : settings(folder.filePath(QStringLiteral("profile.ini")), QSettings::IniFormat)
        , frame(prompts, settings, session)
    {
        frame.resize(1300, 900);
        frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&frame));
    }

    CChildFrame& NewWindow()
    {
        CChildFrame* child = frame.NewDocument();
        QCoreApplication::processEvents();
        return *child;
    }

    QTemporaryDir folder;
    ScriptedPrompts prompts;
    QSettings settings;
    CEditorSession session;
    CMainFrame frame;
};

inline CHmiWidget* AddRect(CTamloDoc& document, const HmiRect& rect)
{
    HmiWidgetPtr widget(new CHmiWidgetRect);
    widget->SetWidgetRect(rect);
    CHmiWidget* added = widget.get();
    document.AddWidget(std::move(widget), true);
    return added;
}

// A press, one move and a release: what a short drag with the mouse delivers.
inline void Drag(QWidget* target, QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {})
{
    QTest::mousePress(target, Qt::LeftButton, modifiers, from);
    QTest::mouseMove(target, to);
    QTest::mouseRelease(target, Qt::LeftButton, modifiers, to);
}

inline void Click(QWidget* target, QPoint at, Qt::KeyboardModifiers modifiers = {})
{
    QTest::mouseClick(target, Qt::LeftButton, modifiers, at);
}

// Lets QCOMPARE print rectangles.
inline char* toString(const HmiRect& rect)
{
    return QTest::toString(
        QStringLiteral("(%1, %2, %3, %4)").arg(rect.left).arg(rect.top).arg(rect.right).arg(rect.bottom));
}
