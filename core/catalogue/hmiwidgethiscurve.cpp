#include "hmiwidgethiscurve.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetHisCurve, CHmiWidget)

namespace {

constexpr const char* kCurveGroup = "History curve properties";
constexpr const char* kIndicatorGroup = "History curve indicator properties";

} // namespace

std::span<const PropertySpec<CHmiWidgetHisCurve>> CHmiWidgetHisCurve::Properties()
{
    using W = CHmiWidgetHisCurve;
    static const std::vector<PropertySpec<W>> properties = [] {
        constexpr FileNumber kHex = FileNumber::Unsigned;
        std::vector<PropertySpec<W>> specs = {
            {.key = "minvalue", .label = "minvalue", .description = "Set minimal value of Y coordinate",
             .xmlType = "float", .real = &W::m_fMinValue},
            {.key = "maxvalue", .label = "maxvalue", .description = "Set maximal value of Y coordinate",
             .xmlType = "float", .real = &W::m_fMaxValue},
            {.key = "xpoints", .label = "xpoints", .description = "Set the points of X coordinate", .bindable = 0,
             .xmlType = "ushort", .number = &W::m_nXPoints, .read = kHex},
        };
        AppendCurveGridProperties(specs);
        AppendTimeRangeProperties(specs, "curve");
        specs.push_back(HistoryNameProperty<W>());
        specs.push_back({.key = "redrawvar", .label = "redrawvar",
                         .description = "Set redraw variable,redraw curve when variable is 1",
                         .itemType = PROP_VARIABLE, .xmlType = "string", .text = &W::m_strRedrawVar});
        specs.push_back({.key = "curvenum", .label = "curvenum", .description = "Set curve number(<=16)",
                         .bindable = 0, .xmlType = "ushort", .number = &W::m_nCurveNum, .read = kHex});
        const CurveFamily names{"dataname", "variable", "Set the variable name", kCurveGroup};
        const CurveFamily colours{"datacolor", "color", "Set the curve color", kCurveGroup};
        for (std::size_t n = 1; n <= kSeriesCount; ++n) {
            specs.push_back(CurveVariable<W>(names, n, &CurveSettings::m_dataName));
            specs.push_back(CurveColor<W>(colours, n));
        }
        specs.push_back({.key = "enableind", .label = "Enable Indicator", .description = "If enable indicator",
                         .itemType = PROP_CHECKBOX, .xmlType = "uchar", .flag = &W::m_bEnableInd, .read = kHex,
                         .group = kIndicatorGroup});
        specs.push_back({.key = "indcolor", .label = "Indicator color", .description = "Set indicator color",
                         .itemType = PROP_COLOR, .color = &W::m_indColor, .read = kHex, .group = kIndicatorGroup});
        specs.push_back({.key = "timevarname", .label = "Time Variable",
                         .description = "Set the related time variable of indicator", .itemType = PROP_VARIABLE,
                         .xmlType = "string", .text = &W::m_strTimeVarName, .group = kIndicatorGroup});
        const CurveFamily values{"valuevarname", "valuevarname", "Set the related value variable of indicator",
                                 kIndicatorGroup};
        for (std::size_t n = 1; n <= kSeriesCount; ++n)
            specs.push_back(CurveVariable<W>(values, n, &CurveSettings::m_valueVarName));
        for (std::size_t n = 1; n <= kSeriesCount; ++n)
            specs.push_back(CurveAddData<W>(n));
        return specs;
    }();
    return properties;
}

std::span<const char* const> CHmiWidgetHisCurve::SaveOrder()
{
    static const std::vector<const char*> order = [] {
        std::vector<const char*> keys = {
            "historyname", "bkcolor", "framecolor", "textcolor", "hlinecolor", "vlinecolor", "minvalue",
            "maxvalue", "xpoints", "hlines", "vlines", "framehspace", "framevspace", "curvenum", "startyear",
            "startmonth", "startday", "starthour", "startmin", "startsec", "endyear", "endmonth", "endday",
            "endhour", "endmin", "endsec", "redrawvar", "timevarname", "enableind", "indcolor"};
        const std::vector<const char*> series = CurveSeriesSaveOrder();
        keys.insert(keys.end(), series.begin(), series.end());
        return keys;
    }();
    return order;
}

CHmiWidgetHisCurve::CHmiWidgetHisCurve()
{
    ShowHistoryNamesIn(*FindProperty("historyname"));
}

void CHmiWidgetHisCurve::AddRootItems()
{
    CreateNewRootItem(kCurveGroup, "History curve propertie")->Expand();
    CreateNewRootItem(kIndicatorGroup, "History curve propertie")->Expand();
}

void CHmiWidgetHisCurve::Draw(CHmiDC& dc)
{
    DrawPreview(dc, m_rect);
}
