// The module's delay-load import of the social-service connector's question view.
#include "DelayLoadLibrary.h"

#include <IQuestionView.h>

namespace {
template <class Function>
Function resolved(const char* symbol)
{
    return DelayLoadLibrary::companion(IQuestionViewEntryPoints::library).resolve<Function>(symbol);
}
} // namespace

bool IQuestionView::addiQuestionView()
{
    auto call = resolved<IQuestionViewAddFunction>(IQuestionViewEntryPoints::addiQuestionView);
    return call && call();
}

void IQuestionView::showiQuestionView()
{
    if (auto call =
            resolved<IQuestionViewShowFunction>(IQuestionViewEntryPoints::showiQuestionView))
        call();
}
