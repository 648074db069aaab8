#include "hmiwidgetpic.h"

#include "base/textcodec.h"
#include "widgets/hmidraw.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetchoices.h"

#include <filesystem>
#include <system_error>

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetPic, CHmiWidget)

namespace {

constexpr const char* kLoadChoices[] = {"starting", "running"};

} // namespace

std::span<const PropertySpec<CHmiWidgetPic>> CHmiWidgetPic::Properties()
{
    using W = CHmiWidgetPic;
    static const PropertySpec<W> properties[] = {
        {.key = "filename", .label = "filename", .description = "Set picture file name", .itemType = PROP_FILE,
         .xmlType = "string", .text = &W::m_strFileName},
        {.key = "load", .label = "load mode", .description = "Set load mode of picture", .itemType = PROP_COMBO,
         .bindable = 0, .xmlType = "uchar", .number = &W::m_nLoadMode, .read = FileNumber::Unsigned,
         .choices = kLoadChoices},
        {.key = "transparent", .label = "transparent mode", .description = "Set transparent mode",
         .itemType = PROP_COMBO, .xmlType = "uchar", .number = &W::m_nTransparent, .read = FileNumber::Unsigned,
         .choices = kTransparencyChoices},
        {.key = "transparentcolor", .label = "transparent color",
         .description = "When transparent mode is transparent, set transparent color of picture",
         .itemType = PROP_COLOR, .color = &W::m_transparentColor, .read = FileNumber::Unsigned},
    };
    return properties;
}

void CHmiWidgetPic::Draw(CHmiDC& dc)
{
    const std::string folder = m_pDocument ? m_pDocument->GetPictureFolder() : std::string();
    const std::string path = Gb2312ToUtf8OrKeep(folder + m_strFileName);
    const bool painted = !m_strFileName.empty() &&
                         dc.DrawPictureFile(path, m_rect, m_nTransparent ? &m_transparentColor : nullptr);
    if (painted)
        return;
    // Without a picture to show, a grey dotted frame keeps the widget visible on the canvas.
    HmiSelectedPenAndBrush frame(dc, {HmiPenStyle::Dot, 1, 0x808080}, {true, 0});
    dc.Rectangle(m_rect);
}

void CHmiWidgetPic::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    const std::string previous = m_strFileName;
    CHmiTableWidget::UpdateWidgetPropByTree(item);
    const CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
    if (!prop || prop->m_strName != "filename" || m_strFileName.empty())
        return;
    const std::string folder = m_pDocument ? m_pDocument->GetPictureFolder() : std::string();
    std::string name;
    // A file that cannot be brought in leaves the picture as it was.
    m_strFileName = ImportPictureFile(m_strFileName, folder, name) ? name : previous;
}

FileResult ImportPictureFile(const std::string& chosenPath, const std::string& projectFolder, std::string& name)
{
    namespace fs = std::filesystem;
    const fs::path chosen = fs::path(Gb2312ToUtf8OrKeep(chosenPath));
    const fs::path target = fs::path(Gb2312ToUtf8OrKeep(projectFolder)) / chosen.filename();
    std::error_code error;
    const bool alreadyThere = fs::exists(target, error) && fs::equivalent(chosen, target, error);
    if (!alreadyThere) {
        // Read and saved as a window file is: a regular file within the size limit, and a picture
        // of the same name is replaced whole or not at all.
        std::string bytes;
        FileResult copied = ReadWholeFile(chosen.string(), bytes);
        if (copied)
            copied = WriteFileAtomically(target.string(), bytes);
        if (!copied)
            return copied;
    }
    name = Utf8ToGb2312OrKeep(chosen.filename().string());
    return FileResult::Success();
}
