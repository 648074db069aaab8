// The window file byte for byte: a small document of several widget kinds, with every binding
// type, escaped values and scripts with both kinds of line end, against a hand-written file.

#include "catalogue/hmiwidgettimer.h"
#include "catalogue/hmiwidgetvalve.h"
#include "dynamics/dynamictypes.h"
#include "tests/support/tempdir.h"
#include "tests/support/windowfilelines.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"
#include "tests/support/registrytest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

// A label with string properties, one written with the default length and one with its own,
// and a float: the built-in kinds that have them come with the drawn catalogue.
class LabelWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(LabelWidget)
public:
    LabelWidget()
    {
        DeclareProperty("text", "Text", "Text", 1, "Label", PROP_EDIT);
        DeclareProperty("format", "Format", "Format", 1, "Label", PROP_EDIT);
        DeclareProperty("color", "Color", "Color", 1, "Label", PROP_COLOR);
    }
    std::string GetWidgetClassName() const override { return "label"; }
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override
    {
        if (name == "text")
            text = value;
        else if (name == "format")
            format = value;
        else if (name == "ratio")
            ratio = std::stof(std::string(value));
        else
            return CHmiWidget::SetWidgetProperty(name, type, value, length);
        return 1;
    }
    void SaveWidgetProperties(std::string& archive) const override
    {
        CHmiWidget::SaveWidgetProperties(archive);
        SaveWidgetProperty(archive, "text", "string", nullptr, text);
        SaveWidgetProperty(archive, "format", "string", "64", format);
        SaveWidgetProperty(archive, "ratio", "float", nullptr, ratio);
    }

    std::string text;
    std::string format;
    float ratio = 0;
};

HMI_IMPLEMENT_WIDGET_CLASS(LabelWidget, CHmiWidget)

const std::string kWindowElement =
    "\t<widget name=\"window\"  class=\"window\">\r\n\t\t<properties>\r\n" + BaseWidgetLines(0, 1024, 0, 768) +
    "\t\t\t<property name=\"style\" type=\"ulong\" value=\"5\" />\n"
    "\t\t\t<property name=\"bkcolor\" type=\"ulong\" value=\"16777215\" />\n"
    "\t\t\t<property name=\"security_level\" type=\"ushort\" value=\"2\" />\n"
    "\t\t\t<property name=\"security_mode\" type=\"uchar\" value=\"1\" />\n"
    "\t\t</properties>\r\n"
    "\t\t<dynamics>\r\n"
    "\t\t\t<dynamic propname=\"bkcolor\" expression=\"($run)?0xff00:0xff\" type=\"color_digit\" >\r\n"
    "\t\t\t\t<type_params expression=\"$run\" opencolor=\"0xff00\" closecolor=\"0xff\" />\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t</dynamics>\r\n"
    "\t\t<events>\r\n"
    "\t\t\t<event name=\"open\">\n\t\t\t\t<![CDATA[init();\r\nshow(\"main\");\nbeep();]]>\n\t\t\t</event>\r\n"
    "\t\t</events>\r\n"
    "\t</widget>\r\n";

const std::string kValveElement =
    "\t<widget name=\"valve1\"  class=\"valve\">\r\n\t\t<properties>\r\n" + BaseWidgetLines(100, 160, 50, 110) +
    "\t\t\t<property name=\"centercolor\" type=\"ulong\" value=\"65280\" />\n"
    "\t\t</properties>\r\n"
    "\t\t<dynamics>\r\n"
    "\t\t\t<dynamic propname=\"left\" expression=\"$db.x &amp; 3\" />\r\n"
    "\t\t\t<dynamic propname=\"visible\" expression=\"script\" type=\"script\" >\r\n"
    "\t\t\t\t<code>\r\n\t\t\t\t\t<![CDATA[if (a < b && c)\r\n  return 'y';]]>\r\n\t\t\t\t</code>\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t</dynamics>\r\n"
    "\t\t<events>\r\n"
    "\t\t</events>\r\n"
    "\t</widget>\r\n";

