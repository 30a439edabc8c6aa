#pragma once

#include <QStringList>
#include <QtGlobal>

// Records the messages that Qt's message handler receives while it exists, as a tool that reads
// the debug log with a pattern of %{type}, %{file}, %{line} and %{function} sees them: one line
// "type file:line [function] text" each. The handler before it is put back when it goes.
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    const QStringList& lines() const { return m_lines; }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QtMessageHandler m_previous;
    QStringList m_lines;
};
