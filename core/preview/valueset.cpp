#include "valueset.h"

#include "base/logcategories.h"
#include "base/textcodec.h"
#include "previewvalues.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>
#include <vector>

namespace {

QString Utf8(const std::string& text)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(text));
}

QJsonValue Json(const ExpressionValue& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return qint64(*whole);
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    return Utf8(std::get<std::string>(value));
}

// What a file gives, read whole before any of it is applied.
struct ValueSet {
    std::vector<std::pair<std::size_t, ExpressionValue>> values;
    std::vector<std::pair<std::size_t, CValueGenerator>> generators;
    std::vector<std::string> notices;
};

ValueSet Read(const CPreviewValues& values, const QJsonObject& root)
{
    ValueSet set;
    const auto variableOf = [&](const QString& key) {
        const std::string reference = Utf8ToGb2312OrKeep(key.toStdString());
        const std::optional<std::size_t> variable = values.Find(reference);
        if (!variable)
            set.notices.push_back("the project declares no variable " + key.toStdString() + "; left out");
        return variable;
    };
    const QJsonObject given = root.value("values").toObject();
    for (auto entry = given.begin(); entry != given.end(); ++entry) {
        const std::optional<std::size_t> variable = variableOf(entry.key());
        if (!variable)
            continue;
        if (entry.value().isDouble())
            set.values.emplace_back(*variable, entry.value().toDouble());
        else if (entry.value().isString())
            set.values.emplace_back(*variable, Utf8ToGb2312OrKeep(entry.value().toString().toStdString()));
        else
            set.notices.push_back("the value of " + entry.key().toStdString() + " is neither a number nor a text; left out");
    }
    const QJsonObject generators = root.value("generators").toObject();
    for (auto entry = generators.begin(); entry != generators.end(); ++entry) {
        const std::optional<std::size_t> variable = variableOf(entry.key());
        if (!variable)
            continue;
        const QJsonObject fields = entry.value().toObject();
        const std::string kindName = fields.value("kind").toString().toStdString();
        const std::optional<CValueGenerator::Kind> kind = CValueGenerator::KindNamed(kindName);
        if (!kind) {
            set.notices.push_back("the generator of " + entry.key().toStdString() + " is of no known kind ('" +
                                  kindName + "'); left out");
            continue;
        }
        CValueGenerator generator;
        generator.kind = *kind;
        generator.low = fields.value("low").toDouble(generator.low);
        generator.high = fields.value("high").toDouble(generator.high);
        generator.periodMs = fields.value("periodMs").toInteger(generator.periodMs);
        set.generators.emplace_back(*variable, generator);
    }
    return set;
}

} // namespace

FileResult SaveValueSet(const CPreviewValues& values, const std::string& path)
{
    QJsonObject given;
    QJsonObject generators;
    for (const PreviewVariable& variable : values.Variables()) {
        if (variable.value != variable.init)
            given.insert(Utf8(variable.reference), Json(variable.value));
        if (const std::optional<CValueGenerator>& generator = variable.generator)
            generators.insert(Utf8(variable.reference), QJsonObject{{"kind", CValueGenerator::KindName(generator->kind)},
                                                                    {"low", generator->low},
                                                                    {"high", generator->high},
                                                                    {"periodMs", qint64(generator->periodMs)}});
    }
    const QByteArray text = QJsonDocument(QJsonObject{{"values", given}, {"generators", generators}}).toJson();
    return WriteFileAtomically(path, std::string_view(text.constData(), std::size_t(text.size())));
}

FileResult LoadValueSet(CPreviewValues& values, const std::string& path)
{
    std::string bytes;
    if (FileResult read = ReadWholeFile(path, bytes); !read)
        return read;
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())), &error);
    if (error.error != QJsonParseError::NoError)
        return FileResult::Failure("Cannot read the value set " + path + ": " + error.errorString().toStdString() +
                                   " at byte " + std::to_string(error.offset));
    if (!document.isObject())
        return FileResult::Failure("Cannot read the value set " + path + ": it is no JSON object");
    ValueSet set = Read(values, document.object());
    values.Reset();
    for (const auto& [variable, value] : set.values)
        if (!values.SetValue(variable, value))
            set.notices.push_back(ExpressionValueText(value) + " is no value for " +
                                  values.Variables()[variable].reference + "; left out");
    for (const auto& [variable, generator] : set.generators)
        values.SetGenerator(variable, generator);
    qCDebug(lcPreview, "read the value set %s: %zu values, %zu generators, %zu notes", path.c_str(),
            set.values.size(), set.generators.size(), set.notices.size());
    FileResult result;
    result.notices = std::move(set.notices);
    return result;
}
