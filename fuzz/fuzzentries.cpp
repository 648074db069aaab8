#include "fuzzentries.h"

#include "base/numberparsers.h"
#include "dynamics/expressionevaluator.h"
#include "dynamics/expressiontext.h"
#include "catalogue/builtinwidgets.h"
#include "project/namelists.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "project/windowlist.h"
#include "project/xmldocument.h"
#include "widgets/hmiimagedc.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetfilereader.h"
#include "widgets/windowpainter.h"

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <string>
#include <unistd.h>

namespace {

std::string Text(const std::uint8_t* data, std::size_t size)
{
    return std::string(reinterpret_cast<const char*>(data), size);
}

// A folder of the process's own that stands in for the project, holding the file under test.
const std::string& ScratchProject()
{
    static const std::string folder = [] {
        char pattern[] = "/tmp/kelvo-fuzz-XXXXXX";
        const char* made = ::mkdtemp(pattern);
        return std::string(made ? made : "/tmp") + "/";
    }();
    return folder;
}

std::string WriteScratch(const char* name, const std::uint8_t* data, std::size_t size)
{
    const std::string path = ScratchProject() + name;
    if (std::FILE* file = std::fopen(path.c_str(), "wb")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    }
    return path;
}

} // namespace

void FuzzWindowFile(const std::uint8_t* data, std::size_t size)
{
    static const bool registered = [] {
        RegisterBuiltinWidgetClasses();
        return true;
    }();
    (void)registered;
    CTamloDoc document;
    ReadWindowText(Text(data, size), [&](HmiWidgetPtr widget) { document.AddWidget(std::move(widget), false); });
    // Drawn into a small image, as the canvas would show its corner: the work must follow the
    // image however large the widgets and their counts are (text is left out without fonts).
    CHmiImageDC image(64, 48);
    DrawWindow(document, image);
    // Whatever was read is either written so that it reads back the same, or refused.
    std::string text;
    if (!document.SerializeChecked(text))
        return;
    // Read back as a document reads, each widget at the head: the same list, in the same order.
    std::deque<std::string> reread;
    if (!ReadWindowText(text, [&](HmiWidgetPtr widget) { widget->Serialize(reread.emplace_front()); }))
        std::abort();
    std::deque<std::string> written;
    for (const HmiWidgetPtr& widget : document.Widgets())
        widget->Serialize(written.emplace_back());
    if (reread != written)
        std::abort();
}

void FuzzNumberParsers(const std::uint8_t* data, std::size_t size)
{
    const std::string text = Text(data, size);
    HmiParseLong(text);
    HmiParseULong(text);
    HmiDecimalToLong(text);
}

void FuzzProjectArgument(const std::uint8_t* data, std::size_t size)
{
    std::string argument = Text(data, size);
    if (const auto folder = TakeProjectArgument(argument))
        SetProjectPath(*folder);
    SetProjectPath("");
}

void FuzzWindowList(const std::uint8_t* data, std::size_t size)
{
    ReadWindowList(WriteScratch("hmiwindow.xml", data, size), [](const HmiWindowEntry&) {});
}

void FuzzRealtimeDatabase(const std::uint8_t* data, std::size_t size)
{
    CHmiVariableDatabase database;
    database.ReadRealtimeDatabase(WriteScratch("rtdb.xml", data, size));
    database.AllReferenceTexts();
}

void FuzzHmiDatabase(const std::uint8_t* data, std::size_t size)
{
    CHmiVariableDatabase database;
    database.ReadHmiDatabase(WriteScratch("hmidb.xml", data, size));
    database.AllReferenceTexts();
}

void FuzzHistoryNames(const std::uint8_t* data, std::size_t size)
{
    WriteScratch("history.xml", data, size);
    SetProjectPath(ScratchProject());
    std::string names[kMaxHistoryDbNames];
    int count = 0;
    GetHmiHistoryDbname(names, count);
    if (count < 0 || count > kMaxHistoryDbNames)
        std::abort();
}

void FuzzDataLogNames(const std::uint8_t* data, std::size_t size)
{
    WriteScratch("datalog.xml", data, size);
    SetProjectPath(ScratchProject());
    std::string names[kMaxDataLogNames];
    int count = 0;
    GetHmiLognameDesp(names, count);
    if (count < 0 || count > kMaxDataLogNames)
        std::abort();
}

void FuzzExpressionText(const std::uint8_t* data, std::size_t size)
{
    const std::string original = Text(data, size);
    FindFunctionCalls(original);
    const std::vector<TextToken> references = FindVariableReferences(original);
    if (references.empty())
        return;
    const TextToken& first = references.front();
    if (first.offset + first.length > original.size() || original[first.offset] != '$')
        std::abort();
    // Renaming a reference keeps every other token as it was: the new name stands exactly where
    // the old one did, or the old name stays where the new one would join what follows it.
    const auto count = [](const std::string& text, const std::string& reference) {
        std::size_t n = 0;
        for (const TextToken& token : FindVariableReferences(text))
            n += text.compare(token.offset, token.length, reference) == 0;
        return n;
    };
    const std::string from = original.substr(first.offset, first.length);
    const std::string to = "$kelvo_fuzz_name";
    if (from == to)
        return;
    std::string text = original;
    const std::size_t replaced = ReplaceVariableReference(text, from, to);
    if (replaced > count(original, from) || count(text, to) != replaced + count(original, to) ||
        count(text, from) != count(original, from) - replaced)
        std::abort();
}

void FuzzExpressionEvaluator(const std::uint8_t* data, std::size_t size)
{
    // A variable of each kind, so that every operator meets numbers and texts.
    struct Values : CExpressionValues {
        const ExpressionValue* FindValue(std::string_view reference) const override
        {
            return reference == "$plc.level" ? &level : reference == "$count" ? &count : reference == "$mode" ? &mode : nullptr;
        }
        ExpressionValue level = 42.5;
        ExpressionValue count = std::int64_t(-7);
        ExpressionValue mode = std::string("auto");
    } values;
    const std::string text = Text(data, size);
    const CCompiledExpression expression(text);
    const ExpressionResult first = expression.Evaluate(values);
    const ExpressionResult second = expression.Evaluate(values);
    // Errors point into the text, and evaluating twice gives the same.
    if ((first.error && first.error->position > text.size()) || first.error.has_value() != second.error.has_value() ||
        (!first.error && ExpressionValueText(first.value) != ExpressionValueText(second.value)))
        std::abort();
}
