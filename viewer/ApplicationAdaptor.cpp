#include "ApplicationAdaptor.h"

#include "ViewerApplication.h"

ApplicationAdaptor::ApplicationAdaptor(ViewerApplication* application)
    : QDBusAbstractAdaptor(application), m_application(application)
{}

void ApplicationAdaptor::OpenDocument(const QString& path, const QString& viewerName,
                                      const QString& firstText, const QString& secondText,
                                      bool firstFlag, bool secondFlag)
{
    m_application->open(QStringLiteral("IVcModelViewApp::OpenDocument"),
                        {path, viewerName, firstText, secondText, firstFlag, secondFlag});
}
