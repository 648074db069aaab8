// kelvo-hmi check: the project check, for people (text), scripts (JSON) and code-scanning tools
// (SARIF 2.1.0).

#include "commands.h"

#include "base/textcodec.h"
#include "workspace/projectcheck.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

// Below this many windows a check is over before a progress line would help.
constexpr std::size_t kProgressFromWindows = 20;

QString Text(const std::string& editorText)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(editorText));
}

const char* SeverityText(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

const char* PlaceKind(const Finding& finding)
{
    if (finding.widget.empty() && finding.place.kind == WidgetPlace::Kind::Widget)
        return "file";
    switch (finding.place.kind) {
    case WidgetPlace::Kind::Widget: return "widget";
    case WidgetPlace::Kind::Property: return "property";
    case WidgetPlace::Kind::Binding: return "binding";
    case WidgetPlace::Kind::Event: return "event";
    }
    return "widget";
}

// file:widget:property: error [id]: message
void PrintText(const std::vector<Finding>& findings)
{
    for (const Finding& finding : findings) {
        std::string where = finding.file;
        if (!finding.widget.empty() || finding.place.kind != WidgetPlace::Kind::Widget)
            where += ":" + finding.widget;
        if (const std::string place = finding.place.Text(); !place.empty())
            where += ":" + place;
        std::printf("%s: %s [%s]: %s\n", Gb2312ToUtf8OrKeep(where).c_str(), SeverityText(finding.rule->severity),
                    finding.rule->id, Gb2312ToUtf8OrKeep(finding.message).c_str());
    }
}

QJsonObject JsonFinding(const Finding& finding)
{
    return {{"rule", finding.rule->id},
            {"severity", SeverityText(finding.rule->severity)},
            {"file", Text(finding.file)},
            {"widget", Text(finding.widget)},
            {"place", QJsonObject{{"kind", PlaceKind(finding)}, {"name", Text(finding.place.name)}}},
            {"message", Text(finding.message)}};
}

QByteArray Json(const std::vector<Finding>& findings, const std::string& project)
{
    QJsonArray list;
    for (const Finding& finding : findings)
        list.append(JsonFinding(finding));
    return QJsonDocument(QJsonObject{{"project", QString::fromStdString(project)}, {"findings", list}}).toJson();
}

QByteArray Sarif(const std::vector<Finding>& findings, const std::string& project)
{
    QJsonArray rules;
    for (const CheckRule& rule : CheckRules())
        rules.append(QJsonObject{{"id", rule.id},
                                 {"shortDescription", QJsonObject{{"text", rule.summary}}},
                                 {"defaultConfiguration", QJsonObject{{"level", SeverityText(rule.severity)}}}});
    QJsonArray results;
    for (const Finding& finding : findings) {
        QJsonObject location{{"physicalLocation",
                              QJsonObject{{"artifactLocation",
                                           QJsonObject{{"uri", QString::fromUtf8(QUrl::toPercentEncoding(
                                                                   Text(finding.file), "/"))},
                                                       {"uriBaseId", "PROJECTROOT"}}}}}};
        if (!finding.widget.empty() || finding.place.kind != WidgetPlace::Kind::Widget) {
            const std::string name = finding.widget + (finding.place.name.empty() ? "" : "/" + finding.place.Text());
            location["logicalLocations"] = QJsonArray{QJsonObject{{"fullyQualifiedName", Text(name)},
                                                                  {"kind", PlaceKind(finding)}}};
        }
        results.append(QJsonObject{{"ruleId", finding.rule->id},
                                   {"ruleIndex", int(finding.rule - CheckRules().data())},
                                   {"level", SeverityText(finding.rule->severity)},
                                   {"message", QJsonObject{{"text", Text(finding.message)}}},
                                   {"locations", QJsonArray{location}}});
    }
    const QString root = QUrl::fromLocalFile(QDir(QString::fromStdString(project)).absolutePath() + "/").toString();
    const QJsonObject run{
        {"tool", QJsonObject{{"driver", QJsonObject{{"name", "kelvo-hmi"}, {"version", KELVO_VERSION}, {"rules", rules}}}}},
        {"originalUriBaseIds", QJsonObject{{"PROJECTROOT", QJsonObject{{"uri", root}}}}},
        {"results", results}};
    return QJsonDocument(QJsonObject{{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                                     {"version", "2.1.0"},
                                     {"runs", QJsonArray{run}}})
        .toJson();
}

int Usage()
{
    std::fprintf(stderr, "Usage: kelvo-hmi check PROJECT [--format text|json|sarif] [--strict]\n");
    return 2;
}

} // namespace

int CheckCommand(Arguments args)
{
    std::string_view format = "text";
    bool strict = false;
    for (std::size_t i = 1; i < args.size(); ++i) {
        const std::string_view option = args[i];
        if (option == "--strict")
            strict = true;
        else if (option == "--format" && i + 1 < args.size())
            format = args[++i];
        else
            return Usage();
    }
    if (format != "text" && format != "json" && format != "sarif")
        return Usage();
    const std::string project = args[0];
    std::error_code error;
    if (!std::filesystem::is_directory(project, error)) {
        std::fprintf(stderr, "kelvo-hmi: Cannot open the project folder %s\n", project.c_str());
        return 2;
    }
    const bool terminal = ::isatty(STDERR_FILENO) == 1;
    const std::vector<Finding> findings = CheckProject(project, [&](std::size_t done, std::size_t total) {
        if (!terminal || total < kProgressFromWindows)
            return;
        if (done < total)
            std::fprintf(stderr, "\rkelvo-hmi: checked %zu of %zu windows", done, total);
        else
            std::fputs("\r\033[K", stderr); // the line goes once the check is done
    });
    if (format == "text")
        PrintText(findings);
    else
        std::fputs((format == "json" ? Json(findings, project) : Sarif(findings, project)).constData(), stdout);
    bool errors = false, warnings = false;
    for (const Finding& finding : findings)
        (finding.rule->severity == Severity::Error ? errors : warnings) = true;
    return errors || (strict && warnings) ? 1 : 0;
}
