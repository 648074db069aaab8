#include "projectcheck.h"

#include "projectwindows.h"

#include "base/textcodec.h"
#include "catalogue/builtinwidgets.h"
#include "dynamics/dynamictype.h"
#include "dynamics/expressiontext.h"
#include "project/projectpath.h"
#include "project/scriptfunctions.h"
#include "project/variabledatabase.h"
#include "project/xmldocument.h"
#include "widgets/projectnameuse.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

enum RuleIndex {
    kUnknownVariable,
    kUnknownFunction,
    kMissingPicture,
    kUnknownHistoryDatabase,
    kUnknownDataLog,
    kUnknownClass,
    kBlankWidgetName,
    kDuplicateWidgetName,
    kWidgetOutsideWindow,
    kNotGb2312,
    // The rules above concern what a window holds, those below the files.
    kMissingWindowFile,
    kUnlistedWindowFile,
    kUnreadableFile,
};

constexpr CheckRule kRules[] = {
    {"unknown-variable", Severity::Error, "A variable reference names no variable of rtdb.xml or hmidb.xml"},
    {"unknown-function", Severity::Warning, "A script calls a function that hmifuncs.xml does not list"},
    {"missing-picture", Severity::Error, "A picture file does not exist"},
    {"unknown-history-database", Severity::Error, "A history database is not in history.xml"},
    {"unknown-data-log", Severity::Error, "A data log is not in datalog.xml"},
    {"unknown-class", Severity::Error, "A widget's class is neither built in nor from a loaded widget library"},
    {"blank-widget-name", Severity::Error, "A widget has no name"},
    {"duplicate-widget-name", Severity::Error, "Two widgets of a window have the same name"},
    {"widget-outside-window", Severity::Warning, "A widget reaches outside its window"},
    {"not-gb2312", Severity::Warning, "A text holds characters that GB2312 cannot hold"},
    {"missing-window-file", Severity::Error, "A window of hmiwindow.xml has no window file"},
    {"unlisted-window-file", Severity::Warning, "A window file of the project folder is not in hmiwindow.xml"},
    {"unreadable-file", Severity::Error, "A project or window file cannot be read"},
};

std::string Quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

std::string RectText(const HmiRect& r)
{
    return "(" + std::to_string(r.left) + ", " + std::to_string(r.top) + ", " + std::to_string(r.right) + ", " +
           std::to_string(r.bottom) + ")";
}

bool IsBlank(std::string_view name)
{
    return name.find_first_not_of(" \t") == std::string_view::npos;
}

// Colours, choices and check boxes hold numbers, so no text of theirs needs a look.
bool HoldsNumber(PropItemType itemType)
{
    return itemType == PROP_COLOR || itemType == PROP_COMBO || itemType == PROP_CHECKBOX;
}

bool HoldsForeignCharacters(std::string_view text)
{
    return text.find(kForeignMark) != std::string_view::npos;
}

// Collects the findings of one window.
class WindowCheck {
public:
    WindowCheck(const std::string& file, const CProjectIndex& index) : m_file(file), m_index(index) {}

    void CheckWidget(const CHmiWidget& widget, const std::string& pictureFolder)
    {
        m_widget = &widget;
        CheckClassAndName();
        ForEachVariableText(widget, [&](const WidgetPlace& place, const std::string& text) { CheckText(place, text); });
        for (const std::unique_ptr<CHmiWidgetProp>& prop : widget.GetProperties()) {
            std::string value;
            if (HoldsNumber(prop->m_nItemType) || !widget.GetWidgetPropValue(*prop, value))
                continue;
            const WidgetPlace place{WidgetPlace::Kind::Property, prop->m_strName};
            if (prop->m_nItemType == PROP_FILE && !value.empty() && !m_index.HasFile(pictureFolder + value))
                Add(kMissingPicture, place, "the picture " + Quoted(value) + " does not exist");
            CheckCharacters(place, value);
        }
        if (const auto* user = dynamic_cast<const CProjectNameUser*>(&widget))
            for (const ProjectNameUse& use : user->ProjectNamesUsed())
                CheckProjectName(use);
    }

