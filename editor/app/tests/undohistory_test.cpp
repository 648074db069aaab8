// The unlimited undo history driven as a user drives it: edits on the real canvas, panes and
// menus, then Undo and Redo, the History dock and the preference that switches it on and off.
#include "editorfixture.h"

#include "editor/app/historydock.h"
#include "editor/app/toolbox.h"
#include "editor/app/widgetnamecombo.h"
#include "editor/canvascontrols/controlkinds.h"
#include "catalogue/hmiwidgetcontrols.h"
#include "editor/model/undohistory.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "tests/support/registryscope.h"

#include <QAction>
#include <QCheckBox>
#include <QMdiArea>
#include <QUndoView>

#include <functional>

namespace {

using Edit = std::function<void(QWidget* view, CMainFrame& frame, CTamloDoc& document)>;

void Key(QWidget* view, int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(view, Qt::Key(key), modifiers);
}

void Trigger(CMainFrame& frame, const QString& objectName)
{
    QAction* action = frame.findChild<QAction*>(objectName);
    QVERIFY2(action, qPrintable(objectName));
    action->trigger();
}

QStringList SelectedNames(CTamloView& view)
{
    QStringList names;
    for (const CHmiWidget* widget : view.Selection().Widgets())
        names << QString::fromStdString(widget->GetWidgetName());
    return names;
}

// The window as its file would hold it, and what is selected on it.
struct Snapshot {
    std::string bytes;
    QStringList selected;
};

Snapshot Take(CTamloView& view)
{
    return {view.Document().Serialize(), SelectedNames(view)};
}

} // namespace

Q_DECLARE_METATYPE(Edit)

class UndoHistoryTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    CChildFrame* child = nullptr;
    CTamloView* view = nullptr;
    CTamloDoc* document = nullptr;
    CHmiWidget* a = nullptr; // rect at (10, 10, 50, 50), selected
    CHmiWidget* b = nullptr; // rect at (100, 10, 140, 50)

    QUndoStack& Stack() const { return child->History()->Stack(); }

    void SetUndoHistory(CEditorPreferences::UndoHistory undoHistory)
    {
        CEditorPreferences::Values values = editor->frame.Preferences().Get();
        values.undoHistory = undoHistory;
        editor->frame.Preferences().Set(values);
    }

