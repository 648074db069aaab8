#pragma once

#include <QObject>

#include <csignal>

class QSocketNotifier;

// Turns SIGTERM and SIGHUP (the end of the user's session) into a Qt signal that the event loop
// delivers, so that the editor can keep its unsaved work before it ends. The handler itself only
// writes the signal's number into a socket pair. It handles one signal of each kind: a second
// one ends the process at once, in case the first reaction hangs. One object at a time; the
// previous handling comes back when it goes.
class CTerminationSignals : public QObject {
    Q_OBJECT
public:
    explicit CTerminationSignals(QObject* parent = nullptr);
    ~CTerminationSignals() override;

signals:
    void terminationRequested(int signalNumber);

private:
    void ReadSignals();

    int m_sockets[2] = {-1, -1};
    QSocketNotifier* m_notifier = nullptr;
    struct sigaction m_previousTerm = {};
    struct sigaction m_previousHangUp = {};
};
