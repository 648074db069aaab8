// The live controls on a real canvas inside the main frame, driven with the mouse as a user drives
// them: the mouse goes to the controls themselves and must reach the canvas tools.
#include "editor/app/tests/editorfixture.h"

#include "editor/extensions/canvascontrol.h"
#include "editor/model/canvastools.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/projectdialogs/widgetitemdialogs.h"
#include "tests/support/registryscope.h"
#include "catalogue/hmiwidgetalarmwnd.h"
#include "catalogue/hmiwidgetcontrols.h"
#include "catalogue/hmiwidgethislist.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

struct ControlSample {
    const char* name;
    HmiRect rect;
};

constexpr ControlSample kCheckbox = {"start", {20, 20, 140, 44}};
constexpr ControlSample kCombobox = {"mode", {20, 60, 140, 84}};
constexpr ControlSample kEdit = {"note", {20, 100, 140, 124}};
constexpr ControlSample kAlarms = {"alarms", {160, 20, 560, 160}};
constexpr ControlSample kHistory = {"records", {160, 200, 460, 300}};

template <typename Widget>
void AddSample(CTamloDoc& document, const ControlSample& sample)
{
    HmiWidgetPtr widget(new Widget);
    widget->SetWidgetName(sample.name);
    widget->SetWidgetRect(sample.rect);
    document.AddWidget(std::move(widget), true);
}

QRect ToQRect(const HmiRect& rect)
{
    return QRect(rect.left, rect.top, rect.Width(), rect.Height());
}

// Lets the canvas repaint, which is when the widgets put their controls in place.
void LetTheCanvasPaint()
{
    QApplication::processEvents();
}

} // namespace

class CanvasControlsTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    CChildFrame* child = nullptr;
    CTamloView* view = nullptr;
    CTamloDoc* document = nullptr;

    CHmiCtrlWidget* Find(const ControlSample& sample) const
    {
        for (const HmiWidgetPtr& widget : document->Widgets())
            if (widget->GetWidgetName() == sample.name)
                return dynamic_cast<CHmiCtrlWidget*>(widget.get());
        return nullptr;
    }

    QWidget* ControlWidget(const ControlSample& sample) const
    {
        const CHmiCtrlWidget* widget = Find(sample);
        const CCanvasControl* control = widget ? view->Controls().ControlOf(*widget) : nullptr;
        return control ? control->Widget() : nullptr;
    }

    QTreeWidget* List(const ControlSample& sample) const { return qobject_cast<QTreeWidget*>(ControlWidget(sample)); }
    std::vector<CHmiWidget*> Selected() const { return view->Selection().Widgets(); }

    // The widget has the rectangle, and its control stands there once the canvas has painted.
    void ExpectPlaced(const ControlSample& sample, const HmiRect& rect)
    {
        QCOMPARE(Find(sample)->GetWidgetRect(), rect);
        LetTheCanvasPaint();
        QCOMPARE(ControlWidget(sample)->geometry(), ToQRect(rect));
    }

    // What the property pane does when the user commits a row of the selected widget.
    void CommitRow(const char* caption, const std::string& text)
    {
        CPropertyPane& pane = editor->frame.PropertyPane();
        CPropertyPaneItem* row = pane.FindItem(caption);
        QVERIFY(row);
        row->SetEditText(text);
        emit pane.itemChanged(row);
    }