private slots:
    void initTestCase() { RegisterBuiltinCanvasControls(); }

    void init()
    {
        editor = std::make_unique<EditorUnderTest>();
        SetUndoHistory(CEditorPreferences::UndoHistory::Unlimited);
        child = &editor->NewWindow();
        view = &child->View();
        document = &view->Document();
        a = AddRect(*document, {10, 10, 50, 50});
        b = AddRect(*document, {100, 10, 140, 50});
        view->setFocus();
        Click(view, QPoint(20, 20));
        QCOMPARE(Stack().count(), 2); // the two widgets added
    }

    void cleanup() { editor.reset(); }

    void everyKindOfEditIsUndoneAndRedone_data()
    {
        QTest::addColumn<QString>("selected"); // before the edit: a, a then b, or b
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("text"); // {a} and {last} stand for those widgets' names
        QTest::newRow("mouse move") << QString("ab") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Drag(view, QPoint(20, 20), QPoint(45, 60));
        }) << "Move 2 widgets";
        QTest::newRow("handle resize") << QString("a") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Drag(view, QPoint(50, 50), QPoint(70, 90));
        }) << "Resize {a}";
        QTest::newRow("placing") << QString("a") << Edit([](QWidget* view, CMainFrame& frame, CTamloDoc&) {
            CToolbox& toolbox = frame.Toolbox();
            const QListWidgetItem* rectangle = toolbox.findItems(QStringLiteral("Rectangle"), Qt::MatchExactly).first();
            Click(toolbox.viewport(), toolbox.visualItemRect(rectangle).center());
            Drag(view, QPoint(200, 200), QPoint(260, 250));
            Key(view, Qt::Key_Escape);
        }) << "Add {last}";
        QTest::newRow("arrow key") << QString("a") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Key(view, Qt::Key_Down);
        }) << "Move {a}";
        QTest::newRow("shift arrow key") << QString("a") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Key(view, Qt::Key_Right, Qt::ShiftModifier);
        }) << "Resize {a}";
        QTest::newRow("align left") << QString("ab") << Edit([](QWidget*, CMainFrame& frame, CTamloDoc&) {
            Trigger(frame, QStringLiteral("actionAlignLeft"));
        }) << "Move {a}";
        QTest::newRow("move to top") << QString("a") << Edit([](QWidget*, CMainFrame& frame, CTamloDoc&) {
            Trigger(frame, QStringLiteral("actionMoveToTop"));
        }) << "Move to Top";
        QTest::newRow("move to bottom") << QString("b") << Edit([](QWidget*, CMainFrame& frame, CTamloDoc&) {
            Trigger(frame, QStringLiteral("actionMoveToBottom"));
        }) << "Move to Bottom";
        QTest::newRow("property pane") << QString("a") << Edit([](QWidget*, CMainFrame& frame, CTamloDoc&) {
            CPropertyPane& pane = frame.PropertyPane();
            pane.FindItem("Name")->SetEditText("pump");
            emit pane.itemChanged(pane.FindItem("Name"));
        }) << "Change Name of pump";
        QTest::newRow("pane, two widgets") << QString("ab") << Edit([](QWidget*, CMainFrame& frame, CTamloDoc&) {
            CPropertyPane& pane = frame.PropertyPane();
            QTRY_VERIFY(pane.FindItem("Flash speed"));
            pane.FindItem("Flash speed")->SetEditText("3");
            emit pane.itemChanged(pane.FindItem("Flash speed"));
        }) << "Change Flash speed of 2 widgets";
        // What the binding and event dialogs do once the user has confirmed.
        QTest::newRow("binding") << QString("a") << Edit([](QWidget*, CMainFrame&, CTamloDoc& document) {
            CHmiWidget& widget = *document.Widgets()[1];
            widget.AddWidgetDynProp("fillcolor", "$plc.level > 50");
            document.WidgetChanged(widget, DocChange::Bindings);
        }) << "Change bindings of {a}";
        QTest::newRow("event") << QString("a") << Edit([](QWidget*, CMainFrame&, CTamloDoc& document) {
            CHmiWidget& widget = *document.Widgets()[1];
            widget.SetWidgetEventCode(widget.GetEvents().front().name, "beep();");
            document.WidgetChanged(widget, DocChange::Events);
        }) << "Change events of {a}";
        QTest::newRow("paste") << QString("ab") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Key(view, Qt::Key_C, Qt::ControlModifier);
            Key(view, Qt::Key_V, Qt::ControlModifier);
        }) << "Paste 2 widgets";
        QTest::newRow("delete") << QString("ab") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Key(view, Qt::Key_Delete);
        }) << "Delete 2 widgets";
        QTest::newRow("cut") << QString("a") << Edit([](QWidget* view, CMainFrame&, CTamloDoc&) {
            Key(view, Qt::Key_X, Qt::ControlModifier);
        }) << "Cut {a}";
    }

    // Each edit is one entry that says what was done; Undo puts the window and the selection
    // back as they were before it, Redo as they were after it, through the keys.
    void everyKindOfEditIsUndoneAndRedone()
    {
        QFETCH(QString, selected);
        QFETCH(Edit, edit);
        if (selected.contains(QLatin1Char('b')))
            Click(view, QPoint(110, 20), selected == QStringLiteral("ab") ? Qt::ControlModifier : Qt::NoModifier);
        QFETCH(QString, text);
        const QString nameOfA = QString::fromStdString(a->GetWidgetName());
        const QString nameOfB = QString::fromStdString(b->GetWidgetName());
        const Snapshot before = Take(*view);
        edit(view, editor->frame, *document);
        QCoreApplication::processEvents();
        const Snapshot after = Take(*view);
        QVERIFY(after.bytes != before.bytes);
        QCOMPARE(Stack().count(), 3);
        text.replace(QStringLiteral("{a}"), nameOfA).replace(QStringLiteral("{b}"), nameOfB);
        text.replace(QStringLiteral("{last}"), QString::fromStdString(document->Widgets().back()->GetWidgetName()));
        QCOMPARE(Stack().text(2), text);

        view->setFocus();
        for (int round = 0; round < 2; ++round) {
            Key(view, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(Take(*view).bytes, before.bytes);
            QCOMPARE(Take(*view).selected, before.selected);
            Key(view, round == 0 ? Qt::Key_Y : Qt::Key_Z, round == 0 ? Qt::ControlModifier
                                                                     : Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(Take(*view).bytes, after.bytes);
            QCOMPARE(Take(*view).selected, after.selected);
        }
        // The panes show the widget that is selected, which may be a new object standing in for
        // the one edited.
        QCOMPARE(editor->frame.PropertyPane().Widgets(), view->Selection().Widgets());
        CWidgetNameCombo& names = editor->frame.NameCombo();
        QCOMPARE(names.currentText(), Take(*view).selected.back());
        QCOMPARE(std::size_t(names.count()), document->Widgets().size());
    }

    // A deleted widget is out of the document's list, so nothing saves or draws it, and the
    // history brings back the very same object where it stood.
    void deletedWidgetsLiveInTheHistoryOutOfTheList()
    {
        Key(view, Qt::Key_Delete);
        QCOMPARE(document->Widgets().size(), std::size_t(2));
        QVERIFY(document->Serialize().find(a->GetWidgetName()) == std::string::npos);
        Stack().undo();
        QCOMPARE(document->Widgets()[1].get(), a);
        QCOMPARE(view->Selection().Widgets(), std::vector<CHmiWidget*>{a});
        Stack().redo();
        QCOMPARE(document->Widgets().size(), std::size_t(2));
        // Undoing the addition keeps it too; a new edit drops what could be redone, and with it
        // the widget, for good.
        Stack().setIndex(1);
        QCOMPARE(document->Widgets().size(), std::size_t(2));
        QCOMPARE(document->Widgets()[1].get(), a);
        Key(view, Qt::Key_Right);
        QCOMPARE(Stack().count(), 2);
        QVERIFY(!Stack().canRedo());
    }

    // A widget with a live control keeps its control while the history keeps it, and a new
    // object put in its place by an undo gets one of its own: one control shows at any time.
    void liveControlsFollowTheirWidgetsThroughTheHistory()
    {
        HmiWidgetPtr made(new CHmiWidgetCheckbox);
        made->SetWidgetRect({200, 200, 300, 230});
        document->AddWidget(std::move(made), true);
        const auto shown = [this] {
            int count = 0;
            for (const QCheckBox* control : view->findChildren<QCheckBox*>())
                count += control->isVisible();
            return count;
        };
        QCOMPARE(shown(), 1);
        Click(view, QPoint(290, 225));
        Key(view, Qt::Key_Delete);
        QCOMPARE(shown(), 0);
        Stack().undo();
        QCOMPARE(shown(), 1);
        CPropertyPane& pane = editor->frame.PropertyPane();
        pane.FindItem("Name")->SetEditText("check");
        emit pane.itemChanged(pane.FindItem("Name"));
        Stack().undo();
        QCOMPARE(view->findChildren<QCheckBox*>().size(), qsizetype(1));
        QCOMPARE(shown(), 1);
    }

    // The modified mark follows the stack: saving makes the state clean, and undoing or redoing
    // back to it clears the mark.
    void theModifiedMarkFollowsTheSavedStateInTheList()
    {
        editor->prompts.saveFileName = editor->folder.filePath(QStringLiteral("saved.xml"));
        QVERIFY(child->Save());
        QVERIFY(!document->IsModified());
        Key(view, Qt::Key_Right);
        QVERIFY(document->IsModified());
        QVERIFY(child->isWindowModified());
        Stack().undo();
        QVERIFY(!document->IsModified());
        QVERIFY(!child->isWindowModified());
        Stack().undo();
        QVERIFY(document->IsModified());
        Stack().redo();
        QVERIFY(!document->IsModified());

        // The saved entry carries the save icon once the dock, which starts behind the property
        // pane, is shown.
        auto* dock = editor->frame.findChild<CHistoryDock*>();
        dock->show();
        dock->raise();
        QTRY_VERIFY(!dock->View().cleanIcon().isNull());
    }

    // The preference switches every open window: unlimited starts an empty history from the
    // window as it stands (a widget the one step deleted is gone for good); one step drops the
    // history and the widgets it kept, and leaves Undo nothing to take back.
    void switchingThePreferenceWhileWindowsAreOpen()
    {
        Key(view, Qt::Key_Delete);
        SetUndoHistory(CEditorPreferences::UndoHistory::OneStep);
        QVERIFY(!child->History());
        QVERIFY(!document->CanUndo());
        Click(view, QPoint(110, 20));
        Key(view, Qt::Key_Delete);
        QVERIFY(document->IsWidgetDeleted(b));
        SetUndoHistory(CEditorPreferences::UndoHistory::Unlimited);
        QCOMPARE(document->Widgets().size(), std::size_t(1));
        QCOMPARE(Stack().count(), 0);
        Key(view, Qt::Key_Right);
        Stack().undo();
        QVERIFY(document->IsModified()); // the edits before the history are not saved
    }

    // The History dock lists the active window's entries; choosing an older one undoes up to it.
    void theHistoryDockFollowsTheActiveWindow()
    {
        Key(view, Qt::Key_Right);
        Key(view, Qt::Key_Down);
        QUndoView& list = editor->frame.findChild<CHistoryDock*>()->View();
        QCOMPARE(list.model()->rowCount(), 5); // the state before any edit, then four entries
        list.setCurrentIndex(list.model()->index(2, 0));
        QCOMPARE(a->GetWidgetRect(), (HmiRect{10, 10, 50, 50}));
        QAction* redo = editor->frame.findChild<QAction*>(QStringLiteral("actionRedo"));
        QVERIFY(redo->isVisible() && redo->isEnabled());
        CChildFrame& other = editor->NewWindow();
        QCOMPARE(list.model()->rowCount(), 1);
        editor->frame.MdiArea().setActiveSubWindow(child);
        QCOMPARE(list.model()->rowCount(), 5);
        SetUndoHistory(CEditorPreferences::UndoHistory::OneStep);
        QVERIFY(!redo->isVisible());
        QVERIFY(!other.History());
    }
};

QTEST_MAIN(UndoHistoryTest)
#include "undohistory_test.moc"