    void CheckPosition(const CHmiWidget& widget, const HmiRect& window)
    {
        m_widget = &widget;
        const HmiRect r = widget.GetWidgetRect().Normalized();
        if (r.left < window.left || r.top < window.top || r.right > window.right || r.bottom > window.bottom)
            Add(kWidgetOutsideWindow, {}, "the widget " + RectText(r) + " reaches outside the window " + RectText(window));
    }

    std::vector<Finding> Take() { return std::move(m_findings); }

private:
    void Add(RuleIndex rule, WidgetPlace place, std::string message)
    {
        m_findings.push_back({&kRules[rule], m_file, m_widget->GetWidgetName(), std::move(place), std::move(message)});
    }

    void CheckClassAndName()
    {
        const std::string& name = m_widget->GetWidgetName();
        const std::string classKey = m_widget->GetWidgetClassName();
        if (!IsBuiltinWidgetClass(classKey) && !CHmiWidget::FindWidgetClassEntry(classKey))
            Add(kUnknownClass, {}, "the class " + Quoted(classKey) + " is neither built in nor from a loaded widget library");
        if (IsBlank(name))
            Add(kBlankWidgetName, {}, "the " + Quoted(classKey) + " widget has no name");
        else if (!m_names.insert(name).second)
            Add(kDuplicateWidgetName, {}, "another widget of the window is named " + Quoted(name));
        CheckCharacters({}, name);
    }

    // A binding gives its runtime expression and the texts it is made of: a name missing from
    // both is told once.
    void CheckText(const WidgetPlace& place, const std::string& text)
    {
        for (const TextToken& token : FindVariableReferences(text)) {
            const std::string_view reference = std::string_view(text).substr(token.offset, token.length);
            if (!m_index.HasVariable(reference))
                AddOnce(kUnknownVariable, place, Quoted(reference) + " is not a variable of the project");
        }
        if (place.kind == WidgetPlace::Kind::Event || IsScriptBinding(place)) {
            for (const TextToken& token : FindFunctionCalls(text)) {
                const std::string_view name = std::string_view(text).substr(token.offset, token.length);
                if (!m_index.HasFunction(name))
                    AddOnce(kUnknownFunction, place, Quoted(name) + " is not a function of hmifuncs.xml");
            }
        }
        CheckCharacters(place, text);
    }

    bool IsScriptBinding(const WidgetPlace& place) const
    {
        if (place.kind != WidgetPlace::Kind::Binding)
            return false;
        const CHmiWidgetProp* prop = m_widget->FindProperty(place.name);
        return prop && prop->GetDynamicType() && std::string_view(prop->GetDynamicType()->GetTypeName()) == "script";
    }

    void CheckCharacters(const WidgetPlace& place, std::string_view text)
    {
        if (HoldsForeignCharacters(text))
            AddOnce(kNotGb2312, place,
                    "the text holds characters that GB2312 cannot hold; the window file carries them as character "
                    "references");
    }

    void CheckProjectName(const ProjectNameUse& use)
    {
        if (use.listed)
            return;
        const bool history = use.kind == ProjectNameUse::Kind::HistoryDatabase;
        Add(history ? kUnknownHistoryDatabase : kUnknownDataLog, {WidgetPlace::Kind::Property, use.property},
            std::string(history ? "the history database " : "the data log ") + Quoted(use.name) + " is not in " +
                (history ? "history.xml" : "datalog.xml"));
    }

    void AddOnce(RuleIndex rule, const WidgetPlace& place, std::string message)
    {
        const auto same = [&](const Finding& f) {
            return f.rule == &kRules[rule] && f.widget == m_widget->GetWidgetName() && f.place == place &&
                   f.message == message;
        };
        if (std::none_of(m_findings.begin(), m_findings.end(), same))
            Add(rule, place, std::move(message));
    }

    const std::string& m_file;
    const CProjectIndex& m_index;
    const CHmiWidget* m_widget = nullptr;
    std::unordered_set<std::string> m_names;
    std::vector<Finding> m_findings;
};

