#include "tests/support/SmallDisk.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

namespace testsupport {

namespace {

bool mountAt(const QString& folder)
{
#ifdef Q_OS_LINUX
    return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=1m") == 0;
#else
    Q_UNUSED(folder)
    return false;
#endif
}

void unmountAt(const QString& folder)
{
#ifdef Q_OS_LINUX
    ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH);
#else
    Q_UNUSED(folder)
#endif
}

} // namespace

SmallDisk::SmallDisk()
    : m_isMounted(mountAt(m_folder.path()))
{}

SmallDisk::~SmallDisk()
{
    if (m_isMounted) {
        unmountAt(m_folder.path());
    }
}

void SmallDisk::fill() const
{
    QFile filler(path(fillerName()));
    if (m_isMounted && filler.open(QIODevice::WriteOnly)) {
        filler.write(QByteArray(1000 * 1024, 'x'));
    }
}

void SmallDisk::makeRoom() const
{
    QFile::remove(path(fillerName()));
}

} // namespace testsupport
