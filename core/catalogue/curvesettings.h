#pragma once

#include "propertytable.h"

#include <array>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

// What the realtime and the history curve have in common: the plot's range, grid, margins and
// colours, up to 16 curves with their variables and colours, and the indicator. The editor
// has no live values, so it previews the curves with random samples.
struct CurveSettings {
    float m_fMinValue = 0.0f;
    float m_fMaxValue = 100.0f;
    std::int32_t m_nXPoints = 50;
    std::int32_t m_nHLines = 5; // divisions along the horizontal axis: its lines are vertical
    std::int32_t m_nVLines = 3; // and these are horizontal
    std::int32_t m_nFrameHSpace = 30;
    std::int32_t m_nFrameVSpace = 15;
    HmiColor m_bkColor = 0x00C0FFFF;
    HmiColor m_frameColor = 0x00808080;
    HmiColor m_hLineColor = 0x00000000;
    HmiColor m_vLineColor = 0x00000000;
    HmiColor m_textColor = 0x00000000;
    std::int32_t m_nCurveNum = 2;
    std::array<std::string, kSeriesCount> m_dataName;
    std::array<HmiColor, kSeriesCount> m_dataColor = FilledWith(0x000000FF);
    std::array<float, kSeriesCount> m_addData{};
    std::array<std::string, kSeriesCount> m_valueVarName;
    std::uint8_t m_bEnableInd = 0;
    HmiColor m_indColor = 0x00FF0000;
    std::string m_strTimeVarName;

    // The preview: background, value labels, plot area, grid, random curves and time labels
    // under the first curve. Divisions that the settings would make by zero leave out what
    // they would place, at most 16 curves of at most 65535 points are drawn, and the work
    // follows what the target can show, however large the counts.
    void DrawPreview(CHmiDC& dc, const HmiRect& rect) const;

    // Where the preview's samples come from: numbers from 0 to 32767. Tests replace it.
    static std::function<int()>& RandomSample();
    // The local time that the time labels show: now. Tests replace it.
    static std::function<std::tm()>& LabelTime();

private:
    static std::array<HmiColor, kSeriesCount> FilledWith(HmiColor color)
    {
        std::array<HmiColor, kSeriesCount> colors;
        colors.fill(color);
        return colors;
    }
};

// The stems a family of per-curve records is made of: record n has the key and the label
// with n appended ("dataname1", "Var1").
struct CurveFamily {
    const char* key;
    const char* label;
    const char* description;
    const char* group;
};

// A text made once and kept for the life of the program, as the records keep pointers to it.
const char* LastingText(std::string text);

// Record n (from 1) of a family of variable names.
template <class Widget>
PropertySpec<Widget> CurveVariable(const CurveFamily& family, std::size_t n,
                                   std::array<std::string, kSeriesCount> CurveSettings::*member)
{
    return {.key = LastingText(family.key + std::to_string(n)),
            .label = LastingText(family.label + std::to_string(n)),
            .description = family.description,
            .itemType = PROP_VARIABLE,
            .xmlType = "string",
            .texts = member,
            .series = n - 1,
            .group = family.group};
}

// Record n (from 1) of the family of curve colours.
template <class Widget>
PropertySpec<Widget> CurveColor(const CurveFamily& family, std::size_t n)
{
    return {.key = LastingText(family.key + std::to_string(n)),
            .label = LastingText(family.label + std::to_string(n)),
            .description = family.description,
            .itemType = PROP_COLOR,
            .colors = &CurveSettings::m_dataColor,
            .series = n - 1,
            .read = FileNumber::Unsigned,
            .group = family.group};
}

// "adddata" n: kept, read and written, but shown nowhere.
template <class Widget>
PropertySpec<Widget> CurveAddData(std::size_t n)
{
    return {.key = LastingText("adddata" + std::to_string(n)),
            .label = "",
            .description = "",
            .xmlType = "float",
            .reals = &CurveSettings::m_addData,
            .series = n - 1,
            .declared = false};
}

// The records of the grid, margins and colours, the same in both curves.
template <class Widget>
void AppendCurveGridProperties(std::vector<PropertySpec<Widget>>& specs)
{
    using W = Widget;
    constexpr FileNumber kHex = FileNumber::Unsigned;
    specs.push_back({.key = "hlines", .label = "hlines", .description = "Set the number of vertical lines",
                     .xmlType = "ushort", .number = &W::m_nHLines, .read = kHex});
    specs.push_back({.key = "vlines", .label = "vlines", .description = "Set the number of horizontal lines",
                     .xmlType = "ushort", .number = &W::m_nVLines, .read = kHex});
    specs.push_back({.key = "framehspace", .label = "framehspace",
                     .description = "Set the horizontal space of draw area", .xmlType = "ushort",
                     .number = &W::m_nFrameHSpace, .read = kHex});
    specs.push_back({.key = "framevspace", .label = "framevspace",
                     .description = "Set the vertical space of draw area", .xmlType = "ushort",
                     .number = &W::m_nFrameVSpace, .read = kHex});
    specs.push_back({.key = "bkcolor", .label = "backcolor", .description = "Set the background color",
                     .itemType = PROP_COLOR, .color = &W::m_bkColor, .read = kHex});
    specs.push_back({.key = "framecolor", .label = "curve backcolor",
                     .description = "Set the background color of curve", .itemType = PROP_COLOR,
                     .color = &W::m_frameColor, .read = kHex});
    specs.push_back({.key = "hlinecolor", .label = "hlinecolor", .description = "Set the color of vertical lines",
                     .itemType = PROP_COLOR, .color = &W::m_hLineColor, .read = kHex});
    specs.push_back({.key = "vlinecolor", .label = "vlinecolor", .description = "Set the color of horizontal lines",
                     .itemType = PROP_COLOR, .color = &W::m_vLineColor, .read = kHex});
    specs.push_back({.key = "textcolor", .label = "textcolor", .description = "Set the color of text",
                     .itemType = PROP_COLOR, .color = &W::m_textColor, .read = kHex});
}

// The keys of the per-curve values in the order the file has them: for each curve its name,
// colour, added value and indicator variable.
std::vector<const char*> CurveSeriesSaveOrder();