const std::string kTimerElement =
    "\t<widget name=\"tick\"  class=\"timer\">\r\n\t\t<properties>\r\n" + BaseWidgetLines(10, 42, 10, 42) +
    "\t\t\t<property name=\"interval\" type=\"ulong\" value=\"250\" />\n"
    "\t\t</properties>\r\n"
    "\t\t<dynamics>\r\n"
    "\t\t\t<dynamic propname=\"interval\" expression=\"(long2str2(($db.period),4))\" type=\"text_int\" >\r\n"
    "\t\t\t\t<type_params expression=\"$db.period\" int_width=\"4\" />\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t</dynamics>\r\n"
    "\t\t<events>\r\n"
    "\t\t\t<event name=\"timer\">\n\t\t\t\t<![CDATA[n = n + 1;\nif (n > 9) stop();]]>\n\t\t\t</event>\r\n"
    "\t\t</events>\r\n"
    "\t</widget>\r\n";

const std::string kLabelElement =
    "\t<widget name=\"label1\"  class=\"label\">\r\n\t\t<properties>\r\n" + BaseWidgetLines(200, 400, 100, 140) +
    "\t\t\t<property name=\"text\" type=\"string\" length=\"32\" "
    "value=\"a&lt;b &amp; &quot;c&quot; &gt; &apos;d&apos;\" />\n"
    "\t\t\t<property name=\"format\" type=\"string\" length=\"64\" value=\"%.2f\" />\n"
    "\t\t\t<property name=\"ratio\" type=\"float\" value=\"12.500000\" />\n"
    "\t\t</properties>\r\n"
    "\t\t<dynamics>\r\n"
    "\t\t\t<dynamic propname=\"text\" expression=\"(float2str3(($db.level),5,2))\" type=\"text_float\" >\r\n"
    "\t\t\t\t<type_params expression=\"$db.level\" int_width=\"5\" dec_width=\"2\" />\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t\t<dynamic propname=\"format\" expression=\"(double2str3(($a&lt;$b),3,1))\" type=\"text_double\" >\r\n"
    "\t\t\t\t<type_params expression=\"$a&lt;$b\" int_width=\"3\" dec_width=\"1\" />\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t\t<dynamic propname=\"color\" expression=\"(($db.temp)&gt;=(10))?((($db.temp)&gt;=(20))?"
    "((($db.temp)&gt;=(30))?0xff:0xffff):0xff00):0xff0000\" type=\"color_analog\" >\r\n"
    "\t\t\t\t<type_params expression=\"$db.temp\" count=\"3\" defaultcolor=\"0xff0000\"  "
    "limit_value0=\"10\" color0=\"0xff00\"  limit_value1=\"20\" color1=\"0xffff\"  "
    "limit_value2=\"30\" color2=\"0xff\"  />\r\n"
    "\t\t\t</dynamic>\r\n"
    "\t\t</dynamics>\r\n"
    "\t\t<events>\r\n"
    "\t\t</events>\r\n"
    "\t</widget>\r\n";

const std::string kGaugeElement =
    "\t<widget name=\"g1\"  class=\"gauge\">\r\n\t\t<properties>\r\n" + BaseWidgetLines(5, 25, 5, 25) +
    "\t\t\t<property name=\"needle\" type=\"ulong\" value=\"7\" />\n"
    "\t\t</properties>\r\n"
    "\t\t<dynamics>\r\n"
    "\t\t</dynamics>\r\n"
    "\t\t<events>\r\n"
    "\t\t</events>\r\n"
    "\t</widget>\r\n";

const std::string kHead = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n";
const std::string kSmallWindowFile =
    kHead + kWindowElement + kValveElement + kTimerElement + kLabelElement + kGaugeElement + "</hmiwidget>\n";

// Binds a property the way the dynamic-property dialog does: the record keeps the composed
// expression and the type object keeps the user's parameters.
void Bind(CHmiWidget& widget, const char* name, std::unique_ptr<CHmiDynamicType> type, std::string expression = {})
{
    CHmiWidgetProp* prop = widget.FindProperty(name);
    prop->m_strExpression = expression.empty() ? type->ComposeExpression() : expression;
    prop->SetDynamicType(std::move(type));
}

// A binding of the given type on the user's expression, with its other parameters set by setUp.
template <typename Type>
std::unique_ptr<Type> Made(std::string expression, const std::function<void(Type&)>& setUp = nullptr)
{
    auto type = std::make_unique<Type>();
    type->expression = std::move(expression);
    if (setUp)
        setUp(*type);
    return type;
}

template <typename Widget>
Widget& Add(CTamloDoc& doc, Widget* widget, const char* name, HmiRect rect)
{
    widget->SetWidgetName(name);
    widget->SetWidgetRect(rect);
    doc.AddWidget(HmiWidgetPtr(widget), false); // at the head, as reading the file puts it
    return *widget;
}

