// What the canvas shows besides the document and how it maps the mouse: the view zoom, the
// handles above live controls, the outlines of widgets that draw nothing, and Escape during a drag.
#include "editorfixture.h"

#include "editor/canvascontrols/canvascontrols.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/extensions/canvascontrol.h"
#include "tests/support/registryscope.h"
#include "catalogue/hmiwidgetcontrols.h"
#include "catalogue/hmiwidgettext.h"
#include "catalogue/hmiwidgettimer.h"
#include "widgets/hmiimagedc.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/windowpainter.h"

#include <QLabel>

namespace {

QImage Rendered(const CTamloDoc& document, QSize size)
{
    CHmiImageDC dc(size.width(), size.height());
    DrawWindow(document, dc);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const HmiColor pixel = dc.GetPixel(x, y);
            image.setPixel(x, y, qRgb(pixel & 0xFF, (pixel >> 8) & 0xFF, (pixel >> 16) & 0xFF));
        }
    return image;
}

template <typename Widget>
Widget* AddWidget(CTamloDoc& document, const HmiRect& rect)
{
    auto* widget = new Widget;
    widget->SetWidgetRect(rect);
    document.AddWidget(HmiWidgetPtr(widget), true);
    return widget;
}

} // namespace

class CanvasViewTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    CTamloView* view = nullptr;
    CTamloDoc* document = nullptr;

    std::vector<CHmiWidget*> Selected() const { return view->Selection().Widgets(); }
    HmiRect RectOf(const CHmiWidget* widget) const { return widget->GetWidgetRect(); }
    // Where the canvas shows a window point.
    QPoint At(int x, int y) const
    {
        const HmiPoint client = view->DocToClient({x, y});
        return {client.x, client.y};
    }

