// The canvas driven as a user drives it: mouse and keys on the real view inside the main frame.
// What the tools and commands compute is tested without a display (editor/model/tests); these
// tests prove that the user's input reaches them and that the frame follows.
#include "editorfixture.h"

#include "editor/app/toolbox.h"
#include "editor/app/widgetnamecombo.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "editor/model/canvastools.h"
#include "editor/model/editcommands.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/projectdialogs/widgetitemdialogs.h"
#include "tests/support/registryscope.h"
#include "catalogue/hmiwidgetgradrect.h"
#include "catalogue/hmiwidgetrect.h"
#include "widgets/hmiimagedc.h"
#include "widgets/hmipainterdc.h"
#include "widgets/windowpainter.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QPaintEvent>
#include <QPainter>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolButton>

#include <functional>

namespace {

// What the canvas repainted, and how often.
struct RepaintRecorder : QObject {
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
            ++paints;
        }
        return false;
    }
    QRegion painted;
    int paints = 0;
};

// A widget that asks for a repaint while it is drawn, as a careless widget library's might.
struct RestlessWidget : CHmiWidget {
    std::string GetWidgetClassName() const override { return "restless"; }
    void Draw(CHmiDC&) override { m_pView->InvalidateView(); }
};

// Where a widget stands, with room around it for its handles when asked for.
QRegion Area(const HmiRect& rect, int room = 0)
{
    return QRect(rect.left, rect.top, rect.Width(), rect.Height()).adjusted(-room, -room, room, room);
}

// A widget that draws nothing, which the canvas shows as a dashed outline.
struct BlankWidget : CHmiWidget {
    std::string GetWidgetClassName() const override { return "blank"; }
    void Draw(CHmiDC&) override {}
};

// The changes a document told, each with the widgets it named.
struct ChangeLog : CDocumentObserver {
    void DocumentChanged(const CDocumentChange& change) override { changes.push_back(change); }
    std::vector<CDocumentChange> changes;
};

// Lets the canvas repaint what it was asked to, at the pace the platform allows.
void LetTheCanvasPaint()
{
    QTest::qWait(50);
}

} // namespace

class CanvasTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    CChildFrame* child = nullptr;
    CTamloView* view = nullptr;
    CTamloDoc* document = nullptr;

    std::vector<CHmiWidget*> Selected() const { return view->Selection().Widgets(); }
    HmiRect RectOf(const CHmiWidget* widget) const { return widget->GetWidgetRect(); }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(view, Qt::Key(key), modifiers); }

