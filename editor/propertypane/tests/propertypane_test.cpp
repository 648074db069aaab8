// The property pane with real catalogue widgets, driven through its editors as a user would.

#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "widgets/catalogue/hmiwidgetline.h"
#include "widgets/catalogue/hmiwidgetrect.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <memory>

namespace {

// "测试" and "泵" in GB2312, the model's encoding.
const std::string kGbTest = "\xB2\xE2\xCA\xD4";
const std::string kGbPump = "\xB1\xC3";

} // namespace

class PropertyPaneTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<CPropertyPane> pane;
    std::unique_ptr<CHmiWidgetRect> rect;

    // Shows the pane for a widget and lets the tree place the editors.
    void Show(CHmiWidget* widget)
    {
        pane->ShowWidget(widget);
        pane->show();
        QVERIFY(QTest::qWaitForWindowExposed(pane.get()));
        QCoreApplication::processEvents();
    }

    CPropertyPaneItem* Row(const char* caption, const char* root = "")
    {
        return pane->FindItem(caption, root);
    }

    template <class Editor>
    Editor* EditorOf(const char* caption, const char* root = "")
    {
        CPropertyPaneItem* item = Row(caption, root);
        return item ? qobject_cast<Editor*>(item->Editor()) : nullptr;
    }

    // Replaces a line edit's text as typed and confirms it with Return. Characters go as key
    // events carrying their text, which keyClicks cannot do beyond Latin-1.
    static void Type(QLineEdit* edit, const QString& text)
    {
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
        QTest::keyClick(edit, Qt::Key_Return);
    }

