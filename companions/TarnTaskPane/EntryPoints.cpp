// The library's C entry points: what a module's delay-load import resolves by name.
#include <QtGlobal>

#include <TarnCompanionExport.h>
#include <TarnTaskPane.h>

TARN_COMPANION_EXPORT bool TarnTaskPane_addTaskPane(QUuid* installationId, const std::string* tag)
{
    if (!installationId || !tag) {
        qWarning("TarnTaskPane_addTaskPane: needs an installation identifier and an edition tag, "
                 "got a null pointer");
        return false;
    }
    return TarnTaskPane().addTaskPane(*installationId, *tag);
}

TARN_COMPANION_EXPORT void TarnTaskPane_showTaskPane()
{
    TarnTaskPane().showTaskPane();
}

TARN_COMPANION_EXPORT void TarnTaskPane_showViewcastMeassage()
{
    TarnTaskPane().showViewcastMeassage();
}
