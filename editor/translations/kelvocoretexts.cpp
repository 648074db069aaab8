// kelvo-core-texts: keeps a translation file of the core's texts (kelvo-hmi-widgets_LANGUAGE.ts)
// in step with the built-in widget kinds. "update" adds the texts it lacks, unfinished, and
// drops those no kind shows any more; "check" lists the texts without a finished translation
// and fails while there are any, so that a new property gets translated.

#include "coretextlist.h"
#include "tsfile.h"

#include "catalogue/builtinwidgets.h"

#include <QFileInfo>

#include <cstdio>

namespace {

constexpr const char* kUsage = "usage: kelvo-core-texts update|check FILE.ts\n";

// The file's messages for the texts of the list, with the translations it already has.
TsFile Updated(const TsFile& old, const std::vector<CoreText>& texts)
{
    TsFile updated{old.language, {}};
    for (const CoreText& text : texts) {
        const QString context = QString::fromLatin1(text.context);
        const QString source = QString::fromStdString(text.text);
        const TsMessage* known = old.Find(context, source);
        updated.messages.push_back(known ? *known : TsMessage{context, source, {}, false});
    }
    return updated;
}

// "kelvo-hmi-widgets_zh_CN.ts" speaks "zh_CN".
QString LanguageOfFileName(const QString& path)
{
    return QFileInfo(path).completeBaseName().section(QLatin1Char('_'), 1);
}

} // namespace

int main(int argc, char* argv[])
{
    const QString command = argc == 3 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (command != QLatin1String("update") && command != QLatin1String("check")) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[2]);
    QString error;
    std::optional<TsFile> old = ReadTsFile(path, error);
    if (!old && (command == QLatin1String("check") || QFileInfo::exists(path))) {
        std::fprintf(stderr, "Cannot read %s: %s\n", qPrintable(path), qPrintable(error));
        return 1;
    }
    if (!old)
        old = TsFile{LanguageOfFileName(path), {}};

    RegisterBuiltinWidgetClasses();
    const TsFile updated = Updated(*old, ListCoreTexts());
    std::size_t unfinished = 0;
    for (const TsMessage& message : updated.messages)
        unfinished += message.finished ? 0 : 1;

    const QString name = QFileInfo(path).fileName();
    if (command == QLatin1String("update")) {
        if (!WriteTsFile(path, updated)) {
            std::fprintf(stderr, "Cannot write %s\n", qPrintable(path));
            return 1;
        }
        std::printf("%s: %zu texts, %zu without a translation\n", qPrintable(name), updated.messages.size(),
                    unfinished);
        return 0;
    }
    if (unfinished == 0) {
        std::printf("%s: all %zu texts are translated\n", qPrintable(name), updated.messages.size());
        return 0;
    }
    std::fprintf(stderr, "%s: %zu texts lack a translation; update the file with the target %s and translate them:\n",
                 qPrintable(name), unfinished, "kelvo-hmi-widgets_update");
    for (const TsMessage& message : updated.messages)
        if (!message.finished)
            std::fprintf(stderr, "    %s: %s\n", qPrintable(message.context), qPrintable(message.source));
    return 1;
}
