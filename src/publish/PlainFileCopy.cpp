#include "PlainFileCopy.h"

#include <QFile>
#include <QFileInfo>

#include <vector>

namespace {
// Large enough that a drawing of some megabytes takes a few calls.
constexpr qint64 kBlockSize = 1024 * 1024;

bool copyContent(QFile& from, QFile& to)
{
    std::vector<char> block(static_cast<std::size_t>(kBlockSize));
    for (;;) {
        const qint64 read = from.read(block.data(), kBlockSize);
        if (read < 0)
            return false;
        if (read == 0)
            return true;
        if (to.write(block.data(), read) != read)
            return false;
    }
}
} // namespace

bool PlainFileCopy::copy(const QString& source, const QString& target)
{
    if (!QFileInfo(source).isFile())
        return false;
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return false;
    QFile to(target);
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool copied =
        copyContent(from, to) && to.flush() && to.setPermissions(from.permissions());
    to.close();
    if (!copied)
        to.remove();
    return copied;
}
