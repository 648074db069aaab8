#include "hmiwidgetcurve.h"

#include "project/namelists.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetCurve, CHmiWidget)

namespace {

constexpr const char* kCurveGroup = "Curve properties";
constexpr const char* kIndicatorGroup = "Curve indicator properties";
constexpr const char* kDataSourceChoices[] = {"In Memory", "File"};
constexpr const char* kFilePathChoices[] = {"Internal Flash", "CF card"};

} // namespace

std::span<const PropertySpec<CHmiWidgetCurve>> CHmiWidgetCurve::Properties()
{
    using W = CHmiWidgetCurve;
    static const std::vector<PropertySpec<W>> properties = [] {
        constexpr FileNumber kHex = FileNumber::Unsigned;
        std::vector<PropertySpec<W>> specs = {
            {.key = "minvalue", .label = "minimum value", .description = "Set minimal value of Y coordinate",
             .xmlType = "float", .real = &W::m_fMinValue},
            {.key = "maxvalue", .label = "maximal value", .description = "Set maximal value of Y coordinate",
             .xmlType = "float", .real = &W::m_fMaxValue},
            {.key = "xmaxpoints", .label = "xmaxpoints", .description = "Set the max points of X coordinate",
             .bindable = 0, .xmlType = "ushort", .number = &W::m_nXMaxPoints, .read = kHex},
            {.key = "xpoints", .label = "xpoints", .description = "Set the points of X coordinate",
             .xmlType = "ushort", .number = &W::m_nXPoints, .read = kHex},
        };
        AppendCurveGridProperties(specs);
        specs.insert(specs.end(), {
            {.key = "curvenum", .label = "curvenum", .description = "Set the number of curves(<=16)", .bindable = 0,
             .xmlType = "ushort", .number = &W::m_nCurveNum, .read = kHex},
            {.key = "datasource", .label = "datasource", .description = "Set the data source",
             .itemType = PROP_COMBO, .bindable = 0, .xmlType = "uchar", .flag = &W::m_nDataSource, .read = kHex,
             .choices = kDataSourceChoices},
            {.key = "lognamenum", .label = "logname", .description = "Set the log name of In memory data source",
             .itemType = PROP_COMBO, .bindable = 0, .xmlType = "ushort", .number = &W::m_nLogNameNum,
             .textLength = TextLength::None,
             .writeText = [](const W& w) { return std::to_string(w.LogIndex()); },
             .readText = [](W& w, std::string_view value) {
                 w.ReadLog(std::int32_t(HmiParseULong(value)), w.m_fileLogName);
             }},
            {.key = "filepath", .label = "file path", .description = "Set the file path of file data source",
             .itemType = PROP_COMBO, .xmlType = "char", .flag = &W::m_nFilePath, .read = kHex,
             .choices = kFilePathChoices},
            {.key = "filename", .label = "file name", .description = "Set file name", .xmlType = "string",
             .text = &W::m_strFileName},
            {.key = "startpoint", .label = "Start point", .description = "Set the start point of file",
             .number = &W::m_nStartPoint, .read = kHex},
        });
        const CurveFamily names{"dataname", "Var", "Set the curve variable name", kCurveGroup};
        const CurveFamily colours{"datacolor", "Color", "Set the curve color", kCurveGroup};
        for (std::size_t n = 1; n <= kSeriesCount; ++n) {
            specs.push_back(CurveVariable<W>(names, n, &CurveSettings::m_dataName));
            specs.push_back(CurveColor<W>(colours, n));
        }
        specs.push_back({.key = "enableind", .label = "Enable indicator", .description = "If enable indicator",
                         .itemType = PROP_CHECKBOX, .xmlType = "uchar", .flag = &W::m_bEnableInd, .read = kHex,
                         .group = kIndicatorGroup});
        specs.push_back({.key = "indcolor", .label = "Indicator color", .description = "Set indicator color",
                         .itemType = PROP_COLOR, .color = &W::m_indColor, .read = kHex, .group = kIndicatorGroup});
        specs.push_back({.key = "timevarname", .label = "Time variable",
                         .description = "Set Variable of indicator time", .itemType = PROP_VARIABLE,
                         .xmlType = "string", .text = &W::m_strTimeVarName, .group = kIndicatorGroup});
        const CurveFamily values{"valuevarname", "Value", "Set variable of indicator variable", kIndicatorGroup};
        for (std::size_t n = 1; n <= kSeriesCount; ++n)
            specs.push_back(CurveVariable<W>(values, n, &CurveSettings::m_valueVarName));
        for (std::size_t n = 1; n <= kSeriesCount; ++n)
            specs.push_back(CurveAddData<W>(n));
        specs.push_back({.key = "hmaxlines", .label = "", .description = "", .xmlType = "ushort",
                         .number = &W::m_nHMaxLines, .read = kHex, .declared = false});
        // The log's name goes to the file beside its index.
        specs.push_back({.key = "logname", .label = "", .description = "", .xmlType = "string",
                         .writeText = [](const W& w) { return w.m_logNames.NameAt(w.m_nLogNameNum); },
                         .readText = [](W& w, std::string_view name) { w.ReadLogName(std::string(name)); },
                         .declared = false});
        return specs;
    }();
    return properties;
}

