#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

// Ends the application's event loop once its first paint is done, when the environment
// variable KELVO_EXIT_AFTER_FIRST_PAINT is set: how a start-up is measured up to its first
// window. The paint under way finishes first, with the other widgets it repaints.
class CFirstPaintExit : public QObject {
public:
    static void InstallWhenAsked(QCoreApplication& application)
    {
        if (qEnvironmentVariableIsSet("KELVO_EXIT_AFTER_FIRST_PAINT"))
            application.installEventFilter(new CFirstPaintExit(&application));
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        return false;
    }

private:
    using QObject::QObject;
};
