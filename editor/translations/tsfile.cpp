#include "tsfile.h"

#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

const TsMessage* TsFile::Find(const QString& context, const QString& source) const
{
    const auto found = std::find_if(messages.begin(), messages.end(), [&](const TsMessage& message) {
        return message.context == context && message.source == source;
    });
    return found == messages.end() ? nullptr : &*found;
}

std::optional<TsFile> ReadTsFile(const QString& path, QString& error)
{
    QFile input(path);
    if (!input.open(QIODevice::ReadOnly)) {
        error = input.errorString();
        return std::nullopt;
    }
    TsFile file;
    QString context;
    QXmlStreamReader xml(&input);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("TS")) {
            file.language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("source")) {
            file.messages.push_back({context, xml.readElementText(), {}, false});
        } else if (name == QLatin1String("translation") && !file.messages.empty()) {
            TsMessage& message = file.messages.back();
            const auto type = xml.attributes().value(QLatin1String("type"));
            message.translation = xml.readElementText();
            message.finished = type.isEmpty() && !message.translation.isEmpty();
        }
    }
    if (xml.hasError()) {
        error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
        return std::nullopt;
    }
    return file;
}

bool WriteTsFile(const QString& path, const TsFile& file)
{
    QSaveFile output(path);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    QXmlStreamWriter xml(&output);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(4);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    xml.writeAttribute(QStringLiteral("language"), file.language);
    std::vector<QString> contexts;
    for (const TsMessage& message : file.messages)
        if (std::find(contexts.begin(), contexts.end(), message.context) == contexts.end())
            contexts.push_back(message.context);
    for (const QString& context : contexts) {
        xml.writeStartElement(QStringLiteral("context"));
        xml.writeTextElement(QStringLiteral("name"), context);
        for (const TsMessage& message : file.messages) {
            if (message.context != context)
                continue;
            xml.writeStartElement(QStringLiteral("message"));
            xml.writeTextElement(QStringLiteral("source"), message.source);
            xml.writeStartElement(QStringLiteral("translation"));
            if (!message.finished)
                xml.writeAttribute(QStringLiteral("type"), QStringLiteral("unfinished"));
            xml.writeCharacters(message.translation);
            xml.writeEndElement();
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return !xml.hasError() && output.commit();
}
