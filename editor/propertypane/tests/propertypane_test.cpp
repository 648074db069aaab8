// The property pane with catalogue widgets of a real document, driven through its editors as a
// user would: typing, clicking, choosing and pressing row buttons.

#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "tests/support/registryscope.h"
#include "catalogue/hmiwidgetbutton.h"
#include "catalogue/hmiwidgetrect.h"
#include "catalogue/hmiwidgettext.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/tamlodoc.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <QToolButton>
#include <QTreeWidget>

#include <memory>

namespace {

// "测试" and "泵" in GB2312, the model's encoding.
const std::string kGbTest = "\xB2\xE2\xCA\xD4";
const std::string kGbPump = "\xB1\xC3";

const QColor kBoundColor(255, 0, 0);
const QColor kFaceColor(0xF0, 0xF0, 0xF0);

// left, top, right, bottom, width and height, as the geometry rows show them.
QString Geometry(const HmiRect& r)
{
    return QStringLiteral("%1,%2,%3,%4,%5,%6")
        .arg(r.left).arg(r.top).arg(r.right).arg(r.bottom).arg(r.Width()).arg(r.Height());
}

// A widget whose "mode" row offers the choices it is given, with a row of its own that it
// puts under no group.
struct ModeWidget : CHmiWidget {
    ModeWidget(const char* const* choices, int count)
    {
        DeclareProperty("mode", "Mode", "", 0, "Basic properties", PROP_COMBO).SetComboList(choices, count);
    }
    void CreateWidgetPropertyTree(COptionTree& tree) override
    {
        CHmiWidget::CreateWidgetPropertyTree(tree);
        tree.CreateNewItem(OptionItemKind::Edit, nullptr, "Loose", "");
    }
    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override
    {
        text = "0";
        return prop.m_strName == "mode" ? 1 : CHmiWidget::GetWidgetPropValue(prop, text);
    }
};

} // namespace

class PropertyPaneTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<CTamloDoc> doc;
    std::unique_ptr<CPropertyPane> pane;

    // A widget of the class registered under key, added to the document with a rectangle.
    template <class Widget>
    Widget* Add(const char* key, const HmiRect& rect = {10, 10, 50, 50})
    {
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(key)->CreateObject();
        widget->SetWidgetRect(rect);
        auto* added = dynamic_cast<Widget*>(widget.get());
        doc->AddWidget(std::move(widget), true);
        return added;
    }

    // Shows the pane for a widget and lets the tree place the editors.
    template <class Widget>
    Widget* Show(Widget* widget)
    {
        pane->ShowWidget(widget);
        pane->show();
        if (!QTest::qWaitForWindowExposed(pane.get()))
            qWarning("the pane was never shown");
        QCoreApplication::processEvents();
        return widget;
    }

    CPropertyPaneItem* Row(const char* caption, const char* root = "") { return pane->FindItem(caption, root); }

    template <class Editor>
    Editor* EditorOf(const char* caption)
    {
        CPropertyPaneItem* item = Row(caption);
        return item ? qobject_cast<Editor*>(item->Editor()) : nullptr;
    }

    // Replaces a line edit's text by typing and confirms it with Return. Characters are sent one
    // by one, since keyClicks cannot carry those beyond Latin-1.
    static void Type(QLineEdit* edit, const QString& text)
    {
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    // The geometry rows' texts, in the order of Geometry().
    QString ShownGeometry()
    {
        QStringList texts;
        for (const char* caption : {"Left", "Top", "Right", "Bottom", "Width", "Height"})
            texts << EditorOf<QLineEdit>(caption)->text();
        return texts.join(',');
    }

    // The colour the screen shows in the extra column of a row.
    QColor ExtraColumnPixel(const char* caption)
    {
        QTreeWidget* tree = pane->Tree();
        const QRect row = tree->visualItemRect(Row(caption)->Row());
        const int x = tree->header()->sectionPosition(CPropertyPane::ExtraColumn) + 2;
        return tree->viewport()->grab().toImage().pixelColor(x, row.center().y());
    }

private slots:

    void init()
    {
        doc = std::make_unique<CTamloDoc>();
        doc->OnNewDocument();
        pane = std::make_unique<CPropertyPane>();
        pane->resize(420, 1000); // every row in view, so every editor is placed
    }

    void cleanup()
    {
        pane.reset();
        doc.reset();
    }

    void eachKindOfRowHasItsEditorAndButtonsThatAskForTheirDialogs()
    {
        auto* button = Add<CHmiWidgetButton>("button");
        button->m_strCaption = "Start";
        Show(button);
        for (int i = 0; i < pane->Tree()->topLevelItemCount(); ++i)
            QVERIFY(pane->Tree()->topLevelItem(i)->isExpanded());
        QCOMPARE(EditorOf<QLineEdit>("Left")->text(), QString("10"));
        QCOMPARE(EditorOf<QLineEdit>("Caption")->text(), QString("Start"));
        QVERIFY(EditorOf<QCheckBox>("Visible")->isChecked());
        QCOMPARE(EditorOf<QComboBox>("Type")->currentText(), QString("Normal"));
        QVERIFY(EditorOf<QPushButton>("Backcolor") && EditorOf<QLabel>("Button Down"));
        QVERIFY(EditorOf<QLineEdit>("Var Name"));

        // Only bindable rows have the binding button; plain edit rows have no other.
        QVERIFY(!Row("Name")->BindButton());
        QVERIFY(!Row("Left")->BrowseButton());

        // Each row button asks for its dialog.
        auto* root = pane->CreateNewRootItem("Extra", "");
        root->Expand();
        pane->CreateNewItem(OptionItemKind::File, root, "Picture", "");
        pane->CreateNewItem(OptionItemKind::Font, root, "Face", "")->SetStaticText("Serif, 12");
        QCoreApplication::processEvents();

        const struct {
            const char* caption;
            void (CPropertyPane::*signal)(COptionTreeItem*);
            QToolButton* (CPropertyPaneItem::*button)() const;
        } cases[] = {
            {"Left", &CPropertyPane::dynPropEditRequested, &CPropertyPaneItem::BindButton},
            {"Button Down", &CPropertyPane::eventEditRequested, &CPropertyPaneItem::BrowseButton},
            {"Var Name", &CPropertyPane::selectItemRequested, &CPropertyPaneItem::BrowseButton},
            {"Picture", &CPropertyPane::fileRequested, &CPropertyPaneItem::BrowseButton},
            {"Face", &CPropertyPane::fontRequested, &CPropertyPaneItem::BrowseButton},
        };
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        for (const auto& c : cases) {
            QSignalSpy requested(pane.get(), c.signal);
            CPropertyPaneItem* item = Row(c.caption);
            QToolButton* rowButton = (item->*c.button)();
            QVERIFY2(rowButton, c.caption);
            QTest::mouseClick(rowButton, Qt::LeftButton);
            QVERIFY2(requested.count() == 1, c.caption);
            QCOMPARE(requested.first().first().value<COptionTreeItem*>(), static_cast<COptionTreeItem*>(item));
        }
        QCOMPARE(changed.count(), 0); // a button only asks; nothing is changed yet

        // The variable chooser answered: the main frame puts the name in the row and commits it.
        connect(pane.get(), &CPropertyPane::selectItemRequested, pane.get(), [this](COptionTreeItem* item) {
            item->SetEditText("$rtdb.pump1");
            pane->CommitItem(item);
        });
        QTest::mouseClick(Row("Var Name")->BrowseButton(), Qt::LeftButton);
        QCOMPARE(button->m_strVarName, std::string("$rtdb.pump1"));
        QCOMPARE(changed.count(), 1);

        // A row of a pane that has since been rebuilt is no longer applied.
        COptionTreeItem* stale = Row("Var Name");
        Show(button);
        pane->CommitItem(stale);
        QCOMPARE(changed.count(), 1);
    }

    void boundPropertiesAreMarkedRedInTheExtraColumn()
    {
        auto* rect = Add<CHmiWidgetRect>("rectangle");
        rect->AddWidgetDynProp("left", "$db.level");
        Show(rect);
        QCOMPARE(ExtraColumnPixel("Left"), kBoundColor);
        QCOMPARE(ExtraColumnPixel("Top"), kFaceColor);

        // The mark stays visible on the current row.
        QTest::mouseClick(EditorOf<QLineEdit>("Left"), Qt::LeftButton);
        QCOMPARE(pane->Tree()->currentItem(), Row("Left")->Row());
        QCOMPARE(ExtraColumnPixel("Left"), kBoundColor);

        // A binding made in a dialog shows once the document tells of it.
        rect->AddWidgetDynProp("top", "$db.y");
        rect->AddWidgetDynProp("left", "");
        doc->WidgetChanged(*rect, DocChange::Bindings);
        QCOMPARE(ExtraColumnPixel("Top"), kBoundColor);
        QCOMPARE(ExtraColumnPixel("Left"), kFaceColor);
    }

    // The rules for each row are tested with the widget's property list; here, that the pane
    // commits what was typed on Return alone, tells the document and shows the widget again:
    // derived rows follow, refused values are put back.
    void geometryEditsChangeTheRectangle()
    {
        const struct {
            const char* caption;
            const char* typed;
            const char* geometry;
        } edits[] = {{"Left", "30", "30,10,70,60,40,50"}, {"Right", "10", "10,10,50,60,40,50"}};
        for (const auto& edit : edits) {
            auto* rect = Show(Add<CHmiWidgetRect>("rectangle", {10, 10, 50, 60}));
            QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
            doc->SetModifiedFlag(false);
            QLineEdit* field = EditorOf<QLineEdit>(edit.caption);
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(field, edit.typed);
            QCOMPARE(changed.count(), 0); // typing alone commits nothing
            QTest::keyClick(field, Qt::Key_Return);
            QTest::keyClick(field, Qt::Key_Return); // an unchanged text is no edit
            QCOMPARE(changed.count(), 1);
            QCOMPARE(changed.first().first().value<COptionTreeItem*>(),
                     static_cast<COptionTreeItem*>(Row(edit.caption)));
            QVERIFY(doc->IsModified());
            QCOMPARE(Geometry(rect->GetWidgetRect()), QString(edit.geometry));
            QCOMPARE(ShownGeometry(), QString(edit.geometry));
        }
    }

    // The description follows the current row, whichever way it became current.
    void editorsCommitTheUsersChoiceAndTheDescriptionFollows()
    {
        auto* rect = Show(Add<CHmiWidgetRect>("rectangle"));
        QTest::mouseClick(EditorOf<QCheckBox>("Visible"), Qt::LeftButton);
        QCOMPARE(rect->m_bVisible, std::uint8_t(0));
        QCOMPARE(pane->DescriptionText(), QString("Is widget visible"));
        QTest::mouseClick(EditorOf<QLineEdit>("Width"), Qt::LeftButton);
        QTest::keyClick(EditorOf<QLineEdit>("Width"), Qt::Key_Tab); // focus moves on to the Height row
        QCOMPARE(pane->DescriptionText(), QString("Height"));

        // The chooser starts from the white fill.
        pane->SetColorChooser([](const QColor& initial, QWidget*) {
            return initial == Qt::white ? QColor(0, 0x80, 0xFF) : QColor();
        });
        QTest::mouseClick(EditorOf<QPushButton>("fillcolor"), Qt::LeftButton);
        QCOMPARE(rect->m_fillColor, 0x00FF8000u); // red in the lowest byte
        QVERIFY(EditorOf<QPushButton>("fillcolor")->styleSheet().contains("#0080ff"));

        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        pane->SetColorChooser([](const QColor&, QWidget*) { return QColor(); });
        QTest::mouseClick(EditorOf<QPushButton>("fillcolor"), Qt::LeftButton);
        QCOMPARE(changed.count(), 0); // a cancelled dialog changes nothing

        // The alignment's codes start at 1.
        auto* text = Show(Add<CHmiWidgetText>("text"));
        QComboBox* align = EditorOf<QComboBox>("align");
        align->setFocus();
        QTest::keyClick(align, Qt::Key_End);
        QCOMPARE(text->m_nAlign, 3);
        QCOMPARE(changed.count(), 1);
    }

    void textCrossesThePaneAsGb2312()
    {
        auto* text = Add<CHmiWidgetText>("text");
        text->SetWidgetName(kGbTest);
        Show(text);
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        QCOMPARE(EditorOf<QLineEdit>("Name")->text(), QString::fromUtf8("测试"));

        // Text the panel cannot show is refused and the row shows the widget's text again.
        QLineEdit* edit = EditorOf<QLineEdit>("text");
        Type(edit, QString::fromUtf8("t\u00e9st \u2603"));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(text->m_strText, std::string("text"));
        QCOMPARE(edit->text(), QString("text"));
        QVERIFY(pane->DescriptionText().contains("GB2312"));

        Type(edit, QString::fromUtf8("泵1"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(text->m_strText, kGbPump + "1");

        // Passing through a row without changing it is no edit.
        QTest::mouseClick(EditorOf<QLineEdit>("Name"), Qt::LeftButton);
        QTest::mouseClick(edit, Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(text->GetWidgetName(), kGbTest);

        // How a rename updates the name list is tested with the property list; here, that the
        // document learns the name typed in the pane.
        Type(EditorOf<QLineEdit>("Name"), "tank");
        QVERIFY(doc->HasWidgetName("tank"));
    }

    void valuesSetByTheProgramAreNotReportedAsEdits()
    {
        auto* text = Show(Add<CHmiWidgetText>("text"));
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);

        Row("Left")->SetEditText("99");
        Row("Visible")->SetCheck(false);
        Row("color")->SetColor(0x00123456);
        Row("align")->SetCurSel(2);
        Row("Button Down")->SetStaticText("a = 1;\nb = 2;");
        QCOMPARE(EditorOf<QLabel>("Button Down")->text(), QString("a = 1; b = 2;"));
        text->UpdateTreeByWidgetProp();

        // The refresh shows the widget's own values again.
        QCOMPARE(EditorOf<QLineEdit>("Left")->text(), QString("10"));
        QVERIFY(EditorOf<QCheckBox>("Visible")->isChecked());
        QCOMPARE(Row("align")->GetCurSel(), 0);
        Row("align")->SetCurSel(3);
        QCOMPARE(EditorOf<QComboBox>("align")->currentIndex(), -1); // beyond the list: no selection
        QCOMPARE(changed.count(), 0);
    }

    // Several widgets share a row only with the same key, kind and choices; an event row only
    // by the event's name; a widget's own row by its caption under its group.
    void severalWidgetsShareRowsOfTheSameKeyKindAndChoices()
    {
        auto* text = Add<CHmiWidgetText>("text");
        auto* other = Add<CHmiWidgetText>("text");
        other->m_nAlign = 3;
        other->SetWidgetEventCode("click", "a = 1;");
        const auto show = [this](std::vector<CHmiWidget*> widgets) {
            pane->ShowWidgets(std::move(widgets));
            QCoreApplication::processEvents();
        };
        show({text, other});
        QCOMPARE(EditorOf<QComboBox>("align")->currentIndex(), -1);
        QCOMPARE(EditorOf<QLabel>("Button Down")->text(), QString());
        QCOMPARE(Row("Button Up", "Event")->GetKind(), OptionItemKind::Event);
        QVERIFY(!Row("Button Up")->BrowseButton()->isEnabled());
        EditorOf<QComboBox>("align")->setFocus();
        QTest::keyClick(EditorOf<QComboBox>("align"), Qt::Key_Home);
        QCOMPARE(text->m_nAlign, 1);
        QCOMPARE(other->m_nAlign, 1);
        QCOMPARE(EditorOf<QComboBox>("align")->currentIndex(), 0);

        show({text, Add<CHmiWidgetRect>("rectangle"), Add<CHmiWidget>("timer")});
        QVERIFY(Row("Left") && Row("Visible"));
        QVERIFY(!Row("text") && !Row("fillcolor") && !Row("Event") && !Row("Button Down"));

        auto* custom = Add<CHmiWidgetCustom>("no such class");
        auto* second = Add<CHmiWidgetCustom>("no such class");
        show({custom, second});
        Type(EditorOf<QLineEdit>("ClassName"), "Gauge");
        QCOMPARE(custom->ClassName, std::string("Gauge"));
        QCOMPARE(second->ClassName, std::string("Gauge"));

        static const char* const kTwo[] = {"off", "on"};
        static const char* const kThree[] = {"off", "on", "blink"};
        for (const auto* choices : {kTwo, kThree}) {
            auto first = std::make_unique<ModeWidget>(kTwo, 2);
            auto last = std::make_unique<ModeWidget>(choices, choices == kTwo ? 2 : 3);
            show({first.get(), last.get()});
            QCOMPARE(Row("Mode") != nullptr, choices == kTwo);
            QVERIFY(!Row("Loose")->GetParent());
            pane->Clear();
        }
    }

    // Thousands of widgets are read a part at a time; a change meanwhile has them read again.
    void aLargeSelectionShowsOnceEveryWidgetIsRead()
    {
        std::vector<CHmiWidget*> many;
        for (int i = 0; i < 1200; ++i)
            many.push_back(Add<CHmiWidgetRect>("rectangle", {i, 0, i + 10, 10}));
        pane->ShowWidgets(many);
        QCoreApplication::processEvents();
        static_cast<CHmiWidgetRect*>(many.front())->m_fillColor = 0x00123456;
        doc->WidgetChanged(*many.front(), DocChange::Properties);
        while (pane->IsReading())
            QCoreApplication::processEvents();
        QCOMPARE(EditorOf<QLineEdit>("Top")->text(), QString("0"));
        QCOMPARE(EditorOf<QLineEdit>("Left")->text(), QString());
        QVERIFY(!EditorOf<QPushButton>("fillcolor")->styleSheet().contains("background"));
    }

    void clearingWhileAnEditorHasFocusIsSafe()
    {
        auto* rect = Show(Add<CHmiWidgetRect>("rectangle"));
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        QLineEdit* left = EditorOf<QLineEdit>("Left");
        QTest::mouseClick(left, Qt::LeftButton);
        QTest::keyClicks(left, "77"); // typed but not committed

        pane->Clear();
        QCoreApplication::processEvents(); // the editors of removed rows are deleted later
        QCOMPARE(changed.count(), 0);
        // The widget forgot the rows the pane destroyed: its records point nowhere.
        QVERIFY(std::all_of(rect->GetProperties().begin(), rect->GetProperties().end(),
                            [](const auto& prop) { return !prop->m_pTreeItem && !prop->m_pParentItem; }));
        rect->UpdateTreeByWidgetProp();
        QCOMPARE(pane->Tree()->topLevelItemCount(), 0);
        QCOMPARE(pane->CurrentWidget(), nullptr);
        QCOMPARE(Geometry(rect->GetWidgetRect()), QString("10,10,50,50,40,40"));
    }
};

QTEST_MAIN(PropertyPaneTest)
#include "propertypane_test.moc"
