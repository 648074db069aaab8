#pragma once

#include <memory>
#include <string>

struct _xmlDoc;
struct _xmlNode;

// Read access to a parsed XML file, shared by every reader of project and window files.
// Blank text between elements is dropped, no network is touched, and attribute values come
// back in the editor's code page: a file that declares the encoding "GB2312" gets its values
// converted from the parser's UTF-8 back to GB2312 (kept as UTF-8 where that fails); any other
// file gets them as the parser delivers them.
class XmlElement {
public:
    XmlElement(_xmlNode* node, bool gb2312) : m_node(node), m_gb2312(gb2312) {}

    explicit operator bool() const { return m_node != nullptr; }
    // True when this is an element with exactly this name.
    bool Is(const char* name) const;
    std::string Name() const;
    // The attribute's value; empty when it is absent.
    std::string Attribute(const char* name) const;
    // All text inside the element (CDATA included), in the editor's code page.
    std::string Text() const;

    // The first child element, and the element after this one; a false element at the end.
    XmlElement FirstChild() const;
    XmlElement Next() const;

    friend bool operator==(const XmlElement& a, const XmlElement& b) { return a.m_node == b.m_node; }

private:
    std::string FromParser(const unsigned char* text) const;

    _xmlNode* m_node;
    bool m_gb2312;
};

class XmlDocument {
public:
    // Parses a file; check IsValid. Never throws and never prints.
    static XmlDocument Load(const std::string& path);
    // Parses text held in memory (for the fuzzers and for tests).
    static XmlDocument Parse(const std::string& text);

    bool IsValid() const { return m_doc != nullptr; }
    // The root element, or a false element when the file had none.
    XmlElement Root() const;

private:
    struct Free {
        void operator()(_xmlDoc* doc) const;
    };
    explicit XmlDocument(_xmlDoc* doc);

    std::unique_ptr<_xmlDoc, Free> m_doc;
    bool m_gb2312 = false;
};

// Iterates over the child elements of an element: for (XmlElement child : ChildElements(e)).
class ChildElements {
public:
    explicit ChildElements(const XmlElement& parent) : m_parent(parent) {}

    class Iterator {
    public:
        explicit Iterator(XmlElement element) : m_element(element) {}
        XmlElement operator*() const { return m_element; }
        Iterator& operator++()
        {
            m_element = m_element.Next();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_element != other.m_element; }

    private:
        XmlElement m_element;
    };

    Iterator begin() const { return Iterator(m_parent.FirstChild()); }
    Iterator end() const { return Iterator(XmlElement(nullptr, false)); }

private:
    XmlElement m_parent;
};
