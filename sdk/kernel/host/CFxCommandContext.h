#pragma once

#include "CFxCommandLineIO.h"
#include "FxKernelExport.h"

#include <OdEdCommandContext.h>
#include <OdStaticRxObject.h>

#include <optional>

// The context in which the host runs a command typed on the command line: its answers, the
// active drawing's database, and the result code that the command's run operation returned.
class FX_KERNEL_EXPORT CFxCommandContext : public OdEdCommandContext
{
public:
    CFxCommandContext(QStringList answers, OdRxObject* database);
    ~CFxCommandContext() override;

    OdEdUserIO* userIO() override;
    OdRxObject* baseDatabase() override;

    void setResult(int result) { m_result = result; }
    std::optional<int> result() const { return m_result; }
    QStringList remainingAnswers() const { return m_io.remainingAnswers(); }

private:
    OdStaticRxObject<CFxCommandLineIO> m_io;
    OdRxObject* m_database;
    std::optional<int> m_result;
};