private slots:
    // The editor's own kinds, registered as at start-up.
    void initTestCase()
    {
        RegisterBuiltinCanvasControls();
        RegisterBuiltinRowDialogs();
    }

    void init()
    {
        editor = std::make_unique<EditorUnderTest>();
        child = &editor->NewWindow();
        view = &child->View();
        document = &view->Document();
        view->setFocus();
    }

    void cleanup() { editor.reset(); }

    // The toolbox highlights the current tool, also while the canvas has the focus: the kind
    // stays highlighted after a placement, the pointer comes back with Escape or a plain click.
    void theToolboxPlacesWidgetsUntilAClickOrEscapeAndShowsTheCurrentTool()
    {
        CToolbox& toolbox = editor->frame.Toolbox();
        const QList<QListWidgetItem*> found = toolbox.findItems(QStringLiteral("Rectangle"), Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        QListWidgetItem* rectangle = found.first();
        const auto chooseRectangle = [&] { Click(toolbox.viewport(), toolbox.visualItemRect(rectangle).center()); };
        const auto highlighted = [&toolbox]() -> QString {
            const QList<QListWidgetItem*> items = toolbox.selectedItems();
            if (items.size() != 1 || items.front() != toolbox.currentItem())
                return QStringLiteral("(%1 highlighted)").arg(items.size());
            // Painted in the highlight colour right of its text (give or take the tint of the
            // mouse hovering), whichever widget has the focus.
            const QRect entry = toolbox.visualItemRect(items.front());
            const QColor painted = toolbox.viewport()->grab().toImage().pixelColor(entry.right() - 2, entry.center().y());
            const QColor wanted = toolbox.palette().color(QPalette::Active, QPalette::Highlight);
            constexpr int kHoverTint = 4;
            if (std::abs(painted.red() - wanted.red()) + std::abs(painted.green() - wanted.green()) +
                    std::abs(painted.blue() - wanted.blue()) > kHoverTint)
                return QStringLiteral("(%1 painted %2)").arg(items.front()->text(), painted.name());
            return items.front()->text();
        };
        chooseRectangle();
        Drag(view, QPoint(120, 80), QPoint(20, 30));
        CHmiWidget* placed = document->Widgets().back().get();
        QCOMPARE(placed->GetWidgetClassName(), std::string("rectangle"));
        QCOMPARE(editor->frame.NameCombo().currentText().toStdString(), placed->GetWidgetName());
        QVERIFY(view->hasFocus());
        QCOMPARE(highlighted(), QStringLiteral("Rectangle"));
        Drag(view, QPoint(220, 80), QPoint(260, 130));
        QCOMPARE(document->Widgets().back()->GetWidgetClassName(), std::string("rectangle"));
        QCOMPARE(highlighted(), QStringLiteral("Rectangle"));

        // Escape, on the canvas or in the toolbox, gives the pointer back: the next drag selects.
        Press(Qt::Key_Escape);
        QCOMPARE(highlighted(), QStringLiteral("Pointer"));
        const std::size_t widgets = document->Widgets().size();
        Drag(view, QPoint(300, 200), QPoint(360, 240));
        QCOMPARE(document->Widgets().size(), widgets);
        chooseRectangle();
        QTest::keyClick(&toolbox, Qt::Key_Escape);
        QCOMPARE(highlighted(), QStringLiteral("Pointer"));

        // A click places nothing (tested with the tools) and gives the pointer back.
        chooseRectangle();
        Click(view, QPoint(300, 300));
        QCOMPARE(highlighted(), QStringLiteral("Pointer"));

        // The keys choose as a click does: what is highlighted is what the canvas places.
        toolbox.setFocus();
        QTest::keyClick(&toolbox, Qt::Key_Down);
        QCOMPARE(highlighted(), QStringLiteral("Rectangle"));
        QTest::keyClick(&toolbox, Qt::Key_Down);
        Drag(view, QPoint(300, 300), QPoint(340, 320));
        QCOMPARE(document->Widgets().back()->GetWidgetClassName(), std::string("line"));
        QCOMPARE(highlighted(), QStringLiteral("Line"));
    }

    void theMouseSelectsAndDragsTheSelection()
    {
        CHmiWidget* a = AddRect(*document, {10, 10, 50, 50});
        CHmiWidget* b = AddRect(*document, {100, 10, 140, 50});
        CHmiWidget* c = AddRect(*document, {300, 300, 340, 340});
        Drag(view, QPoint(5, 5), QPoint(150, 60));
        QCOMPARE(Selected(), (std::vector<CHmiWidget*>{a, b}));
        Click(view, QPoint(200, 200));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{document->FindWindowWidget()});
        Click(view, QPoint(20, 20));
        QCOMPARE(editor->frame.PropertyPane().CurrentWidget(), a);
        Drag(view, QPoint(290, 290), QPoint(350, 350), Qt::ShiftModifier);
        QCOMPARE(Selected(), (std::vector<CHmiWidget*>{a, c}));
        QTest::mouseDClick(view, Qt::LeftButton, Qt::ShiftModifier, QPoint(310, 310)); // takes c out
        QCOMPARE(editor->frame.NameCombo().currentText().toStdString(), a->GetWidgetName());
        Click(view, QPoint(200, 200), Qt::ShiftModifier); // Shift keeps the selection
        Click(view, QPoint(110, 20), Qt::ControlModifier);
        QCOMPARE(Selected(), (std::vector<CHmiWidget*>{a, b}));

        // Dragging one moves all; the title and the pane follow, and Ctrl+Z takes the move back.
        document->SetModifiedFlag(false);
        Drag(view, QPoint(20, 20), QPoint(35, 25));
        QCOMPARE(RectOf(a), (HmiRect{25, 15, 65, 55}));
        QVERIFY(child->isWindowModified());
        // b moved too: the pane shows the top both have, and no left, once it has read them.
        QCoreApplication::processEvents();
        QCOMPARE(editor->frame.PropertyPane().FindItem("Top")->GetEditText(), std::string("15"));
        QCOMPARE(editor->frame.PropertyPane().FindItem("Left")->GetEditText(), std::string());
        // A save leaves the keys with the canvas; the name list still shows the reference after Undo.
        editor->prompts.saveFileName = editor->folder.filePath(QStringLiteral("moved.xml"));
        Press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!child->isWindowModified());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(RectOf(a), (HmiRect{10, 10, 50, 50}));
        QCOMPARE(editor->frame.NameCombo().currentText().toStdString(), b->GetWidgetName());
    }

    // What the handles, the keys and a locked canvas do is tested with the tools; here, that the
    // mouse, the keys and the lock's action reach them and that the lock belongs to its canvas.
    void handlesAndArrowKeysResizeUnlessTheCanvasIsLocked()
    {
        CHmiWidget* a = AddRect(*document, {10, 10, 50, 50});
        CHmiWidget* b = AddRect(*document, {100, 100, 200, 160});
        Click(view, QPoint(150, 130));
        QTest::mouseMove(view, QPoint(600, 600));
        QCOMPARE(editor->frame.findChild<QLabel*>("cursorPosition")->text(), QStringLiteral("600, 600"));
        QCOMPARE(view->cursor().shape(), Qt::ArrowCursor);
        QTest::mouseMove(view, QPoint(200, 160));
        QCOMPARE(view->cursor().shape(), Qt::SizeFDiagCursor);
        Drag(view, QPoint(200, 160), QPoint(210, 170));
        QCOMPARE(RectOf(b), (HmiRect{100, 100, 210, 170}));

        Click(view, QPoint(20, 20));
        Press(Qt::Key_Right);
        Press(Qt::Key_Down);
        QCOMPARE(RectOf(a), (HmiRect{11, 11, 51, 51}));
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(RectOf(a), (HmiRect{11, 11, 52, 50}));

        QAction* lock = editor->frame.findChild<QAction*>(QStringLiteral("actionLockControl"));
        lock->trigger();
        Drag(view, QPoint(20, 20), QPoint(80, 90));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{a});
        Press(Qt::Key_Right);
        Press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(RectOf(a), (HmiRect{11, 11, 52, 50}));

        // Format commands still work on a locked canvas.
        Click(view, QPoint(150, 130), Qt::ControlModifier);
        editor->frame.findChild<QAction*>(QStringLiteral("actionAlignBottom"))->trigger();
        QCOMPARE(RectOf(a), (HmiRect{11, 131, 52, 170}));

        // Another window starts unlocked and shows it so.
        CChildFrame& other = editor->NewWindow();
        QVERIFY(!lock->isChecked());
        lock->trigger();
        QVERIFY(other.View().IsLocked());
        QVERIFY(view->IsLocked());
    }

    // An edit repaints where its widget stood and stands, and nothing else; painting never asks
    // for another repaint.
    void editsRepaintOnlyWhereTheWidgetStoodAndStands()
    {
        CHmiWidget* a = AddRect(*document, {100, 100, 140, 140});
        AddRect(*document, {300, 300, 340, 340});
        Click(view, QPoint(120, 120));
        CPropertyPane& pane = editor->frame.PropertyPane();
        const struct {
            const char* name;
            std::function<void()> edit;
        } edits[] = {
            {"arrow key", [&] { Press(Qt::Key_Right); }},
            {"drag", [&] { Drag(view, QPoint(120, 120), QPoint(150, 170)); }},
            {"row",
             [&] {
                 pane.FindItem("Left")->SetEditText("20");
                 emit pane.itemChanged(pane.FindItem("Left"));
             }},
            {"undo", [&] { Press(Qt::Key_Z, Qt::ControlModifier); }},
            {"sequence", [&] { editor->frame.findChild<QAction*>(QStringLiteral("actionMoveToTop"))->trigger(); }},
        };
        RepaintRecorder repaints;
        view->installEventFilter(&repaints);
        for (const auto& [name, edit] : edits) {
            LetTheCanvasPaint();
            repaints.painted = QRegion();
            const HmiRect before = RectOf(a);
            edit();
            LetTheCanvasPaint();
            constexpr int kHandleRoom = 8;
            QVERIFY2((Area(before) + Area(RectOf(a)) - repaints.painted).isEmpty(), name);
            QVERIFY2((repaints.painted - Area(before, kHandleRoom) - Area(RectOf(a), kHandleRoom)).isEmpty(), name);
        }

        auto restless = std::make_unique<RestlessWidget>();
        restless->SetWidgetRect({400, 100, 420, 120});
        restless->m_pView = view;
        document->AddWidget(HmiWidgetPtr(restless.release()), true);
        LetTheCanvasPaint();
        repaints.paints = 0;
        view->update();
        LetTheCanvasPaint();
        QCOMPARE(repaints.paints, 1);
    }

    // Select All, a band and a paste select many widgets at once: the pane shows them all and
    // the name list the widget selected last, told once; dragging them all is one undo step that
    // moves each. An arrow key or a drag of them all repaints the canvas once.
    void bulkSelectionsAreToldOnce()
    {
        std::vector<CHmiWidget*> rects;
        for (int i = 0; i < 100; ++i)
            rects.push_back(AddRect(*document, {10 + i % 10 * 30, 10 + i / 10 * 30, 30 + i % 10 * 30, 30 + i / 10 * 30}));
        DeleteWidgets(*document, {rects.front()});
        const std::vector<CHmiWidget*> kept(rects.begin() + 1, rects.end());
        CWidgetNameCombo& names = editor->frame.NameCombo();
        QSignalSpy told(view, &CTamloView::selectionChanged);
        const struct {
            const char* name;
            std::function<void()> select;
            int changes;
        } selections[] = {
            {"select all", [&] { Press(Qt::Key_A, Qt::ControlModifier); }, 1},
            {"band", [&] { view->Selection().SelectInRect({500, 500, 0, 0}, false); }, 1},
        };
        for (const auto& [name, select, changes] : selections) {
            view->Selection().Select(nullptr, false);
            told.clear();
            select();
            QVERIFY2(Selected() == kept, name);
            QVERIFY2(told.count() == changes, name);
            QVERIFY2(editor->frame.PropertyPane().Widgets() == kept, name);
            QVERIFY2(names.currentText().toStdString() == kept.back()->GetWidgetName(), name);
        }

        LetTheCanvasPaint();
        RepaintRecorder repaints;
        view->installEventFilter(&repaints);
        Press(Qt::Key_Left);
        LetTheCanvasPaint();
        QCOMPARE(repaints.paints, 1);
        Drag(view, QPoint(44, 15), QPoint(46, 17));
        LetTheCanvasPaint();
        QCOMPARE(repaints.paints, 2);
        QCOMPARE(document->UndoStep().size(), kept.size());
        QCOMPARE(RectOf(kept.back()), (HmiRect{281, 282, 301, 302}));

        Press(Qt::Key_C, Qt::ControlModifier);
        told.clear();
        Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(told.count(), 1);
        QCOMPARE(Selected().size(), kept.size());
        QCOMPARE(Selected().back(), document->Widgets().back().get());
        QCOMPARE(names.currentText().toStdString(), Selected().back()->GetWidgetName());
    }

    // The canvas's own menu shows its status texts in the main window, as the menu bar does.
    void theContextMenuShowsStatusTexts()
    {
        QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(300, 300), view->mapToGlobal(QPoint(300, 300)));
        QApplication::sendEvent(view, &request);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QTest::mouseMove(menu, menu->actionGeometry(menu->actions().back()).center());
        QTRY_COMPARE(editor->frame.statusBar()->currentMessage(), QStringLiteral("Zoom Widget of  Selected"));
    }

    void deleteCutCopyAndPasteKeys()
    {
        CHmiWidget* a = AddRect(*document, {10, 10, 50, 50});
        AddRect(*document, {100, 100, 140, 140});
        const QString name = QString::fromStdString(a->GetWidgetName());
        CWidgetNameCombo& names = editor->frame.NameCombo();
        Click(view, QPoint(20, 20));
        Press(Qt::Key_Delete);
        QVERIFY(document->IsWidgetDeleted(a));
        QCOMPARE(names.findText(name), -1);
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{document->FindWindowWidget()});
        // Undo brings the name back to its place, between the window's and the other's; the list
        // keeps showing the selected widget.
        Press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!document->IsWidgetDeleted(a));
        QCOMPARE(names.findText(name), 1);
        QCOMPARE(names.currentText(), QStringLiteral("window"));

        Click(view, QPoint(20, 20));
        Press(Qt::Key_C, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        CHmiWidget* copy = document->Widgets().back().get();
        QCOMPARE(RectOf(copy), (HmiRect{20, 20, 60, 60}));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{copy});
        QCOMPARE(names.currentText().toStdString(), copy->GetWidgetName());
        // Undo takes the pasted widget away again; the pane and the name list let go of it.
        Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(document->Widgets().size(), std::size_t(3));
        QCOMPARE(editor->frame.PropertyPane().CurrentWidget(), document->FindWindowWidget());
        QCOMPARE(names.count(), 3);
        QCOMPARE(names.currentText(), QStringLiteral("window"));

        Click(view, QPoint(20, 20));
        Press(Qt::Key_X, Qt::ControlModifier);
        QVERIFY(document->IsWidgetDeleted(a));
        CChildFrame& other = editor->NewWindow();
        other.View().setFocus();
        QTest::keyClick(&other.View(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(other.Document().Widgets().back()->GetWidgetName(), a->GetWidgetName());
    }

    void propertyEditsReachTheCanvasAndTheNameList()
    {
        CHmiWidget* a = AddRect(*document, {10, 10, 50, 50});
        Click(view, QPoint(20, 20));
        CPropertyPane& pane = editor->frame.PropertyPane();
        // The edit keys in a row edit its text; the widget stays. That a committed row reaches
        // the widget is shown with the live controls.
        pane.FindItem("Left")->Editor()->setFocus();
        QTest::keyClick(pane.FindItem("Left")->Editor(), Qt::Key_Delete);
        QVERIFY(!document->IsWidgetDeleted(a));

        auto* name = pane.FindItem("Name");
        name->SetEditText("pump");
        emit pane.itemChanged(name);
        QCOMPARE(a->GetWidgetName(), std::string("pump"));
        QCOMPARE(editor->frame.NameCombo().currentText(), QStringLiteral("pump"));

        // Choosing a name in the list selects its widget on the canvas.
        Click(view, QPoint(300, 300));
        CWidgetNameCombo& names = editor->frame.NameCombo();
        names.setCurrentIndex(names.findText(QStringLiteral("pump")));
        emit names.activated(names.currentIndex());
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{a});
    }

    // A band selects two rectangles: the pane shows a value where they agree and none where they
    // differ; an edit goes to both, each under its own rules, as one change and no undo step.
    void severalSelectedWidgetsAreEditedTogether()
    {
        auto* a = static_cast<CHmiWidgetRect*>(AddRect(*document, {10, 10, 50, 50}));
        auto* b = static_cast<CHmiWidgetRect*>(AddRect(*document, {100, 10, 160, 40}));
        a->m_bVisible = 0;
        a->m_fillColor = 0x000000FF;
        Drag(view, QPoint(5, 5), QPoint(200, 60));
        CPropertyPane& pane = editor->frame.PropertyPane();
        QCoreApplication::processEvents();
        QCOMPARE(pane.Widgets(), (std::vector<CHmiWidget*>{a, b}));
        const auto cell = [&pane](const char* caption) { return pane.FindItem(caption)->Editor(); };
        const auto text = [&](const char* caption) { return qobject_cast<QLineEdit*>(cell(caption))->text(); };
        QCOMPARE(text("Top"), QStringLiteral("10"));
        QCOMPARE(text("Left"), QString());
        QCOMPARE(qobject_cast<QCheckBox*>(cell("Visible"))->checkState(), Qt::PartiallyChecked);
        QVERIFY(!cell("fillcolor")->styleSheet().contains("background"));
        QVERIFY(cell("edgecolor")->styleSheet().contains("background-color: #000000"));
        QVERIFY(qobject_cast<QLineEdit*>(cell("Name"))->isReadOnly());
        QVERIFY(!pane.FindItem("Left")->BindButton()->isEnabled());

        ChangeLog log;
        document->AddObserver(&log);
        QVERIFY(!document->CanUndo());
        const auto type = [&](const char* caption, const char* typed) {
            auto* field = qobject_cast<QLineEdit*>(cell(caption));
            field->selectAll();
            QTest::keyClicks(field, typed);
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::processEvents();
        };
        type("Width", "30");
        QCOMPARE(RectOf(a), (HmiRect{10, 10, 40, 50}));
        QCOMPARE(RectOf(b), (HmiRect{100, 10, 130, 40}));
        QCOMPARE(log.changes.size(), std::size_t(1));
        QCOMPARE(log.changes.front().widgets.size(), std::size_t(2));
        QVERIFY(log.changes.front().Has(DocChange::Geometry | DocChange::Properties));
        QCOMPARE(text("Width"), QStringLiteral("30"));
        type("Right", "20"); // not right of b's left: b keeps its rectangle
        QCOMPARE(RectOf(a), (HmiRect{10, 10, 20, 50}));
        QCOMPARE(RectOf(b), (HmiRect{100, 10, 130, 40}));
        type("Left", "200"); // each keeps its width
        QCOMPARE(RectOf(a), (HmiRect{200, 10, 210, 50}));
        QCOMPARE(RectOf(b), (HmiRect{200, 10, 230, 40}));
        QCOMPARE(text("Left"), QStringLiteral("200"));

        pane.SetColorChooser([](const QColor&, QWidget*) { return QColor(0, 0, 0xFF); });
        QTest::mouseClick(cell("fillcolor"), Qt::LeftButton);
        QTest::mouseClick(cell("Visible"), Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(a->m_fillColor, 0x00FF0000u);
        QCOMPARE(b->m_fillColor, 0x00FF0000u);
        QVERIFY(a->m_bVisible && b->m_bVisible);
        QVERIFY(cell("fillcolor")->styleSheet().contains("#0000ff"));
        QCOMPARE(qobject_cast<QCheckBox*>(cell("Visible"))->checkState(), Qt::Checked);
        QCOMPARE(log.changes.size(), std::size_t(5));
        QVERIFY(!document->CanUndo()); // pane edits are not undone
        document->RemoveObserver(&log);
    }

    // The canvas leaves out what lies outside the area it repaints; what it shows inside is
    // what a rendered image of the window shows.
    void theCanvasShowsWhatARenderedImageShows()
    {
        auto gradient = std::make_unique<CHmiWidgetGradRect>();
        gradient->SetWidgetRect({-300, 40, 900, 700});
        gradient->m_nDirection = 44;
        document->AddWidget(HmiWidgetPtr(gradient.release()), true);
        CHmiWidget* wide = AddRect(*document, {150, -20, 2000, 130});
        // A band over the whole canvas keeps a drawing of it, which must follow the edits after.
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(1030, 774));
        QTest::mouseMove(view, QPoint(1, 1));
        LetTheCanvasPaint();
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(1, 1));
        view->Selection().Select(wide, false);
        Press(Qt::Key_Right);
        view->Selection().Deselect(wide);
        CHmiImageDC rendered(1024, 768);
        DrawWindow(*document, rendered);
        for (const QRect& area : {QRect(0, 0, 1024, 768), QRect(130, 90, 210, 160)}) {
            const QImage shot = view->grab(area).toImage();
            for (int y = 0; y < area.height(); ++y)
                for (int x = 0; x < area.width(); ++x) {
                    const HmiColor pixel = rendered.GetPixel(area.x() + x, area.y() + y);
                    const QRgb expected = qRgb(pixel & 0xFF, (pixel >> 8) & 0xFF, (pixel >> 16) & 0xFF);
                    if (shot.pixel(x, y) != expected)
                        QFAIL(qPrintable(QString("%1, %2 of %3, %4").arg(x).arg(y).arg(area.x()).arg(area.y())));
                }
        }
    }

    // The dashes of a widget's design-time outline stay where they are however a repaint cuts
    // the outline, also where the canvas ends across it.
    void outlineDashesDoNotDependOnTheRepaintedArea()
    {
        auto blank = std::make_unique<BlankWidget>();
        const int edge = view->width();
        blank->SetWidgetRect({edge - 37, 100, edge + 40, 150});
        document->AddWidget(HmiWidgetPtr(blank.release()), true);
        view->Selection().Select(nullptr, false);
        const QImage whole = view->grab().toImage();
        for (const QRect& part : {QRect(edge - 45, 90, 45, 30), QRect(edge - 30, 125, 30, 40)})
            QCOMPARE(view->grab(part).toImage(), whole.copy(part));
    }

    // A repaint of part of the canvas shows what a repaint of all of it shows, at any zoom: the
    // painter stretches a cut picture from where the cut begins, and zoomed, it sets the first
    // row and column of a clip a little otherwise than the same pixels further in.
    void aRepaintOfPartShowsWhatARepaintOfAllShows()
    {
        const QTemporaryDir folder;
        QImage tiles(97, 61, QImage::Format_RGB32);
        for (int y = 0; y < tiles.height(); ++y)
            for (int x = 0; x < tiles.width(); ++x)
                tiles.setPixel(x, y, qRgb(x * 2, y * 4, (x * y) & 0xFF));
        QVERIFY(tiles.save(folder.filePath(QStringLiteral("tiles.png"))));
        document->SetPictureFolder(folder.path().toStdString());
        const auto add = [this](const char* kind, const HmiRect& rect, const char* direction) {
            HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(kind)->CreateObject();
            widget->SetWidgetRect(rect);
            widget->SetWidgetProperty("filename", "string", "tiles.png", "");
            widget->SetWidgetProperty("direction", "ulong", direction, "");
            widget->SetWidgetProperty("startcolor", "ulong", "16711935", "");
            document->AddWidget(std::move(widget), true);
        };
        add("picture", {13, 7, 771, 563}, "0");
        add("gradrectangle", {40, 20, 700, 300}, "44");
        add("gradrectangle", {30, 320, 400, 540}, "34");
        add("gradtriangle", {420, 310, 760, 550}, "1");
        view->Selection().Select(nullptr, false);
        const QRect parts[] = {{78, 11, 116, 18},   {9, 19, 53, 143},    {42, 56, 233, 41},  {209, 129, 94, 133},
                               {333, 201, 187, 149}, {90, 19, 95, 51},    {369, 215, 34, 67}, {436, 480, 234, 43},
                               {538, 357, 168, 40}, {373, 319, 125, 8},  {476, 154, 64, 51}, {590, 25, 208, 189}};
        for (const int percent : {25, 33, 50, 67, 100, 125, 200}) {
            view->SetZoomPercent(percent);
            const QImage whole = view->grab().toImage();
            for (const QRect& part : parts) {
                const QRect seen = part & view->rect();
                QVERIFY2(seen.isEmpty() || view->grab(seen).toImage() == whole.copy(seen),
                         qPrintable(QStringLiteral("%1 % at %2, %3").arg(percent).arg(seen.x()).arg(seen.y())));
            }
        }
    }

    // While widgets are dragged, every other pixel of where they would go is inverted, on a
    // checkerboard fixed to the canvas, and nothing else changes, also for a widget far larger.
    void dragOutlinesInvertEveryOtherPixel()
    {
        CHmiWidget* a = AddRect(*document, {20, 20, 60, 60});
        CHmiWidget* tall = AddRect(*document, {100, -1000000000, 140, 1000000000});
        view->Selection().SelectWidgets({a, tall}, false);
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(30, 30));
        const QImage before = view->grab().toImage();
        QTest::mouseMove(view, QPoint(45, 37));
        const QImage during = view->grab().toImage();
        const QRect part(36, 27, 100, 50); // a repaint of part of the canvas keeps the checkerboard
        QCOMPARE(view->grab(part).toImage(), during.copy(part));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(45, 37));
        const QRect outlines[] = {{35, 27, 40, 40}, {115, -1000, 40, 100000}};
        for (int y = 0; y < before.height(); ++y)
            for (int x = 0; x < before.width(); ++x) {
                const bool onOutline = std::any_of(std::begin(outlines), std::end(outlines), [x, y](const QRect& r) {
                    return r.contains(x, y) && !r.adjusted(1, 1, -1, -1).contains(x, y);
                });
                const QRgb inverted = (onOutline && (x + y) % 2 == 0) ? 0xFFFFFF : 0;
                if (((before.pixel(x, y) ^ during.pixel(x, y)) & 0xFFFFFF) != inverted)
                    QFAIL(qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            }
    }

    // The handles of a large selection, which the canvas keeps from repaint to repaint, show
    // exactly as the widgets draw them over the canvas, wherever the selection goes: after
    // Select All, drags of it all (past the canvas's edge and back), an arrow key, an Undo, a
    // widget taken out, and at another zoom. Beneath them, the canvas shows what a rendered
    // image of the window shows, also where its kept drawing had to follow every widget.
    void handlesOfManyWidgetsShowAsTheyAreDrawn()
    {
        for (int i = 0; i < 90; ++i)
            AddRect(*document, {4 + i % 10 * 100, 20 + i / 10 * 80, 60 + i % 10 * 100, 70 + i / 10 * 80});
        view->Selection().SelectAll();
        const auto expectHandlesAsDrawn = [this](const char* after) {
            LetTheCanvasPaint();
            const QImage shot = view->grab().toImage();
            const std::vector<CHmiWidget*> selected = Selected();
            view->Selection().Select(nullptr, false);
            const QImage bare = view->grab().toImage();
            QImage expected = bare;
            {
                QPainter painter(&expected);
                CHmiPainterDC dc(painter);
                for (const CHmiWidget* widget : selected)
                    widget->DrawTracker(dc, widget == selected.back() ? TrackerState::active : TrackerState::selected);
            }
            view->Selection().SelectWidgets(selected, false);
            // Inside the window, away from the window widget's own handles.
            const HmiPoint corner = view->DocToClient({1024, 768});
            const QRect inside = QRect(0, 0, corner.x, corner.y).adjusted(4, 4, -4, -4);
            QVERIFY2(shot.copy(inside) == expected.copy(inside), after);
            if (view->Mapping().Percent() != 100)
                return;
            CHmiImageDC rendered(1024, 768);
            DrawWindow(*document, rendered);
            for (int y = inside.top(); y <= inside.bottom(); ++y)
                for (int x = inside.left(); x <= inside.right(); ++x) {
                    const HmiColor pixel = rendered.GetPixel(x, y);
                    if (bare.pixel(x, y) != qRgb(pixel & 0xFF, (pixel >> 8) & 0xFF, (pixel >> 16) & 0xFF))
                        QFAIL(qPrintable(QString("%1: %2, %3").arg(after).arg(x).arg(y)));
                }
        };
        const auto dragAll = [this](QPoint by) {
            const HmiRect& rect = RectOf(Selected().back());
            const QPoint from = QPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2) *
                                view->Mapping().Percent() / 100;
            QTest::mousePress(view, Qt::LeftButton, {}, from);
            QTest::mouseMove(view, from + by);
            LetTheCanvasPaint();
            QTest::mouseRelease(view, Qt::LeftButton, {}, from + by);
        };
        expectHandlesAsDrawn("Select All");
        for (const QPoint by : {QPoint(3, 2), QPoint(30, 1), QPoint(-60, 0), QPoint(57, -1)}) {
            dragAll(by);
            expectHandlesAsDrawn(qPrintable(QString("a drag by %1, %2").arg(by.x()).arg(by.y())));
        }
        Press(Qt::Key_Right);
        expectHandlesAsDrawn("an arrow key");
        Press(Qt::Key_Z, Qt::ControlModifier);
        expectHandlesAsDrawn("Undo");
        const HmiRect first = RectOf(Selected().front());
        QTest::mouseDClick(view, Qt::LeftButton, Qt::ShiftModifier, QPoint(first.left + 5, first.top + 5));
        QCOMPARE(Selected().size(), std::size_t(89));
        expectHandlesAsDrawn("a widget taken out");
        view->SetZoomPercent(200);
        expectHandlesAsDrawn("a zoom");
        dragAll(QPoint(4, 2));
        expectHandlesAsDrawn("a zoomed drag");
    }

    // The View menu's toggles keep the preferences and reach the canvas: a held drag shows its
    // guide in magenta until the release; Alt at the release places freely; Ctrl+arrow moves by
    // a grid step in one undo step; the grid shows as dots on grid crossings only.
    void snappingFromTheViewMenu()
    {
        CHmiWidget* a = AddRect(*document, {100, 100, 140, 130});
        AddRect(*document, {203, 200, 243, 230});
        const QImage withoutGrid = view->grab().toImage();
        for (const char* name : {"actionShowGrid", "actionSnapToGrid", "actionSnapToWidgets"})
            editor->frame.findChild<QAction*>(name)->trigger();
        QVERIFY(child->Preferences().Get().snapToWidgets);
        QCOMPARE(view->Aids(), (LayoutAids{true, 10, true, true}));

        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(110, 110));
        QTest::mouseMove(view, QPoint(215, 110)); // a's left at 205, 2 from the other's
        LetTheCanvasPaint();
        QCOMPARE(view->grab().toImage().pixelColor(203, 160), QColor(Qt::magenta));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(215, 110));
        QCOMPARE(RectOf(a), (HmiRect{203, 100, 243, 130}));
        const QImage withGrid = view->grab().toImage();
        QVERIFY(withGrid.pixelColor(203, 160) != QColor(Qt::magenta));
        QVERIFY(withGrid.pixel(500, 500) != withoutGrid.pixel(500, 500));
        QCOMPARE(withGrid.pixel(505, 505), withoutGrid.pixel(505, 505));

        Drag(view, QPoint(210, 110), QPoint(213, 114), Qt::AltModifier);
        QCOMPARE(RectOf(a), (HmiRect{206, 104, 246, 134}));
        Press(Qt::Key_Right, Qt::ControlModifier);
        Press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(RectOf(a), (HmiRect{216, 104, 256, 144}));
        QCOMPARE(document->UndoStep().size(), 1u);
    }

    // Window files with huge coordinates and counts: the canvas holds to the largest window
    // drawn whole, and draws every widget, selected with its handles, in bounded work.
    void hostileWindowsGetABoundedCanvas_data()
    {
        QTest::addColumn<QString>("file");
        const QDir corpus(QStringLiteral(KELVO_HOSTILE_WINDOWS_DIR));
        for (const QString& name : corpus.entryList({QStringLiteral("huge-*"), QStringLiteral("reversed-*")}))
            QTest::newRow(qPrintable(name)) << corpus.filePath(name);
    }

    void hostileWindowsGetABoundedCanvas()
    {
        QFETCH(QString, file);
        CChildFrame* opened = editor->frame.OpenDocument(file);
        QVERIFY(opened);
        CTamloView& canvas = opened->View();
        QVERIFY(canvas.width() <= 4096 + 8 && canvas.height() <= 4096 + 8);
        for (const HmiWidgetPtr& widget : canvas.Document().Widgets())
            canvas.Selection().Select(widget.get(), true);
        QVERIFY(!canvas.grab(QRect(0, 0, 640, 480)).isNull());
    }
};

QTEST_MAIN(CanvasTest)
#include "canvas_test.moc"
