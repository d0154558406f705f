#include "imaging/ExclusiveRename.h"

#include <QtGlobal>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace ExclusiveRename {
namespace {

Outcome outcomeOf(int error)
{
    switch (error) {
    case EEXIST:
        return Outcome::NameTaken;
    case EINVAL:
    case ENOSYS:
    case ENOTSUP:
    case EPERM:
    case EMLINK:
        return Outcome::NotSupported;
    default:
        return Outcome::Failed;
    }
}

} // namespace

Outcome byRenaming(const QByteArray& from, const QByteArray& to)
{
#ifdef RENAME_NOREPLACE
    const int result =
        ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE);
    return result == 0 ? Outcome::Done : outcomeOf(errno);
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
    return Outcome::NotSupported;
#endif
}

Outcome byLinking(const QByteArray& from, const QByteArray& to)
{
    if (::link(from.constData(), to.constData()) != 0) {
        return outcomeOf(errno);
    }
    ::unlink(from.constData());
    return Outcome::Done;
}

Outcome byClaiming(const QByteArray& from, const QByteArray& to)
{
    const int claim = ::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (claim < 0) {
        return errno == EEXIST ? Outcome::NameTaken : Outcome::Failed;
    }
    ::close(claim);
    if (std::rename(from.constData(), to.constData()) == 0) {
        return Outcome::Done;
    }
    const int error = errno;
    ::unlink(to.constData());
    errno = error;
    return Outcome::Failed;
}

Outcome rename(const QByteArray& from, const QByteArray& to)
{
    for (const auto way : {byRenaming, byLinking}) {
        const Outcome outcome = way(from, to);
        if (outcome != Outcome::NotSupported) {
            return outcome;
        }
    }
    return byClaiming(from, to);
}

} // namespace ExclusiveRename
