#include "MappedLibraries.h"

#include <QFileInfo>

#include <link.h>

namespace {
struct Search
{
    QString fileName;
    QStringList found;
};

int visit(dl_phdr_info* info, size_t, void* data)
{
    auto* search = static_cast<Search*>(data);
    const QString path = QString::fromLocal8Bit(info->dlpi_name);
    if (QFileInfo(path).fileName() == search->fileName)
        search->found << QFileInfo(path).absoluteFilePath();
    return 0;
}
} // namespace

QStringList MappedLibraries::named(const QString& fileName)
{
    Search search{fileName, {}};
    ::dl_iterate_phdr(visit, &search);
    return search.found;
}
