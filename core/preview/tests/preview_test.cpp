// The preview's values as the variables' types hold them, their generators and files, and the
// evaluated window, which never touches its document.

#include "preview/previewscene.h"
#include "preview/valueset.h"
#include "project/variabledatabase.h"
#include "tests/support/registryscope.h"
#include "tests/support/tempdir.h"
#include "widgets/hmiimagedc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <gtest/gtest.h>

namespace {

const std::string kDemo = KELVO_DEMO_DIR;

struct Dictionaries {
    explicit Dictionaries(const std::string& folder) { database.LoadProject(folder); }
    CHmiVariableDatabase database;
};

struct Project : Dictionaries {
    explicit Project(const std::string& folder) : Dictionaries(folder), values(database) {}
    CPreviewValues values;

    std::size_t Index(std::string_view reference) const { return values.Find(reference).value(); }
    std::string Shown(std::string_view reference) const
    {
        const ExpressionValue* value = values.FindValue(reference);
        return value ? ExpressionValueText(*value) : "no " + std::string(reference);
    }
};

struct AreaRecorder : CPreviewSceneObserver {
    void SceneChanged(std::span<const HmiRect> areas) override { heard.emplace_back(areas.begin(), areas.end()); }
    std::vector<std::vector<HmiRect>> heard;
};

std::vector<HmiColor> Pixels(const std::function<void(CHmiDC&)>& draw)
{
    CHmiImageDC image(800, 480);
    draw(image);
    std::vector<HmiColor> pixels;
    for (int y = 0; y < image.Height(); y += 2)
        for (int x = 0; x < image.Width(); x += 2)
            pixels.push_back(image.GetPixel(x, y));
    return pixels;
}

} // namespace

TEST(PreviewValues, HoldValuesAsTheirTypesDoThroughEveryName)
{
    TempDir project;
    project.Write("rtdb.xml", "<?xml version=\"1.0\" encoding=\"GB2312\"?><rtdbs><rtdb name=\"p\"><data name=\"b\" type=\"uchar\" init=\"300\"/>"
                              "<data name=\"s\" type=\"short\" init=\"1\"/><data name=\"f\" type=\"float\" init=\"0.1\"/>"
                              "<data name=\"t\" type=\"string\" length=\"4\" init=\"a\xd6\xd0\xce\xc4\"/>"
                              "<data name=\"n\" type=\"ulong\" init=\"junk\"/><datalias aliasname=\"bb\" name=\"b\"/>"
                              "</rtdb></rtdbs>");
    project.Write("hmidb.xml", "<hmidb><datagroup name=\"io\"><data name=\"mirror\" dbname=\"p\" dataname=\"s\"/>"
                               "<data name=\"lost\" dbname=\"p\" dataname=\"none\"/></datagroup></hmidb>");
    Project p(project.Path(""));
    EXPECT_EQ(p.Shown("$p.b"), "44");
    EXPECT_EQ(std::get<double>(*p.values.FindValue("$p.f")), double(0.1f));
    EXPECT_EQ(p.Shown("$p.t"), "a\xd6\xd0") << "three bytes and the zero; the second character does not fit";
    EXPECT_EQ(p.Shown("$p.n"), "0");
    EXPECT_EQ(p.values.Find("$lost"), std::nullopt);

    const std::pair<ExpressionValue, std::string_view> shorts[] = {
        {std::int64_t(65536 + 5), "5"}, {std::int64_t(32768), "-32768"}, {1e9, "32767"}, {-1e9, "-32768"},
        {-2.9, "-2"},                   {std::string("0x10"), "16"},     {std::string("-3.5e1"), "-35"}};
    for (const auto& [given, held] : shorts) {
        EXPECT_TRUE(p.values.SetValue(p.Index("$mirror"), given));
        EXPECT_EQ(p.Shown("$p.s"), held) << ExpressionValueText(given);
    }
    EXPECT_FALSE(p.values.SetValue(p.Index("$p.s"), std::string("ten")));
    EXPECT_EQ(p.Shown("$mirror"), "-35");
    EXPECT_TRUE(p.values.SetValue(p.Index("$p.bb"), 2.5));
    EXPECT_TRUE(p.values.SetValue(p.Index("$p.t"), 12345.5));
    EXPECT_EQ(p.Shown("$p.b") + " " + p.Shown("$p.t"), "2 123");
}

