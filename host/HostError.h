#pragma once

#include <QString>

#include <stdexcept>

// A request the host cannot carry out: a bad script statement, a missing file, a module that
// cannot be loaded. The host reports it as an error event and exits non-zero.
class HostError : public std::runtime_error
{
public:
    explicit HostError(const QString& message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {}

    QString message() const { return m_message; }

private:
    QString m_message;
};
