#include "OmniplaneViewContent.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <CFxSystemServices.h>

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("QNOmniplaneView", source);
}

QPushButton* button(const char* objectName, const char* caption, bool enabled)
{
    auto* created = new QPushButton(text(caption));
    created->setObjectName(QString::fromLatin1(objectName));
    created->setEnabled(enabled);
    return created;
}
} // namespace

QWidget* OmniplaneViewContent::create()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    auto* heading = new QLabel(text("Omniplane"));
    heading->setStyleSheet(QString::fromLatin1("font-weight: bold; font-size: 16px;"));
    QPushButton* signIn = button("SignIn", "Sign In", true);
    layout->addWidget(heading);
    layout->addWidget(signIn);
    layout->addWidget(button("Synchronize", "Synchronize Drawings", false));
    layout->addWidget(button("Upload", "Upload to Omniplane", false));
    layout->addStretch(1);
    // The reference connector has no platform service to reach.
    QObject::connect(signIn, &QPushButton::clicked, content, [] {
        GetFxSystemServices()->FxMessageBox(text("The connection to Omniplane failed."),
                                            text("Omniplane"), 0);
    });
    return content;
}
