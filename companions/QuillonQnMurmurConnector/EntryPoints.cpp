// The library's C entry points: what a module's delay-load import resolves by name.
#include <IQuestionView.h>
#include <TarnCompanionExport.h>

TARN_COMPANION_EXPORT bool IQuestionView_addiQuestionView()
{
    return IQuestionView().addiQuestionView();
}

TARN_COMPANION_EXPORT void IQuestionView_showiQuestionView()
{
    IQuestionView().showiQuestionView();
}
