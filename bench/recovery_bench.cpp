// Measures what recovery copies cost a running editor: the regular look at the windows when
// nothing changed, bringing a copy up to date after a change, and restoring a left window at the
// next start, for windows of 1,000 and 10,000 widgets. Prints figures only.

#include "editor/app/childframe.h"
#include "editor/app/editorprompts.h"
#include "editor/app/mainframe.h"
#include "editor/app/recoverykeeper.h"
#include "editor/app/recoveryoffer.h"
#include "editor/model/editorsession.h"
#include "editor/recovery/recoverystore.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int kRepetitions = 7;
constexpr int kRestoreRepetitions = 3;
const char* const kKinds[] = {"rectangle", "text", "button", "numinput", "ellipse", "line"};

// Median wall time in milliseconds; prepare runs untimed before each run.
double Median(int repetitions, const std::function<void()>& prepare, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

std::unique_ptr<CTamloDoc> Document(int widgetCount)
{
    auto document = std::make_unique<CTamloDoc>();
    document->OnNewDocument();
    for (int i = 0; i < widgetCount; ++i) {
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(kKinds[i % std::size(kKinds)])->CreateObject();
        const int x = (i * 37) % 1000;
        const int y = (i * 53) % 700;
        widget->SetWidgetRect({x, y, x + 40, y + 20});
        document->AddWidget(std::move(widget), true);
    }
    return document;
}

struct RestoringPrompts : CEditorPrompts {
    RecoveryAnswer AskRestoreWindows(QWidget*, const QList<RecoveryCopy>&) override { return RecoveryAnswer::Restore; }
};

std::unique_ptr<CRecoverySession> NewSession(const QString& root)
{
    FileResult result;
    auto session = CRecoverySession::Create(root, result);
    if (!session)
        qFatal("%s", result.error.c_str());
    return session;
}

void Measure(int widgetCount, const QString& root)
{
    QTemporaryDir profile;
    QSettings settings(profile.filePath(QStringLiteral("profile.ini")), QSettings::IniFormat);
    RestoringPrompts prompts;
    CEditorSession session;
    CMainFrame frame(prompts, settings, session);
    CRecoveryKeeper keeper(frame, NewSession(root), 1h);
    CChildFrame* child = frame.AddChild(Document(widgetCount));
    const std::string content = child->Document().Serialize();

    const double idle = Median(kRepetitions, [] {}, [&] { keeper.UpdateCopies(); });
    const double copy =
        Median(kRepetitions, [&] { child->Document().SetModifiedFlag(); }, [&] { keeper.UpdateCopies(); });
    const double restore = Median(
        kRestoreRepetitions,
        [&] {
            for (CChildFrame* other : frame.Children())
                if (other != child)
                    delete other;
            NewSession(root)->Write(1, {{}, QStringLiteral("Tamlo1"), QDateTime::currentDateTimeUtc()}, content);
        },
        [&] { OfferAbandonedWindows(root, frame, keeper, prompts); });

    std::printf("%7d  %9.1f  %12.1f  %10.2f  %10.1f\n", widgetCount, content.size() / 1e6, idle * 1000, copy, restore);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    QTemporaryDir state;
    const QString root = state.filePath(QStringLiteral("recovery"));
    std::printf("Recovery copies; median ms of %d runs (restore: %d runs, copy written by the keeper included)\n",
                kRepetitions, kRestoreRepetitions);
    std::printf("%7s  %9s  %12s  %10s  %10s\n", "widgets", "copy MB", "idle look us", "copy", "restore");
    for (int count : {1000, 10000})
        Measure(count, root);
    return 0;
}
