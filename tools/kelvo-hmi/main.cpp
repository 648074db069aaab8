// kelvo-hmi: the editor's core on the command line, for people and scripts without a display.

#include <cstdio>
#include <cstring>
#include <functional>
#include <span>
#include <string_view>

namespace {

struct Command {
    std::string_view name;
    std::string_view usage;
    std::string_view summary;
    std::function<int(std::span<char*> args)> run; // args after the command name
};

const std::span<const Command> Commands();

void PrintUsage(std::FILE* out)
{
    std::fprintf(out, "Usage: kelvo-hmi COMMAND [ARGS]\n\nCommands:\n");
    for (const Command& command : Commands())
        std::fprintf(out, "  %-34.*s %.*s\n", int(command.usage.size()), command.usage.data(),
                     int(command.summary.size()), command.summary.data());
    std::fprintf(out, "\nOptions:\n  %-34s %s\n  %-34s %s\n", "--help", "show this help",
                 "--version", "show the version");
}

const std::span<const Command> Commands()
{
    static const Command commands[] = {
        {"help", "help", "show this help", [](std::span<char*>) {
             PrintUsage(stdout);
             return 0;
         }},
    };
    return commands;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2) {
        PrintUsage(stderr);
        return 2;
    }
    const std::string_view first = argv[1];
    if (first == "--help" || first == "-h") {
        PrintUsage(stdout);
        return 0;
    }
    if (first == "--version") {
        std::printf("kelvo-hmi %s\n", KELVO_VERSION);
        return 0;
    }
    for (const Command& command : Commands()) {
        if (command.name == first)
            return command.run(std::span<char*>(argv + 2, argv + argc));
    }
    std::fprintf(stderr, "kelvo-hmi: unknown command '%s'\n\n", argv[1]);
    PrintUsage(stderr);
    return 2;
}
