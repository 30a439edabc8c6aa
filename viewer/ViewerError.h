#pragma once

#include <QString>

#include <stdexcept>

// A request vcst-viewer cannot carry out: it says why on standard error and exits non-zero.
class ViewerError : public std::runtime_error
{
public:
    explicit ViewerError(const QString& message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {}

    QString message() const { return m_message; }

private:
    QString m_message;
};
