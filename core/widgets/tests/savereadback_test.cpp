// Every save reads back as it stands: texts that the plain window-file bytes cannot carry are
// written as their well-formed equivalents, and a save whose text would not read back is
// refused before it touches the file.

#include "base/textcodec.h"
#include "catalogue/hmiwidgettext.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"
#include "tests/support/registrytest.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace {

// Each widget's element by widget name: the document's content, whatever the list order.
std::map<std::string, std::string> ElementsByName(const CTamloDoc& doc)
{
    std::map<std::string, std::string> elements;
    for (const HmiWidgetPtr& widget : doc.Widgets())
        widget->Serialize(elements[widget->GetWidgetName()]);
    return elements;
}

CHmiWidget& AddWidget(CTamloDoc& doc, const char* classKey, const char* name)
{
    HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(classKey)->CreateObject();
    widget->SetWidgetName(name);
    doc.AddWidget(std::move(widget), true);
    return *doc.Widgets().back();
}

std::string WindowFile(const std::string& declaration, const std::string& widgets)
{
    return declaration + "<hmiwidget>\n" + widgets + "</hmiwidget>\n";
}

const std::string kGb2312 = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n";
const std::string kUtf8 = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
const std::string kTemperatureUtf8 = "\xE6\xB8\xA9\xE5\xBA\xA6"; // two Chinese characters
const std::string kTemperatureGb = "\xCE\xC2\xB6\xC8";

struct SaveReadBackTest : BuiltinRegistryTest {

    // Saves, loads the file again and expects the same widgets; returns the saved bytes.
    std::string SaveAndReadBack(CTamloDoc& doc)
    {
        const FileResult saved = doc.Save(dir.Path("saved.xml"));
        EXPECT_TRUE(saved) << saved.error;
        CTamloDoc again;
        const FileResult loaded = again.Load(dir.Path("saved.xml"));
        EXPECT_TRUE(loaded) << loaded.error;
        EXPECT_EQ(ElementsByName(again), ElementsByName(doc));
        return dir.Read("saved.xml");
    }

    TempDir dir;
};

} // namespace

// Code that holds the end of a CDATA section, markup in names, class keys, custom values and
// limits, and GB2312 text with blanks of every kind, as a loaded file holds them.
TEST_F(SaveReadBackTest, CdataEndsMarkupAndGb2312TextComeBackByteForByte)
{
    const std::string file = WindowFile(
        kGb2312, "<widget name=\"b1\" class=\"button\"><dynamics><dynamic propname=\"visible\" expression=\"script\" "
                 "type=\"script\"><code><![CDATA[x = y[z[1]]]]><![CDATA[>2;]]]]><![CDATA[>]]></code></dynamic>"
                 "</dynamics><events><event name=\"click\"><![CDATA[if (a[b[0]]]]><![CDATA[>5) beep();]]></event>"
                 "</events></widget>\n"
                 "<widget name=\"a&quot;b&lt;c&amp;d\" class=\"g&lt;&quot;&amp;>\"><properties>"
                 "<property name=\"v\" type=\"string\" value=\"1&quot;2&lt;3&amp;4>5'6\"/></properties>"
                 "<dynamics><dynamic propname=\"left\" expression=\"x\" type=\"color_analog\">"
                 "<type_params expression=\"$t\" count=\"1\" defaultcolor=\"0x0\" "
                 "limit_value0=\"$a&lt;&quot;x&quot;&amp;1\" color0=\"0xff\"/></dynamic></dynamics></widget>\n"
                 "<widget name=\"" + kTemperatureGb + "\" class=\"text\"><properties>"
                 "<property name=\"text\" type=\"string\" value=\"" + kTemperatureGb +
                 " a&#9;b&#10;c&#13;d\"/></properties><events><event name=\"click\"><![CDATA[say(\"" +
                 kTemperatureGb + "\");]]></event></events></widget>\n");
    CTamloDoc doc;
    ASSERT_TRUE(doc.Load(dir.Write("loaded.xml", file)));
    const std::string saved = SaveAndReadBack(doc);
    EXPECT_NE(saved.find("<![CDATA[if (a[b[0]]]]><![CDATA[>5) beep();]]>"), std::string::npos) << saved;
    EXPECT_NE(saved.find("<![CDATA[x = y[z[1]]]]><![CDATA[>2;]]]]><![CDATA[>]]>"), std::string::npos) << saved;
    EXPECT_NE(saved.find("<widget name=\"a&quot;b&lt;c&amp;d\"  class=\"g&lt;&quot;&amp;>\">"), std::string::npos)
        << "only the characters that would break the file are escaped";
    EXPECT_NE(saved.find("value=\"1&quot;2&lt;3&amp;4>5'6\""), std::string::npos) << saved;
    EXPECT_NE(saved.find("limit_value0=\"$a&lt;&quot;x&quot;&amp;1\""), std::string::npos) << saved;
    EXPECT_NE(saved.find("<widget name=\"" + kTemperatureGb + "\""), std::string::npos) << saved;
    EXPECT_NE(saved.find("value=\"" + kTemperatureGb + " a&#x9;b&#xA;c&#xD;d\""), std::string::npos) << saved;
    EXPECT_NE(saved.find("<![CDATA[say(\"" + kTemperatureGb + "\");]]>"), std::string::npos) << saved;
}

