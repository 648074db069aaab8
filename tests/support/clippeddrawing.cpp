#include "clippeddrawing.h"

#include "widgets/hmiimagedc.h"

std::string FirstPixelChangedByClipping(const std::function<void(CHmiDC& dc, HmiPoint offset)>& draw)
{
    constexpr HmiPoint kShift{130, 100};
    CHmiImageDC small(40, 30);
    CHmiImageDC large(300, 230);
    draw(small, {0, 0});
    draw(large, kShift);
    for (int y = 0; y < small.Height(); ++y)
        for (int x = 0; x < small.Width(); ++x)
            if (small.GetPixel(x, y) != large.GetPixel(x + kShift.x, y + kShift.y))
                return "first difference at " + std::to_string(x) + "," + std::to_string(y);
    return {};
}
