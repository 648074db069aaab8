#include "handoverqueue.h"

#include "editorprompts.h"
#include "mainframe.h"

#include <QCoreApplication>

#include <utility>

namespace {

// A message box taller than the screen cannot be closed; the rest are counted.
constexpr qsizetype kMaxListedMessages = 10;

QString ListOf(QStringList messages)
{
    messages.removeDuplicates();
    QString text = messages.mid(0, kMaxListedMessages).join(QStringLiteral("\n\n"));
    if (messages.size() > kMaxListedMessages)
        text += QCoreApplication::translate("CHandOverQueue", "\n\n... and %1 more.")
                    .arg(messages.size() - kMaxListedMessages);
    return text;
}

} // namespace

CHandOverQueue::CHandOverQueue(CMainFrame& frame, CEditorPrompts& prompts)
    : QObject(&frame), m_frame(frame), m_prompts(prompts)
{
}

void CHandOverQueue::Add(const QString& path)
{
    m_paths.append(path);
    if (m_paths.size() == 1)
        QMetaObject::invokeMethod(this, &CHandOverQueue::OpenAll, Qt::QueuedConnection);
}

void CHandOverQueue::OpenAll()
{
    while (!m_paths.isEmpty()) {
        QString message;
        const bool opened = m_frame.OpenDocument(m_paths.takeFirst(), message);
        if (message.isEmpty())
            continue;
        m_messages.append(message);
        m_anyFailed |= !opened;
    }
    Report();
}

void CHandOverQueue::Report()
{
    if (m_reporting)
        return;
    m_reporting = true;
    while (!m_messages.isEmpty()) {
        const QString text = ListOf(std::exchange(m_messages, {}));
        if (std::exchange(m_anyFailed, false))
            m_prompts.ShowError(&m_frame, text);
        else
            m_prompts.ShowInformation(&m_frame, text);
    }
    m_reporting = false;
}