Finding FileFinding(RuleIndex rule, std::string file, std::string message)
{
    return {&kRules[rule], std::move(file), {}, {}, std::move(message)};
}

// The project files that are there but cannot be read as what they are.
void CheckProjectFiles(const std::string& folder, std::vector<Finding>& findings)
{
    for (const ProjectFileKind& kind : ProjectFileKinds()) {
        const std::string path = folder + kind.name;
        std::error_code error;
        if (!std::filesystem::exists(path, error))
            continue;
        const XmlDocument document = XmlDocument::Load(path);
        const XmlElement root = document.Root();
        if (!document.IsValid())
            findings.push_back(FileFinding(kUnreadableFile, kind.name, document.Error()));
        else if (!root.Is(kind.root) && !(kind.olderRoot && root.Is(kind.olderRoot)))
            findings.push_back(FileFinding(kUnreadableFile, kind.name,
                                           "the root element is <" + root.Name() + ">, not <" + kind.root + ">"));
    }
}

} // namespace

std::span<const CheckRule> CheckRules()
{
    return kRules;
}

CProjectIndex::CProjectIndex(const std::string& folder)
{
    CHmiVariableDatabase database;
    database.LoadProject(folder);
    for (std::string& text : database.AllReferenceTexts())
        m_variables.insert(std::move(text));
    const std::string functions = FindScriptFunctionsFile({folder});
    if (functions.empty())
        return;
    m_functions.emplace();
    for (ScriptFunction& function : LoadScriptFunctions(functions))
        m_functions->insert(std::move(function.name));
}

bool CProjectIndex::HasVariable(std::string_view reference) const
{
    return m_variables.contains(std::string(reference));
}

bool CProjectIndex::HasFunction(std::string_view name) const
{
    return !m_functions || m_functions->contains(std::string(name));
}

bool CProjectIndex::HasFile(const std::string& path) const
{
    const auto [known, added] = m_files.try_emplace(path, false);
    if (added) {
        std::error_code error;
        known->second = std::filesystem::is_regular_file(Gb2312ToUtf8OrKeep(path), error);
    }
    return known->second;
}

std::vector<Finding> CheckWindow(const CTamloDoc& document, const std::string& file, const CProjectIndex& index)
{
    WindowCheck check(file, index);
    const CHmiWidget* window = document.FindWindowWidget();
    const std::string pictureFolder = document.GetPictureFolder();
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (document.IsWidgetDeleted(widget.get()))
            continue;
        check.CheckWidget(*widget, pictureFolder);
        if (window && widget.get() != window)
            check.CheckPosition(*widget, window->GetWidgetRect().Normalized());
    }
    return check.Take();
}

bool IsWindowContentFinding(const Finding& finding)
{
    return finding.rule < &kRules[kMissingWindowFile];
}

std::vector<Finding> CheckProject(const std::string& folder,
                                  const std::function<void(std::size_t done, std::size_t total)>& progress)
{
    SetProjectPath(folder);
    const std::string& project = GetProjectPath();
    std::vector<Finding> findings;
    CheckProjectFiles(project, findings);
    const ProjectWindows windows = FindProjectWindows(project);
    for (const ListedWindowWithoutFile& window : windows.missing)
        findings.push_back(FileFinding(kMissingWindowFile, "hmiwindow.xml",
                                       "the window " + Quoted(window.name) + " names the window file " +
                                           Quoted(window.file) + ", which does not exist"));
    const CProjectIndex index(project);
    std::size_t done = 0;
    for (const ProjectWindowFile& window : windows.files) {
        if (!window.listed)
            findings.push_back(FileFinding(kUnlistedWindowFile, window.file, "the window file is not in hmiwindow.xml"));
        CTamloDoc document;
        if (const FileResult loaded = document.Load(window.path); !loaded) {
            findings.push_back(FileFinding(kUnreadableFile, window.file, loaded.error));
        } else {
            std::vector<Finding> found = CheckWindow(document, window.file, index);
            std::move(found.begin(), found.end(), std::back_inserter(findings));
        }
        if (progress)
            progress(++done, windows.files.size());
    }
    return findings;
}
