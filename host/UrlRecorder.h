#pragma once

#include <QObject>
#include <QUrl>

// Takes every web address that the host or a module hands to the desktop (http and https) and
// reports it as a url-opened event instead of opening a browser. The handlers are registered
// for as long as the object lives.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    UrlRecorder();
    ~UrlRecorder() override;

public slots:
    void openUrl(const QUrl& url);
};
