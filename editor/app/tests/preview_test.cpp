// The preview of a window in the editor: the Variables dock and the generators drive the canvas,
// nothing reaches the document meanwhile, and leaving shows the edited window exactly as before.
#include "editorfixture.h"

#include "editor/app/previewactions.h"
#include "editor/preview/variablesdock.h"
#include "editor/preview/variablesmodel.h"
#include "editor/propertypane/propertypane.h"
#include "project/projectpath.h"
#include "tests/support/registryscope.h"

#include <QAction>
#include <QLineEdit>
#include <QStatusBar>
#include <QTableView>
#include <QTreeWidget>

#include <algorithm>

namespace {

// The canvas's colour at a point of the window; the canvas shows the window at its origin.
QRgb CanvasPixel(CTamloView& view, QPoint point)
{
    return view.grab().toImage().pixel(point);
}

} // namespace

class PreviewTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;

private slots:
    void valuesAndGeneratorsDriveTheCanvasWhichLeavesTheDocumentAlone()
    {
        EditorUnderTest editor;
        SetProjectPath(KELVO_DEMO_DIR "/");
        CChildFrame* child = editor.frame.OpenDocument(QStringLiteral(KELVO_DEMO_DIR "/main.xml"));
        QVERIFY(child);
        CTamloView& view = child->View();
        const auto& widgets = child->Document().Widgets();
        CHmiWidget* boiler = std::find_if(widgets.begin(), widgets.end(), [](const HmiWidgetPtr& widget) {
                                 return widget->GetWidgetName() == "boiler";
                             })->get();
        boiler->AddWidgetDynProp("top", "80 / $plc.pump2_run");
        const std::string bytes = child->Document().Serialize();
        const QImage edited = view.grab().toImage();
        const QPoint lamp(360, 100), inBoiler(120, 300);
        QCOMPARE(CanvasPixel(view, lamp), qRgb(0, 255, 0));

        CPreviewActions& preview = editor.frame.Preview();
        preview.PreviewAction()->trigger();
        QVERIFY(preview.IsRunning());
        QCOMPARE(CanvasPixel(view, lamp), qRgb(128, 128, 128)); // no flame
        QTRY_VERIFY(!editor.frame.PropertyPane().isEnabled());
        QVERIFY(!editor.frame.findChild<QAction*>(QStringLiteral("actionAlignLeft"))->isEnabled());

        // A value typed into the dock's filtered table shows on the canvas at once.
        CVariablesDock& dock = editor.frame.VariablesDock();
        QTest::keyClicks(dock.Filter(), QStringLiteral("FLAME"));
        QTableView& table = *dock.Table();
        QCOMPARE(table.model()->rowCount(), 1);
        table.setCurrentIndex(table.model()->index(0, CVariablesModel::Value));
        table.edit(table.currentIndex());
        auto* editorLine = table.viewport()->findChild<QLineEdit*>();
        QVERIFY(editorLine);
        editorLine->selectAll();
        QTest::keyClicks(editorLine, QStringLiteral("1"));
        QTest::keyClick(editorLine, Qt::Key_Return); // the table takes the value when it next runs
        QTRY_COMPARE(CanvasPixel(view, lamp), qRgb(255, 255, 0));
        QVERIFY(!table.model()->setData(table.model()->index(0, CVariablesModel::Value), QStringLiteral("on")));

        // A toggle on the level moves the boiler's colour across the thresholds as the clock runs.
        dock.Filter()->setText(QStringLiteral("plc.level"));
        const auto set = [&](int column, const QVariant& value) {
            QVERIFY(table.model()->setData(table.model()->index(0, column), value));
        };
        set(CVariablesModel::Generator, QStringLiteral("toggle"));
        set(CVariablesModel::Low, 10);
        set(CVariablesModel::High, 90);
        preview.AdvanceTo(0);
        QCOMPARE(CanvasPixel(view, inBoiler), qRgb(192, 192, 192));
        preview.AdvanceTo(1000);
        QCOMPARE(CanvasPixel(view, inBoiler), qRgb(0, 255, 0));
        QCOMPARE(table.model()->index(0, CVariablesModel::Value).data().toString(), QStringLiteral("90"));

        // The failing binding keeps the document's top, and is listed and outlined in red.
        QCOMPARE(dock.ProblemList()->topLevelItemCount(), 1);
        QCOMPARE(dock.ProblemList()->topLevelItem(0)->text(2), QStringLiteral("division by zero at 3 of '80 / $plc.pump2_run'"));
        const QImage shown = view.grab().toImage();
        int red = 0;
        for (int y = 80; y < 400; ++y)
            red += shown.pixel(99, y) == qRgb(255, 0, 0);
        QVERIFY2(red > 100, qPrintable(QString::number(red)));

        // The mouse and the keys reach no tool; a click tells the button's script instead.
        QTest::mousePress(&view, Qt::LeftButton, {}, inBoiler);
        QTest::mouseMove(&view, inBoiler + QPoint(40, 40));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, inBoiler + QPoint(40, 40));
        QTest::keyClick(&view, Qt::Key_Left);
        QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(500, 425));
        QVERIFY(editor.frame.statusBar()->currentMessage().contains(QStringLiteral("openwindow(\"trends\")")));

        QTest::keyClick(&view, Qt::Key_Escape);
        QVERIFY(!preview.IsRunning());
        QTRY_VERIFY(editor.frame.PropertyPane().isEnabled());
        QCOMPARE(view.grab().toImage(), edited);
        QCOMPARE(child->Document().Serialize(), bytes);
        QCOMPARE(dock.ProblemList()->topLevelItemCount(), 0);

        // Escape in the Variables dock ends it too, when no value is being typed.
        preview.Start(view);
        QTest::keyClick(dock.Table(), Qt::Key_Escape);
        QVERIFY(!preview.IsRunning());

        // Editing a previewed window, as a project-wide rename does, ends its preview.
        preview.Start(view);
        boiler->m_pDocument->WidgetChanged(*boiler, DocChange::Bindings);
        QVERIFY(!preview.IsRunning());
        QVERIFY(!preview.PreviewAction()->isChecked());
        // And so does closing it.
        preview.Start(view);
        editor.prompts.saveAnswer = CEditorPrompts::SaveAnswer::Discard;
        QVERIFY(child->close());
        QTRY_VERIFY(editor.frame.Children().isEmpty());
        QVERIFY(!preview.IsRunning());
    }
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