TEST_F(SaveReadBackTest, TextThatGb2312CannotHoldTravelsAsCharacterReferences)
{
    const std::string euro = "\xE2\x82\xAC", smile = "\xF0\x9F\x98\x80";
    const std::string widgets = "<widget name=\"t" + kTemperatureUtf8 + euro + "\" class=\"text\"><properties>"
                                "<property name=\"text\" type=\"string\" value=\"" + kTemperatureUtf8 + " " + euro +
                                "&#x1F600;\"/></properties><events><event name=\"click\"><![CDATA[say(\"" + smile +
                                "\");]]></event></events></widget>\n";
    for (const std::string& file : {WindowFile(kUtf8, widgets), WindowFile("", widgets)}) {
        CTamloDoc doc;
        const FileResult loaded = doc.Load(dir.Write("utf8.xml", file));
        ASSERT_TRUE(loaded) << loaded.error;
        ASSERT_EQ(loaded.notices.size(), 1u) << "the user is told how the file will carry them";
        EXPECT_NE(loaded.notices[0].find("character references"), std::string::npos);

        const std::string saved = SaveAndReadBack(doc);
        EXPECT_EQ(saved.rfind(kGb2312, 0), 0u) << "the saved file declares GB2312";
        EXPECT_NE(saved.find("name=\"t" + kTemperatureGb + "&#x20AC;\""), std::string::npos) << saved;
        EXPECT_NE(saved.find("value=\"" + kTemperatureGb + " &#x20AC;&#x1F600;\""), std::string::npos) << saved;
        EXPECT_NE(saved.find("<![CDATA[say(\"]]>&#x1F600;<![CDATA[\");]]>"), std::string::npos) << saved;
        const auto& text = dynamic_cast<const CHmiWidgetText&>(*doc.Widgets()[1]);
        EXPECT_EQ(Gb2312ToUtf8OrKeep(text.m_strText), kTemperatureUtf8 + " " + euro + smile);
    }
}

namespace {

// A widget from a library whose writer puts a value in the file as it stands.
class CarelessWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CarelessWidget)
public:
    std::string GetWidgetClassName() const override { return "careless"; }
    void SaveWidgetProperties(std::string& archive) const override
    {
        CHmiWidget::SaveWidgetProperties(archive);
        archive += "\t\t\t<property name=\"note\" type=\"string\" value=\"" + note + "\" />\n";
    }
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override
    {
        if (name != "note")
            return CHmiWidget::SetWidgetProperty(name, type, value, length);
        note = value;
        return 1;
    }

    std::string note;
};

HMI_IMPLEMENT_WIDGET_CLASS(CarelessWidget, CHmiWidget)

} // namespace

TEST_F(SaveReadBackTest, ASaveThatWouldNotReadBackIsRefusedAndTheOldFileStays)
{
    CHmiWidget::AddWidgetRunTimeClass("careless", &CarelessWidget::classCarelessWidget);
    const struct {
        const char* what;
        std::function<void(CTamloDoc&)> spoil;
        const char* named; // what the refusal names
    } cases[] = {
        {"a value that breaks the file",
         [](CTamloDoc& doc) { static_cast<CarelessWidget&>(AddWidget(doc, "careless", "c1")).note = "a<b"; },
         "Widget \"c1\", property \"note\""},
        {"a value that reads back otherwise",
         [](CTamloDoc& doc) { static_cast<CarelessWidget&>(AddWidget(doc, "careless", "c2")).note = "x&amp;y"; },
         "Widget \"c2\", property \"note\""},
        {"a value the reader keeps only in part",
         [](CTamloDoc& doc) { AddWidget(doc, "rectangle", "r1").m_nFlashSpeed = 300; },
         "Widget \"r1\", property \"flashspeed\""},
        {"a character no XML file can hold",
         [](CTamloDoc& doc) { AddWidget(doc, "rectangle", "r\x01"); },
         "Widget \"r\x01\""},
        {"an event whose code reads back empty",
         [](CTamloDoc& doc) { AddWidget(doc, "button", "b2").SetWidgetEventCode("click", "\x02"); },
         "Widget \"b2\", event \"click\""},
    };
    for (const auto& c : cases) {
        const std::string old = dir.Write("window.xml", "old bytes");
        CTamloDoc doc;
        doc.OnNewDocument();
        c.spoil(doc);
        const FileResult result = doc.Save(old);
        EXPECT_FALSE(result) << c.what;
        EXPECT_NE(result.error.find(c.named), std::string::npos) << c.what << ": " << result.error;
        EXPECT_NE(result.error.find("The file was not changed"), std::string::npos) << result.error;
        EXPECT_EQ(dir.Read("window.xml"), "old bytes") << c.what;
        EXPECT_TRUE(doc.IsModified()) << c.what;
        EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"window.xml"})) << c.what;
    }
}
