#include "windowlist.h"

#include "xmldocument.h"

int ReadWindowList(const std::string& path, const std::function<void(const HmiWindowEntry&)>& receiver)
{
    const XmlDocument document = XmlDocument::Load(path);
    const XmlElement root = document.Root();
    if (!root.Is("hmiwindow"))
        return 0;
    for (XmlElement window : ChildElements(root)) {
        if (window.Is("window"))
            receiver({window.Attribute("name"), window.Attribute("caption"), window.Attribute("filename")});
    }
    return 1;
}