void BuildSmallWindow(CTamloDoc& doc)
{
    doc.OnNewDocument();
    auto& window = static_cast<CHmiWidgetWindow&>(*doc.GetWindowWidget());
    window.m_nHasCaption = 1;
    window.m_nCenterWnd = 1;
    window.m_nSecurityLevel = 2;
    window.m_nSecurityMode = 1;
    Bind(window, "bkcolor",
         Made<CHmiDynColorDigit>("$run", [](auto& digit) { digit.openColor = 0xff00; digit.closeColor = 0xff; }));
    window.SetWidgetEventCode("open", "init();\r\nshow(\"main\");\nbeep();");

    auto& valve = Add(doc, new CHmiWidgetValve, "valve1", {100, 50, 160, 110});
    valve.m_centerColor = 0xff00;
    valve.AddWidgetDynProp("left", "$db.x & 3");
    Bind(valve, "visible", Made<CHmiDynScript>("if (a < b && c)\r\n  return 'y';"), "script");
    // A binding whose expression is empty is not written, whatever its type.
    Bind(valve, "top", std::make_unique<CHmiDynColorDigit>());

    auto& timer = Add(doc, new CHmiWidgetTimer, "tick", {10, 10, 42, 42});
    timer.m_nInterval = 250;
    Bind(timer, "interval", Made<CHmiDynTextInt>("$db.period", [](auto& text) { text.intWidth = 4; }));
    timer.SetWidgetEventCode("timer", "n = n + 1;\nif (n > 9) stop();");

    auto& label = Add(doc, new LabelWidget, "label1", {200, 100, 400, 140});
    label.text = "a<b & \"c\" > 'd'";
    label.format = "%.2f";
    label.ratio = 12.5f;
    Bind(label, "text", Made<CHmiDynTextFloat>("$db.level", [](auto& text) { text.intWidth = 5; }));
    Bind(label, "format", Made<CHmiDynTextDouble>("$a<$b", [](auto& text) { text.intWidth = 3; text.decWidth = 1; }));
    Bind(label, "color", Made<CHmiDynColorAnalog>("$db.temp", [](auto& analog) {
             analog.count = 3;
             analog.defaultColor = 0xff0000;
             analog.limits = {"10", "20", "30"};
             analog.colors = {0xff00, 0xffff, 0xff};
         }));

    auto& gauge = Add(doc, new CHmiWidgetCustom, "g1", {5, 5, 25, 25});
    gauge.ClassName = "gauge";
    gauge.CustomInfo = "\t\t\t<property name=\"needle\" type=\"ulong\" value=\"7\" />\n";
}

// The XML parser turns every CR LF in text into LF, so scripts come back with LF alone.
std::string AsParsed(std::string element)
{
    for (auto open = element.find("<![CDATA["); open != std::string::npos; open = element.find("<![CDATA[", open + 1)) {
        const auto scriptBegin = element.begin() + std::ptrdiff_t(open);
        const auto scriptEnd = element.begin() + std::ptrdiff_t(element.find("]]>", open));
        element.erase(std::remove(scriptBegin, scriptEnd, '\r'), scriptEnd);
    }
    return element;
}

struct WindowFileTest : BuiltinRegistryTest {
    void SetUp() override { CHmiWidget::AddWidgetRunTimeClass("label", &LabelWidget::classLabelWidget); }

    TempDir dir;
};

TEST_F(WindowFileTest, TheWriterProducesTheHandWrittenFile)
{
    CTamloDoc doc;
    BuildSmallWindow(doc);
    EXPECT_EQ(doc.Serialize(), kSmallWindowFile);
}

TEST_F(WindowFileTest, ReadingItBackAndSavingKeepsTheFileOrderAndTheStacking)
{
    CTamloDoc doc;
    ASSERT_TRUE(doc.Load(dir.Write("small.xml", kSmallWindowFile)));
    ASSERT_TRUE(doc.Save(dir.Path("again.xml")));
    EXPECT_EQ(dir.Read("again.xml"), kHead + AsParsed(kWindowElement) + AsParsed(kValveElement) + kTimerElement +
                                         kLabelElement + kGaugeElement + "</hmiwidget>\n");

    CTamloDoc again;
    ASSERT_TRUE(again.Load(dir.Path("again.xml")));
    const auto name = [](const HmiWidgetPtr& widget) { return widget->GetWidgetName(); };
    EXPECT_TRUE(std::ranges::equal(again.Widgets(), doc.Widgets(), {}, name, name)) << "stacked as it was";
}

} // namespace
