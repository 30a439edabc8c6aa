#pragma once

#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QVariantList>

// The viewer application that one automation server gives out. It opens what it is asked to
// open: the file must exist and be a drawing. Every call that reaches it is announced on the
// session bus (signal Called of the events interface) with its outcome, "opened" or the
// reason it failed; a failed call also answers its caller with an error.
class ViewerApplication : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit ViewerApplication(QString identifier, QObject* parent = nullptr);

    // The open method: `call` names the way it was reached, `arguments` are the six
    // arguments (path, viewer name, text, text, flag, flag).
    void open(const QString& call, const QVariantList& arguments);
    // A call that cannot be carried out at all (an unknown dispatch identifier).
    void reject(const QString& call, const QVariantList& arguments, const QString& reason);

private:
    static QString check(const QVariantList& arguments);
    void announce(const QString& call, const QVariantList& arguments, const QString& result);

    QString m_identifier;
};
