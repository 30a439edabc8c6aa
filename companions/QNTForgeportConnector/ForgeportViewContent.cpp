#include "ForgeportViewContent.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("XmlTodxf", source);
}
} // namespace

QWidget* ForgeportViewContent::create()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    auto* heading = new QLabel(text("Forgeport"));
    heading->setStyleSheet(QString::fromLatin1("font-weight: bold; font-size: 16px;"));
    auto* import = new QLabel(text("Import XML"));
    import->setStyleSheet(QString::fromLatin1("font-weight: bold;"));
    auto* description = new QLabel(text("Converts an XML file into a drawing"));
    description->setWordWrap(true);
    layout->addWidget(heading);
    layout->addWidget(import);
    layout->addWidget(description);
    layout->addStretch(1);
    return content;
}
