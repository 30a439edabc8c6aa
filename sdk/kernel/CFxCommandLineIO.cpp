#include "CFxCommandLineIO.h"

#include <OdError.h>
#include <OdEventLog.h>

#include <utility>

CFxCommandLineIO::CFxCommandLineIO(QStringList answers) : m_answers(std::move(answers)) {}

CFxCommandLineIO::~CFxCommandLineIO() = default;

OdString CFxCommandLineIO::getString(const OdString&, const OdString& defaultValue)
{
    if (m_answers.isEmpty())
        return defaultValue;
    const QString answer = m_answers.takeFirst();
    return answer.isEmpty() ? defaultValue : toOdString(answer);
}

int CFxCommandLineIO::getInt(const OdString& prompt, int defaultValue)
{
    const QString answer = toQString(getString(prompt));
    if (answer.isEmpty())
        return defaultValue;
    bool ok = false;
    const int value = answer.toInt(&ok);
    if (!ok)
        throw OdError(toOdString(QStringLiteral("'%1' is not a whole number").arg(answer)));
    return value;
}

void CFxCommandLineIO::putString(const OdString& text)
{
    OdEventLog::report(QStringLiteral("command-output"),
                       {{QStringLiteral("text"), toQString(text)}});
}
