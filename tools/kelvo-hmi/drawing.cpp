#include "drawing.h"

#include "preview/previewscene.h"
#include "widgets/hmiimagedc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

void PrepareOffscreenDrawing()
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (!std::getenv("XDG_RUNTIME_DIR")) {
        // The folder Qt would fall back to, made private as it wants, so that it says nothing.
        const std::string runtime = "/tmp/runtime-" + std::to_string(::getuid());
        ::mkdir(runtime.c_str(), 0700);
        setenv("XDG_RUNTIME_DIR", runtime.c_str(), 0);
    }
}

namespace {

FileResult DrawToPng(const CTamloDoc& document, const std::function<void(CHmiDC&)>& draw, const std::string& path)
{
    const HmiRect window = document.GetWindowWidget()->GetWidgetRect().Normalized();
    const std::int32_t width = std::min(window.Width(), kMaxDrawnWindowExtent);
    const std::int32_t height = std::min(window.Height(), kMaxDrawnWindowExtent);
    CHmiImageDC image(width, height);
    draw(image);
    FileResult saved = image.SavePng(path);
    if (saved && (width < window.Width() || height < window.Height()))
        saved.notices.push_back("the window is " + std::to_string(window.Width()) + " x " +
                                std::to_string(window.Height()) + " pixels; drawn clipped to its top-left " +
                                std::to_string(width) + " x " + std::to_string(height));
    return saved;
}

} // namespace

FileResult DrawWindowToPng(const CTamloDoc& document, const std::string& path)
{
    return DrawToPng(document, [&](CHmiDC& dc) { DrawWindow(document, dc); }, path);
}

FileResult DrawPreviewToPng(const CTamloDoc& document, const CPreviewScene& scene, const std::string& path)
{
    return DrawToPng(document, [&](CHmiDC& dc) { scene.Draw(dc, 0); }, path);
}
