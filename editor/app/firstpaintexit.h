#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <chrono>
#include <cstdio>

// Ends the application's event loop once its first paint is done, when the environment
// variable KELVO_EXIT_AFTER_FIRST_PAINT is set: how a start-up is measured up to its first
// window. The paint under way finishes first, with the other widgets it repaints. Then the
// line "first paint at NANOSECONDS" goes to the standard output, on
// the monotonic clock that every process of the machine shares, so that whoever started the
// program can tell the time to the first window from the time the program takes to end.
class CFirstPaintExit : public QObject {
public:
    static constexpr const char* kFirstPaintLine = "first paint at";

    static void InstallWhenAsked(QCoreApplication& application)
    {
        if (qEnvironmentVariableIsSet("KELVO_EXIT_AFTER_FIRST_PAINT"))
            application.installEventFilter(new CFirstPaintExit(&application));
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || m_painted)
            return false;
        m_painted = true;
        QTimer::singleShot(0, QCoreApplication::instance(), [] {
            const auto now = std::chrono::steady_clock::now().time_since_epoch();
            std::printf("%s %lld\n", kFirstPaintLine, static_cast<long long>(std::chrono::nanoseconds(now).count()));
            std::fflush(stdout);
            QCoreApplication::quit();
        });
        return false;
    }

private:
    using QObject::QObject;

    bool m_painted = false;
};
