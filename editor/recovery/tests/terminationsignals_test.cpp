// SIGTERM and SIGHUP reach the editor through its event loop, once each.
#include "editor/recovery/terminationsignals.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

namespace {

void (*Handler(int number))(int)
{
    struct sigaction current = {};
    ::sigaction(number, nullptr, &current);
    return current.sa_handler;
}

} // namespace

class TerminationSignalsTest : public QObject {
    Q_OBJECT

private slots:
    void eachSignalArrivesThroughTheEventLoopOnce()
    {
        for (const int number : {SIGTERM, SIGHUP}) {
            CTerminationSignals termination;
            QSignalSpy requested(&termination, &CTerminationSignals::terminationRequested);
            QVERIFY(::raise(number) == 0);
            QCOMPARE(requested.count(), 0); // the handler only wrote the number down
            QTRY_COMPARE(requested.count(), 1);
            QCOMPARE(requested[0][0].toInt(), number);
            QVERIFY2(Handler(number) == SIG_DFL, "a second signal ends the process at once");
        }
    }

    void thePreviousHandlingComesBack()
    {
        ::signal(SIGTERM, SIG_IGN);
        ::signal(SIGHUP, SIG_IGN);
        {
            CTerminationSignals termination;
            QVERIFY(Handler(SIGTERM) != SIG_IGN && Handler(SIGHUP) != SIG_IGN);
        }
        QVERIFY(Handler(SIGTERM) == SIG_IGN && Handler(SIGHUP) == SIG_IGN);
        ::signal(SIGTERM, SIG_DFL);
        ::signal(SIGHUP, SIG_DFL);
    }
};

QTEST_GUILESS_MAIN(TerminationSignalsTest)
#include "terminationsignals_test.moc"
