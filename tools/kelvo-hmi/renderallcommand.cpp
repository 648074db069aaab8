// kelvo-hmi render-all: every window of a project drawn into a PNG named after the window, by
// as many processes as there are processors. Processes rather than threads: the drawing code
// keeps caches that are not meant to be shared, and a window that crashes its renderer costs
// only the windows of that process.

#include "commands.h"
#include "drawing.h"

#include "base/textcodec.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"
#include "workspace/projectwindows.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int kProgressBarWidth = 30;

struct RenderJob {
    std::string window; // the window's name, for messages
    std::string in;
    std::string out;
    bool done = false;
};

// A file name for the window's image: its name, with what a file name cannot hold replaced, or
// the window file's name when that leaves nothing; a name taken already gets a number.
std::string ImageName(const ProjectWindowFile& window, std::set<std::string>& taken)
{
    std::string name = Gb2312ToUtf8OrKeep(window.name);
    std::replace(name.begin(), name.end(), '/', '_');
    if (name.empty() || name == "." || name == "..")
        name = fs::path(Gb2312ToUtf8OrKeep(window.file)).stem().string();
    std::string unique = name;
    for (int n = 2; !taken.insert(unique).second; ++n)
        unique = name + "-" + std::to_string(n);
    return unique + ".png";
}

// Renders every `stride`-th job from `first`, telling the parent one line per job: its index,
// then nothing when it was drawn or the reason when not. Lines are shorter than a pipe's atomic
// write, so the processes never mix their lines.
[[noreturn]] void RenderShare(std::vector<RenderJob>& jobs, std::size_t first, std::size_t stride, int report)
{
    PrepareOffscreenDrawing();
    int argc = 1;
    char name[] = "kelvo-hmi";
    char* argv[] = {name, nullptr};
    QGuiApplication application(argc, argv);
    for (std::size_t i = first; i < jobs.size(); i += stride) {
        CTamloDoc document;
        FileResult result = document.Load(jobs[i].in);
        if (result)
            result = DrawWindowToPng(document, jobs[i].out);
        std::string line = std::to_string(i) + "\t" + result.error.substr(0, 400);
        std::replace(line.begin(), line.end(), '\n', ' ');
        line += "\n";
        (void)!::write(report, line.data(), line.size());
    }
    std::fflush(nullptr);
    ::_exit(0);
}

void ShowProgress(std::size_t done, std::size_t total)
{
    const int filled = int(done * kProgressBarWidth / total);
    std::fprintf(stderr, "\r[%s%s] %zu/%zu windows", std::string(std::size_t(filled), '#').c_str(),
                 std::string(std::size_t(kProgressBarWidth - filled), '-').c_str(), done, total);
    if (done == total)
        std::fputs("\r\033[K", stderr);
}

int Usage()
{
    std::fprintf(stderr, "Usage: kelvo-hmi render-all PROJECT OUTDIR\n");
    return 2;
}

} // namespace

int RenderAllCommand(Arguments args)
{
    if (args.size() != 2)
        return Usage();
    std::error_code error;
    if (!fs::is_directory(args[0], error)) {
        std::fprintf(stderr, "kelvo-hmi: Cannot open the project folder %s\n", args[0]);
        return 2;
    }
    if (fs::create_directories(args[1], error); error) {
        std::fprintf(stderr, "kelvo-hmi: Cannot make the folder %s: %s\n", args[1], error.message().c_str());
        return 1;
    }
    SetProjectPath(args[0]);
    const ProjectWindows windows = FindProjectWindows(GetProjectPath());
    bool failed = false;
    for (const ListedWindowWithoutFile& window : windows.missing) {
        std::fprintf(stderr, "kelvo-hmi: window %s: its file \"%s\" does not exist\n",
                     Gb2312ToUtf8OrKeep(window.name).c_str(), Gb2312ToUtf8OrKeep(window.file).c_str());
        failed = true;
    }
    std::vector<RenderJob> jobs;
    std::set<std::string> taken;
    for (const ProjectWindowFile& window : windows.files)
        if (window.listed)
            jobs.push_back({Gb2312ToUtf8OrKeep(window.name), window.path, (fs::path(args[1]) / ImageName(window, taken)).string()});
    if (jobs.empty())
        return failed ? 1 : 0;

    int report[2];
    if (::pipe(report) != 0) {
        std::perror("kelvo-hmi: pipe");
        return 1;
    }
    const std::size_t processes = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, jobs.size());
    std::fflush(nullptr); // so that no child writes out the parent's buffers again
    std::vector<pid_t> children;
    for (std::size_t first = 0; first < processes; ++first) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(report[0]);
            RenderShare(jobs, first, processes, report[1]);
        }
        if (child > 0)
            children.push_back(child);
    }
    ::close(report[1]);

    const bool terminal = ::isatty(STDERR_FILENO) == 1;
    std::size_t done = 0;
    if (std::FILE* lines = ::fdopen(report[0], "r")) {
        char line[1024];
        while (std::fgets(line, sizeof line, lines)) {
            char* reason = nullptr;
            const std::size_t index = std::strtoul(line, &reason, 10);
            if (index >= jobs.size() || *reason != '\t')
                continue;
            jobs[index].done = true;
            if (reason[1] != '\n') {
                std::fprintf(stderr, "%skelvo-hmi: %s", terminal ? "\r\033[K" : "", reason + 1);
                failed = true;
            }
            if (terminal)
                ShowProgress(++done, jobs.size());
        }
        std::fclose(lines);
    }
    for (const pid_t child : children)
        ::waitpid(child, nullptr, 0);
    for (const RenderJob& job : jobs) {
        if (!job.done) {
            std::fprintf(stderr, "kelvo-hmi: window %s: its renderer ended before drawing it\n", job.window.c_str());
            failed = true;
        }
    }
    return failed ? 1 : 0;
}