std::span<const char* const> CHmiWidgetCurve::SaveOrder()
{
    static const std::vector<const char*> order = [] {
        std::vector<const char*> keys = {
            "bkcolor", "framecolor", "textcolor", "hlinecolor", "vlinecolor", "xmaxpoints", "xpoints", "hmaxlines",
            "hlines", "vlines", "framehspace", "framevspace", "lognamenum", "logname", "curvenum", "minvalue",
            "maxvalue", "datasource", "filepath", "filename", "startpoint", "timevarname", "enableind", "indcolor"};
        const std::vector<const char*> series = CurveSeriesSaveOrder();
        keys.insert(keys.end(), series.begin(), series.end());
        return keys;
    }();
    return order;
}

CHmiWidgetCurve::CHmiWidgetCurve() : m_logNames(GetHmiLognameDesp, kMaxDataLogNames, "data log")
{
    m_logNames.ShowIn(*FindProperty("lognamenum"));
}

void CHmiWidgetCurve::CopyExtraState(CHmiWidgetCurve& copy) const
{
    copy.m_logNames.KeepAsIn(m_logNames);
    copy.m_nKeptLogIndex = m_nKeptLogIndex;
}

std::int32_t CHmiWidgetCurve::LogIndex() const
{
    return m_logNames.IsKept(m_nLogNameNum) ? m_nKeptLogIndex : m_nLogNameNum;
}

std::vector<ProjectNameUse> CHmiWidgetCurve::ProjectNamesUsed() const
{
    return {{ProjectNameUse::Kind::DataLog, "lognamenum", m_logNames.NameAt(m_nLogNameNum),
             !m_logNames.IsKept(m_nLogNameNum)}};
}

// The file names the data log twice, by its index (lognamenum) and by its name (logname), and a
// load and save must hand the panel both as they were. So the pair is kept as the file has it
// unless the project lists that very name at that very index: when datalog.xml lost, renamed or
// reordered a log, neither the name alone nor the index alone says which log the user meant.
// The user sees the kept pair marked in the combo and picks a listed log to replace it. A file
// without a logname is taken by its index, as the editor always did.
void CHmiWidgetCurve::ReadLog(std::int32_t index, const std::optional<std::string>& name)
{
    if (m_logNames.Offers(index, name)) {
        m_nLogNameNum = index;
        return;
    }
    m_nKeptLogIndex = index;
    m_nLogNameNum = m_logNames.Keep(name.value_or(std::string()), "index " + std::to_string(index));
}

// Files have the name after the index, so the notice goes out with the name.
void CHmiWidgetCurve::ReadLogName(std::string name)
{
    m_fileLogName = std::move(name);
    ReadLog(LogIndex(), m_fileLogName);
    if (m_logNames.IsKept(m_nLogNameNum))
        m_logNames.ReportKept(kKindName, GetWidgetName());
}

void CHmiWidgetCurve::AddRootItems()
{
    CreateNewRootItem(kCurveGroup, "Curve properties")->Expand();
    CreateNewRootItem(kIndicatorGroup, "Curve indicator properties")->Expand();
}

void CHmiWidgetCurve::Draw(CHmiDC& dc)
{
    DrawPreview(dc, m_rect);
}
