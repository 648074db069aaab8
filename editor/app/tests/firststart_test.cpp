// The editor as a new user first sees it, on a full-HD screen (the test's offscreen screen is
// 1920 x 1080): the main window's size, the panes' widths and the toolbox.
#include "editorfixture.h"

#include "editor/app/dialogsizes.h"
#include "editor/app/firststartlayout.h"
#include "editor/app/toolbox.h"
#include "editor/app/toolboxicons.h"
#include "editor/preview/variablesdock.h"
#include "editor/propertypane/propertypane.h"
#include "catalogue/builtinwidgets.h"
#include "tests/support/registryscope.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QMdiArea>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeWidget>

class FirstStartTest : public QObject {
    Q_OBJECT

private slots:
    // Without a saved layout, a window of the panels' common size opens whole beside the docks,
    // every built-in caption fits the property pane, and every toolbox entry has its icon. The
    // icons come after the first paint without moving a thing, and the Variables dock, behind
    // the property pane's tab, is built once its tab is chosen.
    void aPanelSizedWindowOpensWholeBesideThePanes()
    {
        const CRegistryScope registry;
        QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("profile.ini")), QSettings::IniFormat);
        ScriptedPrompts prompts;
        CEditorSession session;
        CMainFrame frame(prompts, settings, session);
        const QImage blank = BlankIcon().pixmap(24).toImage();
        const auto drawn = [&blank](const QIcon& icon) { return !icon.isNull() && icon.pixmap(24).toImage() != blank; };
        const QSize toolBar = frame.findChild<QToolBar*>()->sizeHint();
        const int toolboxRow = frame.Toolbox().sizeHintForRow(1);
        frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&frame));
        QVERIFY(!frame.findChild<QTableView*>(QStringLiteral("previewVariables")));
        QTRY_VERIFY(drawn(frame.findChild<QToolBar*>()->actions().constFirst()->icon()));
        QCOMPARE(frame.findChild<QToolBar*>()->sizeHint(), toolBar);
        QCOMPARE(frame.Toolbox().sizeHintForRow(1), toolboxRow);
        frame.VariablesDock().parentWidget()->raise();
        QVERIFY(frame.findChild<QTableView*>(QStringLiteral("previewVariables")));
        const QRect screen = frame.screen()->availableGeometry();
        QCOMPARE(screen.size(), QSize(1920, 1080));
        QVERIFY(screen.contains(frame.frameGeometry()));

        auto document = std::make_unique<CTamloDoc>();
        document->OnNewDocument();
        document->FindWindowWidget()->SetWidgetRect({0, 0, 1024, 768});
        CChildFrame* child = frame.AddChild(std::move(document));
        QTest::qWait(20); // the child takes its place once the area is laid out
        const auto* scroller = child->findChild<QScrollArea*>();
        QVERIFY(!scroller->horizontalScrollBar()->isVisible() && !scroller->verticalScrollBar()->isVisible());
        QVERIFY(QRect(QPoint(), frame.MdiArea().viewport()->size()).contains(child->geometry()));

        CPropertyPane& pane = frame.PropertyPane();
        const QAbstractItemView& rows = *pane.Tree(); // where the width of the contents is public
        const auto shownWhole = [&] {
            return pane.Tree()->header()->sectionSize(CPropertyPane::CaptionColumn) >=
                   rows.sizeHintForColumn(CPropertyPane::CaptionColumn);
        };
        QVERIFY2(shownWhole(), "the window's own rows");
        for (const std::string_view key : BuiltinToolboxOrder()) {
            const HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(key)->CreateObject();
            pane.ShowWidget(widget.get());
            const bool whole = shownWhole();
            pane.Clear();
            QVERIFY2(whole, key.data());
        }

        const CToolbox& toolbox = frame.Toolbox();
        QCOMPARE(toolbox.count(), int(BuiltinToolboxOrder().size()) + 2); // the pointer and the history list
        for (int row = 0; row < toolbox.count(); ++row)
            QVERIFY2(drawn(toolbox.item(row)->icon()), qPrintable(toolbox.item(row)->text()));
    }

    // On a smaller screen the window keeps within it, whatever it would like.
    void aSmallScreenBoundsTheWindow()
    {
        for (const QRect screen : {QRect(0, 0, 1366, 768), QRect(1920, 0, 1280, 1024)}) {
            const QRect geometry = FirstStartGeometry(QSize(600, 140), QSize(1046, 810), screen);
            QVERIFY(screen.contains(geometry));
            QCOMPARE(geometry.center(), screen.center());
        }
    }

    // A dialog the user resized opens at that size the next time; other dialogs, and one the
    // user left alone, keep the size they choose themselves.
    void dialogsOpenAtTheSizeTheUserGaveThem()
    {
        QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("profile.ini")), QSettings::IniFormat);
        QList<QSize> shown;
        std::optional<QSize> userSize;
        const ProjectContext::DialogRunner run = RememberingDialogSizes(settings, [&](QDialog& dialog) {
            shown << dialog.size();
            if (userSize)
                dialog.resize(*userSize);
            return int(QDialog::Rejected);
        });
        const auto runAt = [&run](QDialog&& dialog, QSize own) {
            dialog.resize(own);
            run(dialog);
        };
        runAt(QDialog(), QSize(400, 300));
        userSize = QSize(700, 500);
        runAt(QDialog(), QSize(400, 300));
        userSize.reset();
        runAt(QDialog(), QSize(400, 300));
        runAt(QFileDialog(), QSize(400, 300));
        runAt(QDialog(), QSize(400, 300));
        QCOMPARE(shown, QList<QSize>({{400, 300}, {400, 300}, {700, 500}, {400, 300}, {700, 500}}));
    }
};

QTEST_MAIN(FirstStartTest)
#include "firststart_test.moc"
