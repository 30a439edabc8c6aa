#pragma once

#include <QObject>

// A desktop that cannot open web addresses: handed one, it reports it as url-refused, and
// QDesktopServices::openUrl answers false to whoever asked, as it does when a real desktop
// has no browser for the address.
//
// Qt asks a URL handler nothing back: openUrl answers only whether it could call the handler's
// method. So the refuser offers a method that Qt finds in its meta-object, but no direct call
// function for it: Qt then goes through qt_metacall, and a call that qt_metacall answers as not
// carried out makes openUrl answer false.
class UrlRefuser : public QObject
{
public:
    // The method to register with QDesktopServices::setUrlHandler.
    static const char* method();

    const QMetaObject* metaObject() const override;
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    static const QMetaObject& refusingMetaObject();
};
