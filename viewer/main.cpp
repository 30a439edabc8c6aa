// vcst-viewer: the reference Viewcast viewer.
#include "ViewerError.h"
#include "ViewerInstaller.h"
#include "ViewerOptions.h"
#include "ViewerService.h"

#include <QCoreApplication>

#include <cstdio>

namespace {
int run(const ViewerOptions& options)
{
    if (options.mode == ViewerOptions::Mode::Install) {
        ViewerInstaller(QCoreApplication::applicationFilePath(), options).install();
        return 0;
    }
    ViewerService service(options.version);
    service.start();
    return QCoreApplication::exec();
}
} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Viewcast"));
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    try {
        QString helpText;
        bool exitEarly = false;
        const ViewerOptions options =
            ViewerOptions::parse(QCoreApplication::arguments().mid(1), helpText, exitEarly);
        if (exitEarly) {
            std::fputs(qUtf8Printable(helpText), stdout);
            return 0;
        }
        return run(options);
    } catch (const ViewerError& error) {
        std::fprintf(stderr, "vcst-viewer: %s\n", qUtf8Printable(error.message()));
        return 1;
    }
}