private slots:
    void initTestCase() { RegisterBuiltinCanvasControls(); }

    void init()
    {
        editor = std::make_unique<EditorUnderTest>();
        view = &editor->NewWindow().View();
        document = &view->Document();
        view->setFocus();
    }

    void cleanup() { editor.reset(); }

    void zoomedMouseMeetsTheWidgetsItShows_data()
    {
        QTest::addColumn<int>("percent");
        for (const int percent : {50, 100, 200})
            QTest::newRow(qPrintable(QStringLiteral("%1 %").arg(percent))) << percent;
    }

    // Clicks, bands, moves, handles and the cursor label agree with what is shown; a drag by N
    // screen pixels moves by N at 100 %, and by N / zoom otherwise.
    void zoomedMouseMeetsTheWidgetsItShows()
    {
        QFETCH(int, percent);
        CHmiWidget* a = AddRect(*document, {40, 40, 80, 80});
        CHmiWidget* b = AddRect(*document, {120, 40, 160, 80});
        view->SetZoomPercent(percent);
        const HmiRect window = document->FindWindowWidget()->GetWidgetRect();
        QCOMPARE(view->size(), QSize(window.Width() * percent / 100 + 8, window.Height() * percent / 100 + 8));

        Click(view, At(60, 60));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{a});
        // A pixel shows the point under its centre: at 50 % the odd one of two.
        QTest::mouseMove(view, At(131, 51));
        QCOMPARE(editor->frame.findChild<QLabel*>("cursorPosition")->text(), QStringLiteral("131, 51"));
        Drag(view, At(30, 30), At(170, 90));
        QCOMPARE(Selected(), (std::vector<CHmiWidget*>{a, b}));
        Drag(view, At(30, 30), At(100, 90)); // wholly inside: a only
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{a});

        Drag(view, At(60, 60), At(60, 60) + QPoint(20, -20));
        const int moved = 20 * 100 / percent;
        QCOMPARE(RectOf(a), (HmiRect{40 + moved, 40 - moved, 80 + moved, 80 - moved}));
        // The handle is grabbed where it is drawn, and the edge goes to the mouse.
        Click(view, At(140, 60));
        const QPoint released = At(160, 80) + QPoint(10, 10);
        Drag(view, At(160, 80), released);
        QCOMPARE(At(RectOf(b).right, RectOf(b).bottom), released);
        QVERIFY(std::abs(RectOf(b).right - (160 + 10 * 100 / percent)) <= 1);
    }

    // Live controls stand on the zoomed rectangles, and the selection's handles show above them.
    void handlesShowAboveLiveControlsAtEveryZoom()
    {
        // Far enough that at 200 % it stands beyond the canvas's size at 100 %.
        auto* check = AddWidget<CHmiWidgetCheckbox>(*document, {600, 400, 700, 440});
        CCanvasControl* control = view->Controls().ControlOf(*check);
        QVERIFY(control);
        for (const int percent : {100, 200, 50}) {
            view->SetZoomPercent(percent);
            const QPoint topLeft = At(600, 400);
            QCOMPARE(control->Widget()->geometry(), QRect(topLeft, At(700, 440) - QPoint(1, 1)));
            view->Selection().Select(check, false);
            const QImage shot = view->grab().toImage();
            // The active handle: a white frame around black, centred on the corner.
            QCOMPARE(shot.pixel(topLeft), qRgb(0, 0, 0));
            QCOMPARE(shot.pixel(topLeft + QPoint(3, 3)), qRgb(255, 255, 255));
            QCOMPARE(shot.pixel(topLeft + QPoint(1, 2)), qRgb(0, 0, 0));
        }
    }

    // Widgets that draw nothing are outlined on the canvas, inside their rectangles; rendering
    // and saving never see the outlines, whatever the canvas has shown. An edit that gives a
    // widget something to draw takes its outline away, and one that takes it away outlines it.
    void outlinesOfWidgetsThatDrawNothingStayOnTheCanvas()
    {
        AddRect(*document, {20, 20, 60, 60});
        const HmiRect inkless[] = {{100, 20, 140, 60}, {160, 20, 240, 60}, {260, 20, 300, 60}};
        AddWidget<CHmiWidgetTimer>(*document, inkless[0]);
        CHmiWidgetText* text = AddWidget<CHmiWidgetText>(*document, inkless[1]);
        text->m_strText.clear();
        AddWidget<CHmiWidgetCustom>(*document, inkless[2]);
        const QString before = editor->folder.filePath(QStringLiteral("before.xml"));
        const QString after = editor->folder.filePath(QStringLiteral("after.xml"));
        QVERIFY(document->Save(before.toStdString()));
        const QSize size(320, 80);
        const QImage renderedBefore = Rendered(*document, size);

        view->Selection().Deselect(document->FindWindowWidget());
        view->SetZoomPercent(200);
        view->grab();
        view->SetZoomPercent(100);
        // The pixels of each inkless widget where the canvas differs from the rendered window.
        const auto outlinedPixels = [&] {
            const QImage shot = view->grab(QRect(QPoint(), size)).toImage().convertToFormat(QImage::Format_RGB32);
            const QImage rendered = Rendered(*document, size);
            std::vector<int> outlined(std::size(inkless));
            for (int y = 0; y < size.height(); ++y)
                for (int x = 0; x < size.width(); ++x) {
                    if (shot.pixel(x, y) == rendered.pixel(x, y))
                        continue;
                    const auto inside = [x, y](const HmiRect& r) { return r.Contains({x, y}); };
                    const auto* owner = std::find_if(std::begin(inkless), std::end(inkless), inside);
                    if (owner == std::end(inkless))
                        return std::vector<int>{x, y, -1};
                    ++outlined[std::size_t(owner - std::begin(inkless))];
                }
            return outlined;
        };
        const std::vector<int> outlined = outlinedPixels();
        QVERIFY(document->Save(after.toStdString()));
        QCOMPARE(ReadBytes(after), ReadBytes(before));
        QCOMPARE(Rendered(*document, size), renderedBefore);
        QVERIFY(std::all_of(outlined.begin(), outlined.end(), [](int pixels) { return pixels > 0; }));

        text->m_strText = "Tank";
        document->WidgetChanged(*text, DocChange::Properties);
        QCOMPARE(outlinedPixels(), (std::vector<int>{outlined[0], 0, outlined[2]}));
        text->m_strText.clear();
        document->WidgetChanged(*text, DocChange::Properties);
        QCOMPARE(outlinedPixels(), outlined);
    }

    // Escape during a band or a drag ends it: the outlines go, and nothing is selected or moved.
    void escapeEndsABandOrADragLeavingEverythingAsItWas()
    {
        CHmiWidget* a = AddRect(*document, {40, 40, 80, 80});
        view->SetZoomPercent(200);
        const QImage idle = view->grab().toImage();
        QTest::mousePress(view, Qt::LeftButton, {}, At(30, 30));
        QTest::mouseMove(view, At(90, 90));
        QVERIFY(view->grab().toImage() != idle);
        QTest::keyClick(view, Qt::Key_Escape);
        QCOMPARE(view->grab().toImage(), idle);
        QTest::mouseRelease(view, Qt::LeftButton, {}, At(90, 90));
        QCOMPARE(Selected(), std::vector<CHmiWidget*>{document->FindWindowWidget()});

        Click(view, At(60, 60));
        document->SetModifiedFlag(false);
        const QImage selected = view->grab().toImage();
        QTest::mousePress(view, Qt::LeftButton, {}, At(60, 60));
        QTest::mouseMove(view, At(100, 100));
        QTest::keyClick(view, Qt::Key_Escape);
        QCOMPARE(view->grab().toImage(), selected);
        QTest::mouseRelease(view, Qt::LeftButton, {}, At(100, 100));
        QCOMPARE(RectOf(a), (HmiRect{40, 40, 80, 80}));
        QVERIFY(!document->IsModified());
    }
};

QTEST_MAIN(CanvasViewTest)
#include "canvasview_test.moc"
