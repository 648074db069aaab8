// kelvo-hmi rename-var: renames a variable reference in every window of a project.

#include "commands.h"

#include "base/textcodec.h"
#include "dynamics/expressiontext.h"
#include "workspace/variablerename.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

int Usage()
{
    std::fprintf(stderr, "Usage: kelvo-hmi rename-var PROJECT OLD NEW [--dry-run] [--declarations]\n");
    return 2;
}

// The change as the lines that differ, "-" before and "+" after; a rename keeps the line count.
void PrintChange(const ReferenceChange& change)
{
    std::printf("%s:%s:%s: %zu %s\n", Gb2312ToUtf8OrKeep(change.use.file).c_str(),
                Gb2312ToUtf8OrKeep(change.use.widget).c_str(), change.use.place.Text().c_str(), change.use.count,
                change.use.count == 1 ? "reference" : "references");
    std::string_view before = change.before, after = change.after;
    while (!before.empty() || !after.empty()) {
        const std::string_view lineBefore = before.substr(0, before.find('\n'));
        const std::string_view lineAfter = after.substr(0, after.find('\n'));
        if (lineBefore != lineAfter)
            std::printf("  - %s\n  + %s\n", Gb2312ToUtf8OrKeep(lineBefore).c_str(), Gb2312ToUtf8OrKeep(lineAfter).c_str());
        before.remove_prefix(std::min(before.size(), lineBefore.size() + 1));
        after.remove_prefix(std::min(after.size(), lineAfter.size() + 1));
    }
}

} // namespace

int RenameVarCommand(Arguments args)
{
    bool dryRun = false, declarations = false;
    for (const std::string_view option : args.subspan(3)) {
        if (option == "--dry-run")
            dryRun = true;
        else if (option == "--declarations")
            declarations = true;
        else
            return Usage();
    }
    const std::string from = Utf8ToGb2312OrKeep(args[1]);
    const std::string to = Utf8ToGb2312OrKeep(args[2]);
    if (!IsVariableReference(from) || !IsVariableReference(to)) {
        std::fprintf(stderr, "kelvo-hmi: OLD and NEW must be variable references such as $plc.level or $setpoint\n");
        return 2;
    }
    std::error_code error;
    if (!std::filesystem::is_directory(args[0], error)) {
        std::fprintf(stderr, "kelvo-hmi: Cannot open the project folder %s\n", args[0]);
        return 2;
    }
    ProjectRename plan;
    if (const FileResult planned = PlanProjectRename(args[0], from, to, declarations, plan); !planned) {
        std::fprintf(stderr, "kelvo-hmi: nothing renamed: %s\n", planned.error.c_str());
        return 1;
    }
    for (const ReferenceChange& change : plan.changes)
        PrintChange(change);
    if (dryRun) {
        for (const std::string& file : plan.names)
            std::printf("would write: %s\n", Gb2312ToUtf8OrKeep(file).c_str());
        return 0;
    }
    std::vector<std::string> written;
    const FileResult applied = ApplyProjectRename(plan, written);
    for (const std::string& file : written)
        std::printf("written: %s\n", Gb2312ToUtf8OrKeep(file).c_str());
    if (!applied) {
        std::fprintf(stderr, "kelvo-hmi: %s\n", applied.error.c_str());
        return 1;
    }
    return 0;
}
