#pragma once

#include <QObject>
#include <QString>

// Turns what the Viewcast viewers on the session bus announce into viewer-call events.
class ViewerCallListener : public QObject
{
    Q_OBJECT

public:
    // Listens on the session bus, when there is one.
    void listen();
    // Returns once every announcement sent before this call has become an event (a round trip
    // to the bus, whose messages arrive in order), or after `timeoutMs` without an answer.
    void flush(int timeoutMs = 10000);

private slots:
    void called(const QString& server, const QString& call, const QString& arguments,
                const QString& result);

private:
    bool m_listening = false;
};
