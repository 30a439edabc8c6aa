#include "MessageLog.h"

namespace {
// Qt's handler is a plain function: it finds the log here.
MessageLog* g_current = nullptr;

const char* typeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    }
    return "unknown";
}

// A context field that the message did not carry.
QString orNone(const char* text)
{
    return text ? QString::fromUtf8(text) : QStringLiteral("<none>");
}
} // namespace

MessageLog::MessageLog() : m_previous(qInstallMessageHandler(&MessageLog::record))
{
    g_current = this;
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    g_current = nullptr;
}

void MessageLog::record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!g_current)
        return;
    g_current->m_lines.append(QStringLiteral("%1 %2:%3 [%4] %5")
                                  .arg(QString::fromLatin1(typeName(type)), orNone(context.file),
                                       QString::number(context.line), orNone(context.function),
                                       text));
}
