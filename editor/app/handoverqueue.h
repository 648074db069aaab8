#pragma once

#include <QObject>
#include <QStringList>

class CEditorPrompts;
class CMainFrame;

// Opens the files that later editor starts hand over, one after another from the event loop,
// and tells the user what came of them in one message once none is left, instead of one
// message box per file: each message box runs an event loop of its own, in which the next
// file would open another, so that a burst of them would overflow the stack. Messages due
// while the message is open follow in one message after it.
class CHandOverQueue : public QObject {
    Q_OBJECT
public:
    // A child of the main frame, whose files it opens.
    CHandOverQueue(CMainFrame& frame, CEditorPrompts& prompts);

    void Add(const QString& path);

private:
    void OpenAll();
    void Report();

    CMainFrame& m_frame;
    CEditorPrompts& m_prompts;
    QStringList m_paths;
    QStringList m_messages; // why files cannot be opened, and what to know about those that opened
    bool m_anyFailed = false;
    bool m_reporting = false;
};