TEST(PreviewValues, GeneratorsPlayByTheClockAndValueSetsKeepThem)
{
    Project p(kDemo);
    const auto generate = [&](std::string_view reference, CValueGenerator::Kind kind) {
        p.values.SetGenerator(p.Index(reference), CValueGenerator{kind, 10, 20, 1000});
    };
    generate("$plc.level", CValueGenerator::Kind::Ramp);
    generate("$plc.pressure", CValueGenerator::Kind::Sine);
    generate("$plc.pump1_speed", CValueGenerator::Kind::Toggle);
    generate("$plc.temperature", CValueGenerator::Kind::Random);
    const auto state = [&] {
        return p.Shown("$plc.level") + " " + p.Shown("$plc.pressure") + " " + p.Shown("$plc.pump1_speed");
    };
    const std::pair<std::int64_t, std::string_view> times[] = {
        {0, "10 15 10"}, {250, "12.5 20 10"}, {999, "19.99 14.968584 10"}, {1000, "10 15 20"}, {2750, "17.5 10 10"}};
    std::vector<std::string> randoms;
    for (const auto& [time, expected] : times) {
        p.values.AdvanceTo(time);
        EXPECT_EQ(state(), expected) << time;
        randoms.push_back(p.Shown("$plc.temperature"));
        EXPECT_GE(std::stod(randoms.back()), 10);
        EXPECT_LE(std::stod(randoms.back()), 20);
    }
    EXPECT_EQ(randoms[0], randoms[2]) << "one draw per period";
    EXPECT_NE(randoms[2], randoms[3]);

    TempDir folder;
    p.values.SetGenerator(p.Index("$plc.pressure"), std::nullopt);
    ASSERT_TRUE(p.values.SetValue(p.Index("$operator"), std::string("\xd6\xd0 night shift")));
    ASSERT_TRUE(SaveValueSet(p.values, folder.Path(kValueSetFileName)));
    Project again(kDemo);
    again.values.SetValue(again.Index("$setpoint"), 1.0);
    ASSERT_TRUE(LoadValueSet(again.values, folder.Path(kValueSetFileName)));
    again.values.AdvanceTo(2750);
    EXPECT_EQ(again.Shown("$operator") + " " + state(), "\xd6\xd0 night shift 17.5 10 10");
    EXPECT_EQ(again.Shown("$setpoint"), "80") << "a load starts from the init values";

    folder.Write("broken.json", "{\"values\": {\"$plc.level\": 5");
    folder.Write("odd.json", "{\"values\": {\"$gone\": 1, \"$plc.level\": [1], \"$plc.pressure\": \"x\"}, "
                             "\"generators\": {\"$plc.flame\": {\"kind\": \"square\"}}}");
    EXPECT_FALSE(LoadValueSet(again.values, folder.Path("broken.json")));
    EXPECT_EQ(again.Shown("$operator"), "\xd6\xd0 night shift");
    EXPECT_EQ(LoadValueSet(again.values, folder.Path("odd.json")).notices.size(), 4u);
}

TEST(PreviewScene, EvaluatesOnlyWhatAChangeReadsAndLeavesTheDocumentAsItWas)
{
    const CRegistryScope registry;
    CTamloDoc document;
    ASSERT_TRUE(document.Load(kDemo + "main.xml"));
    CHmiWidget* boiler = nullptr;
    for (const HmiWidgetPtr& widget : document.Widgets())
        boiler = widget->GetWidgetName() == "boiler" ? widget.get() : boiler;
    ASSERT_NE(boiler, nullptr);
    boiler->m_nFlash = 1;
    boiler->m_nFlashSpeed = 3;
    boiler->AddWidgetDynProp("visible", "$plc.pump1_run == 0");
    boiler->AddWidgetDynProp("right", "$plc.flame ? 100 / ($plc.pump2_run - 1) : 700");
    const std::string bytes = document.Serialize();
    const std::vector<HmiColor> drawn = Pixels([&](CHmiDC& dc) { DrawWindow(document, dc); });

    Project p(kDemo);
    CPreviewScene scene(document, p.values);
    AreaRecorder recorder;
    scene.AddObserver(&recorder);
    const auto fill = [&] {
        std::string text;
        scene.Evaluated(*boiler)->GetWidgetPropValue(*boiler->FindProperty("fillcolor"), text);
        return text + " " + std::to_string(scene.Evaluated(*boiler)->GetWidgetRect().right);
    };
    EXPECT_EQ(fill(), "65535 700") << "level 50 lies between 20 and 80";

    p.values.SetValue(p.Index("$plc.level"), 90);
    p.values.SetValue(p.Index("$plc.temperature"), 20.0); // no change: nothing to hear
    p.values.SetValue(p.Index("$plc.flame"), 1);
    EXPECT_EQ(fill(), "65280 -100");
    ASSERT_EQ(recorder.heard.size(), 2u);
    ASSERT_EQ(recorder.heard[1].size(), 4u) << "the lamp and the boiler read the flame";
    EXPECT_EQ(recorder.heard[1][0], (HmiRect{100, 80, 700, 400}));
    EXPECT_EQ(recorder.heard[1][1], (HmiRect{-100, 80, 100, 400}));
    p.values.SetValue(p.Index("$plc.pump2_run"), 1);
    const std::vector<BindingProblem> problems = scene.Problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(std::tuple(problems[0].widget, problems[0].property, problems[0].error.position, problems[0].error.message),
              std::tuple(boiler, "right", 17u, "division by zero"));
    EXPECT_EQ(fill(), "65280 300") << "a failing binding leaves the document's value";

    EXPECT_EQ(problems[0].area, (HmiRect{100, 80, 300, 400}));
    EXPECT_TRUE(CPreviewScene::IsShownAt(*scene.Evaluated(*boiler), 299));
    EXPECT_FALSE(CPreviewScene::IsShownAt(*scene.Evaluated(*boiler), 300));
    EXPECT_EQ(scene.FlashTurns(299, 300), std::vector{problems[0].area}) << "the boiler alone flashes";
    EXPECT_TRUE(scene.FlashTurns(300, 599).empty());
    EXPECT_EQ(scene.WidgetAt({120, 300}, 299), boiler);
    EXPECT_EQ(scene.WidgetAt({120, 300}, 300), nullptr) << "flashed away, over the window widget";
    p.values.SetValue(p.Index("$pump1"), 1);
    EXPECT_FALSE(CPreviewScene::IsShownAt(*scene.Evaluated(*boiler), 0));
    p.values.SetGenerator(p.Index("$plc.pressure"), CValueGenerator{CValueGenerator::Kind::Ramp, 0, 9, 500});
    for (std::int64_t time = 0; time < 2000; time += 130)
        p.values.AdvanceTo(time);
    EXPECT_NE(Pixels([&](CHmiDC& dc) { scene.Draw(dc, 0); }), drawn);

    EXPECT_EQ(document.Serialize(), bytes);
    EXPECT_EQ(Pixels([&](CHmiDC& dc) { DrawWindow(document, dc); }), drawn);
    scene.RemoveObserver(&recorder);
}
