#pragma once

#include "FxKernelExport.h"

#include <QStringList>

#include <OdEdUserIO.h>

// User input of a command typed on the command line: each prompt takes the next word that
// followed the command's name; when the words run out, the user "presses Enter" and the
// prompt's default applies. What a command tells the user becomes a command-output event.
class FX_KERNEL_EXPORT CFxCommandLineIO : public OdEdUserIO
{
public:
    explicit CFxCommandLineIO(QStringList answers = {});
    ~CFxCommandLineIO() override;

    OdString getString(const OdString& prompt,
                       const OdString& defaultValue = OdString::kEmpty) override;
    int getInt(const OdString& prompt, int defaultValue = 0) override;
    void putString(const OdString& text) override;

    QStringList remainingAnswers() const { return m_answers; }

private:
    QStringList m_answers;
};
