#include "project/xmldocument.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

const std::string kTemperatureUtf8 = "\xE6\xB8\xA9\xE5\xBA\xA6";
const std::string kTemperatureGb = "\xCE\xC2\xB6\xC8";

std::vector<std::string> ChildNames(const XmlElement& parent)
{
    std::vector<std::string> names;
    for (XmlElement child : ChildElements(parent))
        names.push_back(child.Name());
    return names;
}

} // namespace

TEST(XmlDocument, Gb2312FilesGiveTheirValuesBackInGb2312)
{
    const XmlDocument doc = XmlDocument::Parse("<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<root a=\"" +
                                               kTemperatureGb + "\" b=\"x &amp; y\"/>");
    ASSERT_TRUE(doc.IsValid());
    const XmlElement root = doc.Root();
    EXPECT_TRUE(root.Is("root"));
    EXPECT_FALSE(root.Is("Root"));
    EXPECT_EQ(root.Attribute("a"), kTemperatureGb);
    EXPECT_EQ(root.Attribute("b"), "x & y");
    EXPECT_EQ(root.Attribute("missing"), "");
}

TEST(XmlDocument, OtherFilesGiveTheParsersUtf8)
{
    const XmlDocument declared = XmlDocument::Parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?><root a=\"" +
                                                    kTemperatureUtf8 + "\"/>");
    EXPECT_EQ(declared.Root().Attribute("a"), kTemperatureUtf8);
    const XmlDocument undeclared = XmlDocument::Parse("<root a=\"" + kTemperatureUtf8 + "\"/>");
    EXPECT_EQ(undeclared.Root().Attribute("a"), kTemperatureUtf8);
}

TEST(XmlDocument, ChildElementsSkipTextCommentsAndBlanks)
{
    const XmlDocument doc = XmlDocument::Parse("<r>\n  <a/>text<!-- c --><b><x/></b>\n  <c/>\n</r>");
    EXPECT_EQ(ChildNames(doc.Root()), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_TRUE(ChildNames(doc.Root().FirstChild()).empty());
}

TEST(XmlDocument, TextIncludesCdataWithoutTheBlanksAroundIt)
{
    const XmlDocument doc = XmlDocument::Parse("<r>\n\t\t\t\t<![CDATA[a < b\r\nc();]]>\n\t\t\t</r>");
    EXPECT_EQ(doc.Root().Text(), "a < b\nc();") << "the parser normalises line ends to LF";
}

TEST(XmlDocument, BrokenInputGivesAnInvalidDocument)
{
    for (const char* text : {"", "not xml", "<r>", "<r></s>", "<?xml version=\"1.0\"?>"}) {
        const XmlDocument doc = XmlDocument::Parse(text);
        EXPECT_FALSE(doc.IsValid()) << text;
        EXPECT_FALSE(doc.Root());
        EXPECT_EQ(doc.Root().Attribute("a"), "");
        EXPECT_TRUE(ChildNames(doc.Root()).empty());
    }
    EXPECT_FALSE(XmlDocument::Load("/nonexistent/file.xml").IsValid());
}
