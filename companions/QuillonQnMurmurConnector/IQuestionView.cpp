#include "CompanionDock.h"
#include "QuestionViewContent.h"

#include <QCoreApplication>

#include <CompanionCall.h>
#include <IQuestionView.h>

namespace {
const QString kLibrary = QString::fromLatin1(IQuestionViewEntryPoints::library);

CompanionDock& viewDock()
{
    static CompanionDock dock("QuestionView");
    return dock;
}
} // namespace

bool IQuestionView::addiQuestionView()
{
    reportCompanionCall(kLibrary, QStringLiteral("addiQuestionView"));
    return viewDock().add(QCoreApplication::translate("IQuestionView", "Community"),
                          &QuestionViewContent::create);
}

void IQuestionView::showiQuestionView()
{
    reportCompanionCall(kLibrary, QStringLiteral("showiQuestionView"));
    viewDock().show();
}
