#include "PlainFileCopy.h"

#include <QFile>
#include <QFileInfo>

#include <vector>

#ifdef Q_OS_LINUX
#include <unistd.h>

#include <cerrno>
#endif

namespace {
// Large enough that a drawing of some megabytes takes a few calls.
constexpr qint64 kBlockSize = 1024 * 1024;

enum class KernelCopy
{
    Done,
    Unavailable,
    Failed
};

// Lets the kernel copy the bytes without passing them through this process, as `cp` does
// (and share the blocks where the file system can). Unavailable, before anything is copied,
// where the kernel or the file systems cannot: the caller copies block by block then.
KernelCopy copyInKernel(QFile& from, QFile& to)
{
#ifdef Q_OS_LINUX
    constexpr std::size_t kMostPerCall = std::size_t(1) << 30;
    bool copiedAny = false;
    for (;;) {
        const ssize_t copied =
            ::copy_file_range(from.handle(), nullptr, to.handle(), nullptr, kMostPerCall, 0);
        if (copied > 0) {
            copiedAny = true;
            continue;
        }
        if (copied == 0)
            return KernelCopy::Done;
        if (errno == EINTR)
            continue;
        const bool unavailable = errno == ENOSYS || errno == EXDEV || errno == EINVAL ||
                                 errno == EOPNOTSUPP || errno == EPERM;
        return !copiedAny && unavailable ? KernelCopy::Unavailable : KernelCopy::Failed;
    }
#else
    Q_UNUSED(from);
    Q_UNUSED(to);
    return KernelCopy::Unavailable;
#endif
}

bool copyBlocks(QFile& from, QFile& to)
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

bool copyContent(QFile& from, QFile& to)
{
    switch (copyInKernel(from, to)) {
    case KernelCopy::Done:
        return true;
    case KernelCopy::Unavailable:
        return copyBlocks(from, to);
    case KernelCopy::Failed:
        break;
    }
    return false;
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
