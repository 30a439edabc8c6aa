// The module's delay-load import of the social-service connector's question view.
#include "DelayLoadLibrary.h"

#include <IQuestionView.h>

bool IQuestionView::addiQuestionView()
{
    return DelayLoadLibrary::call<IQuestionViewAddFunction>(
        IQuestionViewEntryPoints::library, IQuestionViewEntryPoints::addiQuestionView);
}

void IQuestionView::showiQuestionView()
{
    DelayLoadLibrary::call<IQuestionViewShowFunction>(IQuestionViewEntryPoints::library,
                                                      IQuestionViewEntryPoints::showiQuestionView);
}
