#pragma once

#include "listcolumns.h"
#include "widgets/hmidc.h"

#include <string_view>
#include <vector>

// Still pictures of the live controls, drawn where no control can stand (a rendered image), so
// that the window shows what stands where. Texts are in the default GUI font.

// A check box: the box at the left, the caption beside it.
void DrawCheckboxPicture(CHmiDC& dc, const HmiRect& rect, std::string_view caption);
// A drop-down list showing its first item, with the drop button at the right.
void DrawComboPicture(CHmiDC& dc, const HmiRect& rect, std::string_view firstItem);
// A one-line edit box.
void DrawEditPicture(CHmiDC& dc, const HmiRect& rect);
// A report list: its column headings at their widths over an empty white list.
void DrawListPicture(CHmiDC& dc, const HmiRect& rect, const std::vector<ListColumn>& columns);
