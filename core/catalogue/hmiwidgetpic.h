#pragma once

#include "project/fileio.h"
#include "propertytable.h"

// A picture file stretched over the widget's rectangle, optionally with one colour left
// transparent. The file lives in the project folder beside the window files; the widget keeps
// only its name.
class CHmiWidgetPic : public CHmiTableWidget<CHmiWidgetPic> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetPic)
public:
    static constexpr const char* kClassKey = "picture";
    static constexpr const char* kGroup = "Picture";
    static constexpr const char* kRootText = "Picture properties";
    static std::span<const PropertySpec<CHmiWidgetPic>> Properties();

    void Draw(CHmiDC& dc) override;
    // A file chosen in the "filename" row is copied into the window's folder first.
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;

    std::string m_strFileName;       // without folder
    std::int32_t m_nLoadMode = 1;    // 0 when the window opens, 1 when first shown ("running")
    std::int32_t m_nTransparent = 0; // 1: m_transparentColor is left out
    HmiColor m_transparentColor = 0x00000000;
};

// Brings a chosen picture file into the project folder (ending in "/"): read as ReadWholeFile
// reads, and saved under the same name as WriteFileAtomically saves, replacing a file of that
// name, unless it already lies there. On success, name is the file name alone.
FileResult ImportPictureFile(const std::string& chosenPath, const std::string& projectFolder, std::string& name);
