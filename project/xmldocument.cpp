#include "xmldocument.h"

#include "fileio.h"

#include "textcodec.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <climits>
#include <cstring>

namespace {

constexpr int kParseOptions = XML_PARSE_NOBLANKS | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

xmlNode* SkipToElement(xmlNode* node)
{
    while (node && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

const char* AsChars(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

} // namespace

bool XmlElement::Is(const char* name) const
{
    return m_node && std::strcmp(AsChars(m_node->name), name) == 0;
}

std::string XmlElement::Name() const
{
    return m_node ? AsChars(m_node->name) : "";
}

std::string XmlElement::FromParser(const unsigned char* text) const
{
    if (!text)
        return {};
    const std::string_view utf8 = AsChars(text);
    return m_gb2312 ? Utf8ToGb2312OrKeep(utf8) : std::string(utf8);
}

std::string XmlElement::Attribute(const char* name) const
{
    if (!m_node)
        return {};
    xmlChar* value = xmlGetProp(m_node, reinterpret_cast<const xmlChar*>(name));
    std::string text = FromParser(value);
    xmlFree(value);
    return text;
}

std::string XmlElement::Text() const
{
    if (!m_node)
        return {};
    xmlChar* content = xmlNodeGetContent(m_node);
    std::string text = FromParser(content);
    xmlFree(content);
    return text;
}

XmlElement XmlElement::FirstChild() const
{
    return {m_node ? SkipToElement(m_node->children) : nullptr, m_gb2312};
}

XmlElement XmlElement::Next() const
{
    return {m_node ? SkipToElement(m_node->next) : nullptr, m_gb2312};
}

void XmlDocument::Free::operator()(_xmlDoc* doc) const
{
    xmlFreeDoc(doc);
}

XmlDocument::XmlDocument(_xmlDoc* doc)
    : m_doc(doc)
    , m_gb2312(doc && doc->encoding && std::strcmp(AsChars(doc->encoding), "GB2312") == 0)
{
}

XmlDocument XmlDocument::Load(const std::string& path)
{
    // Reading the bytes ourselves keeps libxml2 from printing its own I/O errors.
    std::string bytes;
    if (!ReadWholeFile(path, bytes))
        return XmlDocument(nullptr);
    return Parse(bytes);
}

XmlDocument XmlDocument::Parse(const std::string& text)
{
    LIBXML_TEST_VERSION
    if (text.size() > std::size_t(INT_MAX))
        return XmlDocument(nullptr);
    return XmlDocument(xmlReadMemory(text.data(), int(text.size()), nullptr, nullptr, kParseOptions));
}

XmlElement XmlDocument::Root() const
{
    return {m_doc ? xmlDocGetRootElement(m_doc.get()) : nullptr, m_gb2312};
}
