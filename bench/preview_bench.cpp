// Measures the preview on a generated window of 5,000 widgets of every kind, each bound to the
// same variable by a colour cascade of three levels (or, without a colour, its visibility): a
// value change that evaluates every binding, with every colour changing and with none changing,
// next to a full draw of the same window in the same run. A value change should cost a small
// fraction of a draw. Times are processor time, the median of a few runs.

#include "bench/benchtiming.h"
#include "catalogue/builtinwidgets.h"
#include "dynamics/dynamictypes.h"
#include "preview/previewscene.h"
#include "project/variabledatabase.h"
#include "tests/support/mixedwindow.h"
#include "widgets/hmiimagedc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <QGuiApplication>

#include <cstdio>
#include <memory>

namespace {

constexpr int kWidgets = 5000;

// Binds each widget's first colour (else its visibility) to the level of the demo boiler.
int BindEveryWidget(CTamloDoc& document)
{
    CHmiDynColorAnalog cascade;
    cascade.expression = "$plc.level";
    cascade.count = 3;
    cascade.defaultColor = 0xc0c0c0;
    cascade.limits = {"20", "80", "95"};
    cascade.colors = {0xffff, 0xff00, 0xff};
    int bound = 0;
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        const auto& properties = widget->GetProperties();
        const auto colour = std::find_if(properties.begin(), properties.end(), [](const auto& prop) {
            return prop->m_nItemType == PROP_COLOR && prop->m_nBindable;
        });
        const bool hasColour = colour != properties.end();
        CHmiWidgetProp* prop = widget->AddWidgetDynProp(hasColour ? (*colour)->m_strName : "visible",
                                                        hasColour ? cascade.ComposeExpression() : "$plc.level < 1000");
        bound += prop != nullptr;
    }
    return bound;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    CTamloDoc document;
    FillMixedWindow(document, kWidgets, 1);
    const int bound = BindEveryWidget(document);
    CHmiVariableDatabase database;
    database.LoadProject(KELVO_DEMO_DIR);
    CPreviewValues values(database);
    const std::size_t level = values.Find("$plc.level").value();

    std::unique_ptr<CPreviewScene> scene;
    const double build = MedianMilliseconds(5, [&] {
        scene.reset();
        scene = std::make_unique<CPreviewScene>(document, values);
    });
    double next = 10;
    const auto change = [&](double first, double second) {
        return MedianMilliseconds(9, [&] {
            next = next == first ? second : first;
            values.SetValue(level, next);
        });
    };
    const double everyColour = change(10, 90);
    const double noColour = change(30, 40);
    CHmiImageDC image(kMixedWindowWidth, kMixedWindowHeight);
    const double drawPreview = MedianMilliseconds(5, [&] { scene->Draw(image, 0); });
    const double drawDocument = MedianMilliseconds(5, [&] { DrawWindow(document, image); });

    std::printf("%d widgets, %d bindings that read $plc.level; %zu bindings of the generated window fail "
                "(they read names it makes up)\n",
                kWidgets, bound, scene->Problems().size());
    std::printf("preview made (copies, expressions read, evaluated)  %8.2f ms\n", build);
    std::printf("value change, every colour changes                  %8.2f ms = %5.1f %% of a full draw\n",
                everyColour, 100 * everyColour / drawPreview);
    std::printf("value change, no colour changes                     %8.2f ms = %5.1f %% of a full draw\n", noColour,
                100 * noColour / drawPreview);
    std::printf("full draw of the preview                            %8.2f ms (the document's: %.2f ms)\n",
                drawPreview, drawDocument);
    return 0;
}