private slots:
    // The editor's own kinds, registered as at start-up.
    void initTestCase()
    {
        RegisterBuiltinCanvasControls();
    }

    // Opens a saved window file with one widget of every control kind. The edit box has no class
    // key of its own in the registry, so no file brings one: it joins the open window directly,
    // as a placed or pasted widget does, and gets its control as it joins all the same.
    void init()
    {
        editor = std::make_unique<EditorUnderTest>();
        CTamloDoc source;
        source.OnNewDocument();
        AddSample<CHmiWidgetCheckbox>(source, kCheckbox);
        AddSample<CHmiWidgetCombobox>(source, kCombobox);
        AddSample<CHmiWidgetAlarmWnd>(source, kAlarms);
        AddSample<CHmiWidgetHisList>(source, kHistory);
        const QString path = editor->folder.filePath(QStringLiteral("controls.xml"));
        QVERIFY(source.Save(path.toStdString()));
        child = editor->frame.OpenDocument(path);
        QVERIFY(child);
        view = &child->View();
        document = &child->Document();
        AddSample<CHmiWidgetEdit>(*document, kEdit);
        LetTheCanvasPaint();
    }

    void cleanup() { editor.reset(); }

    void everyControlKindStandsAtItsWidget()
    {
        const std::pair<ControlSample, const char*> kinds[] = {{kCheckbox, "QCheckBox"}, {kCombobox, "QComboBox"},
                                                               {kEdit, "QLineEdit"},     {kAlarms, "QTreeWidget"},
                                                               {kHistory, "QTreeWidget"}};
        for (const auto& [sample, kind] : kinds) {
            const QWidget* control = ControlWidget(sample);
            QVERIFY2(control && control->parentWidget() == view && control->isVisible(), sample.name);
            QCOMPARE(control->metaObject()->className(), kind);
            QCOMPARE(control->geometry(), ToQRect(sample.rect));
            QCOMPARE(control->cursor().shape(), Qt::ArrowCursor);
            QCOMPARE(control->focusPolicy(), Qt::NoFocus);
        }
    }

    // The mouse on a control is the canvas's: it selects, moves and resizes the widget, and the
    // control follows; the control itself reacts to nothing.
    void theMouseOnAControlReachesTheCanvas()
    {
        auto* checkbox = qobject_cast<QCheckBox*>(ControlWidget(kCheckbox));
        Click(checkbox, QPoint(8, 8));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{Find(kCheckbox)});
        QVERIFY(!checkbox->isChecked());
        Click(ControlWidget(kCombobox), QPoint(30, 10), Qt::ControlModifier);
        QCOMPARE(Selected(), (std::vector<CHmiWidget*>{Find(kCheckbox), Find(kCombobox)}));
        QVERIFY(!QApplication::activePopupWidget()); // no drop-down list opened
        QTest::mouseDClick(checkbox, Qt::LeftButton, Qt::ShiftModifier, QPoint(8, 8));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{Find(kCombobox)});

        Click(List(kAlarms)->viewport(), QPoint(50, 50));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{Find(kAlarms)});
        // A heading, away from its dividers, is part of the control like the rows.
        QHeaderView* header = List(kHistory)->header();
        Click(header->viewport(), QPoint(70, header->height() / 2));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{Find(kHistory)});

        QWidget* edit = ControlWidget(kEdit);
        Drag(edit, QPoint(10, 10), QPoint(40, 30));
        ExpectPlaced(kEdit, {50, 120, 170, 144});

        // The bottom-right handle reaches into the control's last pixel; the drag takes the corner
        // to the point where it ends.
        const QPoint grip(edit->width() - 1, edit->height() - 1);
        Drag(edit, grip, grip + QPoint(30, 20));
        ExpectPlaced(kEdit, {50, 120, 199, 163});
    }

    void deletingHidesTheControlAndUndoShowsItAgain()
    {
        QWidget* checkbox = ControlWidget(kCheckbox);
        Click(checkbox, QPoint(8, 8));
        QTest::keyClick(view, Qt::Key_Delete);
        LetTheCanvasPaint();
        QVERIFY(!checkbox->isVisible());

        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
        LetTheCanvasPaint();
        QVERIFY(checkbox->isVisible());
        QCOMPARE(ControlWidget(kCheckbox), checkbox);
    }

    // A divider dragged sets the width the file keeps.
    void draggingAColumnDividerSetsTheColumnWidth()
    {
        const std::pair<ControlSample, QByteArray> lists[] = {{kAlarms, "\"190,80,80,80,80,80,80,80,\""},
                                                              {kHistory, "\"190,\""}};
        for (const auto& [sample, savedWidths] : lists) {
            document->SetModifiedFlag(false);

            QHeaderView* header = List(sample)->header();
            auto* columns = dynamic_cast<ListColumnsState*>(Find(sample));
            const int y = header->height() / 2;
            // Just inside the first column's right edge, where the header starts a resize.
            Drag(header->viewport(), QPoint(149, y), QPoint(189, y));
            QCOMPARE(columns->m_columns.front().width, 190);
            ExpectPlaced(sample, sample.rect); // the widget itself stays put
            QVERIFY(child->isWindowModified());

            editor->prompts.saveFileName = editor->folder.filePath(QStringLiteral("saved.xml"));
            QVERIFY(child->SaveAs());
            const QByteArray bytes = ReadBytes(editor->prompts.saveFileName);
            const qsizetype widths = bytes.indexOf("name=\"fieldswidth\"", bytes.indexOf(sample.name));
            QVERIFY(widths > 0);
            QCOMPARE(bytes.mid(bytes.indexOf("value=", widths) + 6, savedWidths.size()), savedWidths);
        }
    }

    void propertyEditsShowInTheControls()
    {
        Click(ControlWidget(kCheckbox), QPoint(8, 8));
        CommitRow("Caption", "\xC6\xF4\xB6\xAF"); // the pane holds the model's GB2312 text
        QCOMPARE(qobject_cast<QCheckBox*>(ControlWidget(kCheckbox))->text(), QStringLiteral("启动"));

        Click(ControlWidget(kCombobox), QPoint(30, 10));
        CommitRow("List", "a,b,,c");
        auto* combobox = qobject_cast<QComboBox*>(ControlWidget(kCombobox));
        QStringList items;
        for (int i = 0; i < combobox->count(); ++i)
            items << combobox->itemText(i);
        QCOMPARE(items, QStringList({"a", "b", "", "c"}));
        QCOMPARE(combobox->currentText(), QStringLiteral("a"));

        // The field dialog gives new columns of the default width, and tells the document.
        auto* alarms = dynamic_cast<CHmiWidgetAlarmWnd*>(Find(kAlarms));
        alarms->SetDisplayFields("Time,Alarm info,");
        document->WidgetChanged(*alarms, DocChange::Properties);
        QHeaderView* header = List(kAlarms)->header();
        QCOMPARE(header->count(), 2);
        QCOMPARE(List(kAlarms)->headerItem()->text(1), QStringLiteral("Alarm info"));
        QCOMPARE(header->sectionSize(1), 80);
        // With every field unchecked the list has no columns at all.
        alarms->SetDisplayFields("");
        document->WidgetChanged(*alarms, DocChange::Properties);
        QCOMPARE(header->count(), 0);
    }
};

QTEST_MAIN(CanvasControlsTest)
#include "canvascontrols_test.moc"
