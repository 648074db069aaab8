#pragma once

#include <QString>

#include <optional>
#include <vector>

// The messages of a Qt translation file (.ts), as far as translating a list of texts needs them.
struct TsMessage {
    QString context;
    QString source;
    QString translation;
    bool finished = false; // translated, and not marked unfinished
};

struct TsFile {
    QString language; // "zh_CN"
    std::vector<TsMessage> messages;

    // The message of a source text in a context; null when the file has none.
    const TsMessage* Find(const QString& context, const QString& source) const;
};

// Reads a .ts file; the error says why when the file cannot be read or is not one.
std::optional<TsFile> ReadTsFile(const QString& path, QString& error);
// Writes the messages grouped by context, the contexts in the order they first appear.
bool WriteTsFile(const QString& path, const TsFile& file);