private slots:
    void init()
    {
        pane = std::make_unique<CPropertyPane>();
        pane->resize(420, 1000); // every row in view, so every editor is placed
        rect = std::make_unique<CHmiWidgetRect>();
        rect->SetWidgetName("rect1");
        rect->SetWidgetRect({10, 10, 50, 50});
    }

    void cleanup()
    {
        pane.reset();
        rect.reset();
    }

    void showsGroupsRowsAndValuesOfTheWidget()
    {
        rect->AddWidgetDynProp("left", "$a.b");
        Show(rect.get());
        QCOMPARE(pane->CurrentWidget(), rect.get());

        QTreeWidget* tree = pane->Tree();
        QStringList roots;
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            QTreeWidgetItem* root = tree->topLevelItem(i);
            roots << root->text(CPropertyPane::CaptionColumn);
            QVERIFY(root->font(CPropertyPane::CaptionColumn).bold());
            QVERIFY(root->isFirstColumnSpanned());
            QVERIFY(root->isExpanded());
        }
        QCOMPARE(roots, (QStringList{"Basic properties", "Event", "Rectangle"}));

        QCOMPARE(Row("Left", "Basic properties")->Kind(), OptionItemKind::Edit);
        QCOMPARE(EditorOf<QLineEdit>("Name")->text(), QString("rect1"));
        QCOMPARE(EditorOf<QLineEdit>("Left")->text(), QString("10"));
        QCOMPARE(EditorOf<QLineEdit>("Width")->text(), QString("40"));
        QVERIFY(EditorOf<QCheckBox>("Visible")->isChecked());
        QCOMPARE(Row("fillcolor", "Rectangle")->Kind(), OptionItemKind::Color);
        QCOMPARE(Row("fillcolor")->GetColor(), 0x00FFFFFFu);
        QVERIFY(EditorOf<QPushButton>("fillcolor")->styleSheet().contains("#ffffff"));
        QCOMPARE(Row("edgecolor")->GetColor(), 0x00000000u);

        // The extra column tells bound from unbound; only bindable rows get the binding button.
        const auto extra = [&](const char* caption) {
            return Row(caption)->Row()->background(CPropertyPane::ExtraColumn).color();
        };
        QCOMPARE(extra("Left"), QColor(255, 0, 0));
        QCOMPARE(extra("Top"), QColor(0xF0, 0xF0, 0xF0));
        QVERIFY(Row("Left")->BindButton());
        QVERIFY(!Row("Name")->BindButton());
        QCOMPARE(pane->Tree()->header()->sectionSize(CPropertyPane::ExtraColumn), 14);

        // Events are read-only rows with a button of their own.
        CPropertyPaneItem* buttonDown = Row("Button Down", "Event");
        QVERIFY(buttonDown);
        QCOMPARE(buttonDown->Kind(), OptionItemKind::Static);
        QVERIFY(qobject_cast<QLabel*>(buttonDown->Editor()));
        QVERIFY(buttonDown->BrowseButton());
        QVERIFY(!Row("Left")->BrowseButton());

        // Help text: tooltip of the row, and the description while the row is current.
        QCOMPARE(Row("Left")->Row()->toolTip(CPropertyPane::CaptionColumn), QString("Left position"));
        QVERIFY(pane->DescriptionText().isEmpty());
        QTest::mouseClick(EditorOf<QLineEdit>("Left"), Qt::LeftButton);
        QCOMPARE(pane->DescriptionText(), QString("Left position"));
    }

    void textEditsAreCommittedOnReturnAndApplied()
    {
        Show(rect.get());
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        QSignalSpy edited(pane.get(), &CPropertyPane::widgetEdited);

        QLineEdit* left = EditorOf<QLineEdit>("Left");
        QTest::keyClick(left, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(left, "30");
        QCOMPARE(changed.count(), 0); // typing alone commits nothing
        QTest::keyClick(left, Qt::Key_Return);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().value<COptionTreeItem*>(), static_cast<COptionTreeItem*>(Row("Left")));
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.first().first().value<CHmiWidget*>(), static_cast<CHmiWidget*>(rect.get()));
        QCOMPARE(rect->GetWidgetRect(), (HmiRect{30, 10, 70, 50}));
        QCOMPARE(EditorOf<QLineEdit>("Width")->text(), QString("40"));
        QCOMPARE(EditorOf<QLineEdit>("Right")->text(), QString("70"));

        QTest::keyClick(left, Qt::Key_Return);
        QCOMPARE(changed.count(), 1); // an unchanged text is no edit

        // A right edge that is not beyond the left one is refused and the row shows the old value.
        Type(EditorOf<QLineEdit>("Right"), "30");
        QCOMPARE(rect->GetWidgetRect(), (HmiRect{30, 10, 70, 50}));
        QCOMPARE(EditorOf<QLineEdit>("Right")->text(), QString("70"));
    }

    void checkBoxesColoursAndCombosCommitTheUsersChoice()
    {
        Show(rect.get());
        QCheckBox* visible = EditorOf<QCheckBox>("Visible");
        QTest::mouseClick(visible, Qt::LeftButton);
        QCOMPARE(rect->m_bVisible, std::uint8_t(0));
        QVERIFY(!visible->isChecked());

        QColor offered;
        pane->SetColorChooser([&](const QColor& initial, QWidget*) {
            offered = initial;
            return QColor(0, 0x80, 0xFF);
        });
        QTest::mouseClick(EditorOf<QPushButton>("fillcolor"), Qt::LeftButton);
        QCOMPARE(offered, QColor(Qt::white));
        QCOMPARE(rect->m_fillColor, 0x00FF8000u); // red in the lowest byte
        QVERIFY(EditorOf<QPushButton>("fillcolor")->styleSheet().contains("#0080ff"));

        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        pane->SetColorChooser([](const QColor&, QWidget*) { return QColor(); });
        QTest::mouseClick(EditorOf<QPushButton>("fillcolor"), Qt::LeftButton);
        QCOMPARE(changed.count(), 0); // a cancelled dialog changes nothing
        QCOMPARE(rect->m_fillColor, 0x00FF8000u);

        CHmiWidgetLine line;
        Show(&line);
        QComboBox* style = EditorOf<QComboBox>("style", "Line");
        QVERIFY(style);
        QCOMPARE(style->currentText(), QString("Solid"));
        style->setFocus();
        QTest::keyClick(style, Qt::Key_End);
        QCOMPARE(style->currentText(), QString("Dash"));
        QCOMPARE(Row("style")->GetCurSel(), 2);
        QCOMPARE(line.m_nStyle, 3);
        QCOMPARE(changed.count(), 1);
    }

    void valuesSetByTheProgramAreNotReportedAsEdits()
    {
        CHmiWidgetLine line;
        Show(&line);
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);

        Row("Left")->SetEditText("99");
        Row("Visible")->SetCheck(false);
        Row("color")->SetColor(0x00123456);
        Row("Button Down")->SetStaticText("a = 1;");
        CPropertyPaneItem* style = Row("style");
        style->SetCurSel(1);
        line.UpdateTreeByWidgetProp();
        QCOMPARE(changed.count(), 0);

        QCOMPARE(EditorOf<QLabel>("Button Down")->text(), QString("a = 1;"));
        // Refreshing from the widget shows its own values again.
        QVERIFY(EditorOf<QCheckBox>("Visible")->isChecked());
        QCOMPARE(EditorOf<QLineEdit>("Left")->text(), QString::number(line.GetWidgetRect().left));
        QCOMPARE(style->GetCurSel(), 0);
        style->SetCurSel(3);
        QCOMPARE(style->GetCurSel(), -1);
        QCOMPARE(EditorOf<QComboBox>("style")->currentIndex(), -1);
        style->SetCurSel(-7);
        QCOMPARE(style->GetCurSel(), -1);

        // A combo filled by the program selects nothing until told to.
        auto* root = pane->CreateNewRootItem("Extra", "");
        COptionTreeItem* combo = pane->CreateNewItem(OptionItemKind::Combo, root, "Choice", "");
        combo->AddString("One");
        combo->AddString("Two");
        QCOMPARE(combo->GetCurSel(), -1);
        QCOMPARE(EditorOf<QComboBox>("Choice")->currentIndex(), -1);
        QCOMPARE(changed.count(), 0);
    }

    void buttonsRequestTheirDialogsForTheirRow()
    {
        rect->AddWidgetDynProp("left", "$a.b");
        Show(rect.get());
        auto* root = pane->CreateNewRootItem("Extra", "");
        pane->CreateNewItem(OptionItemKind::File, root, "Picture", "");
        pane->CreateNewItem(OptionItemKind::Variable, root, "Tag", "");
        pane->CreateNewItem(OptionItemKind::Font, root, "Face", "")->SetStaticText("Serif, 12");
        QCoreApplication::processEvents();

        const struct {
            const char* caption;
            void (CPropertyPane::*signal)(COptionTreeItem*);
            QToolButton* (CPropertyPaneItem::*button)() const;
        } cases[] = {
            {"Left", &CPropertyPane::dynPropEditRequested, &CPropertyPaneItem::BindButton},
            {"Button Down", &CPropertyPane::eventEditRequested, &CPropertyPaneItem::BrowseButton},
            {"Picture", &CPropertyPane::fileRequested, &CPropertyPaneItem::BrowseButton},
            {"Tag", &CPropertyPane::selectItemRequested, &CPropertyPaneItem::BrowseButton},
            {"Face", &CPropertyPane::fontRequested, &CPropertyPaneItem::BrowseButton},
        };
        for (const auto& c : cases) {
            QSignalSpy requested(pane.get(), c.signal);
            QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
            CPropertyPaneItem* item = Row(c.caption);
            QToolButton* button = (item->*c.button)();
            QVERIFY2(button, c.caption);
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY2(requested.count() == 1, c.caption);
            QCOMPARE(requested.first().first().value<COptionTreeItem*>(), static_cast<COptionTreeItem*>(item));
            QCOMPARE(changed.count(), 0);
        }
        QCOMPARE(EditorOf<QLabel>("Face")->text(), QString("Serif, 12"));

        // A file row's text is committed like any edit.
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);
        Type(EditorOf<QLineEdit>("Picture"), "a.bmp");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(Row("Picture")->GetEditText(), std::string("a.bmp"));
    }

    void gb2312TextCrossesThePaneUnchanged()
    {
        rect->SetWidgetName(kGbTest);
        Show(rect.get());
        QLineEdit* name = EditorOf<QLineEdit>("Name");
        QCOMPARE(name->text(), QString::fromUtf8("测试"));

        Type(EditorOf<QLineEdit>("Left"), "20");
        QCOMPARE(Row("Name")->GetEditText(), kGbTest);
        QCOMPARE(rect->GetWidgetName(), kGbTest);

        Type(name, QString::fromUtf8("泵1"));
        QCOMPARE(rect->GetWidgetName(), kGbPump + "1");
        QCOMPARE(name->text(), QString::fromUtf8("泵1"));
    }

    void clearingEmptiesThePaneAndDropsTheWidget()
    {
        Show(rect.get());
        QTest::mouseClick(EditorOf<QLineEdit>("Left"), Qt::LeftButton);
        QVERIFY(!pane->DescriptionText().isEmpty());
        QSignalSpy changed(pane.get(), &CPropertyPane::itemChanged);

        pane->ShowWidget(nullptr);
        QCoreApplication::processEvents(); // editors removed with their rows are deleted later
        QCOMPARE(pane->Tree()->topLevelItemCount(), 0);
        QCOMPARE(pane->CurrentWidget(), nullptr);
        QVERIFY(!pane->FindItem("Left"));
        QVERIFY(pane->DescriptionText().isEmpty());
        QCOMPARE(changed.count(), 0);

        // Rebuilding for another widget leaves no rows of the first one behind.
        CHmiWidgetLine line;
        Show(rect.get());
        Show(&line);
        QCOMPARE(pane->Tree()->topLevelItemCount(), 3);
        QVERIFY(!pane->FindItem("fillcolor"));
        Type(EditorOf<QLineEdit>("Top"), "0");
        QCOMPARE(line.GetWidgetRect().top, 0);
        QCOMPARE(rect->GetWidgetRect(), (HmiRect{10, 10, 50, 50}));
    }
};

QTEST_MAIN(PropertyPaneTest)
#include "propertypane_test.moc"
