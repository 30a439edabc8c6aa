#pragma once

#include <QDBusAbstractAdaptor>

class ViewerApplication;

// The viewer application's own interface (IVcModelViewApp): its open method is the one that
// sits in slot 10 of the interface's table on Windows.
class ApplicationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.corvane.VcModelViewer.IVcModelViewApp")

public:
    explicit ApplicationAdaptor(ViewerApplication* application);

public slots:
    void OpenDocument(const QString& path, const QString& viewerName, const QString& firstText,
                      const QString& secondText, bool firstFlag, bool secondFlag);

private:
    ViewerApplication* m_application;
};
