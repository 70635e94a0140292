#include "kit/ownersonly.h"

#ifdef Q_OS_UNIX
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

OwnersOnly::OwnersOnly()
    : m_before(::umask(S_IRWXG | S_IRWXO))
{ }

OwnersOnly::~OwnersOnly()
{
    ::umask(mode_t(m_before));
}

void OwnersOnly::tighten(const QString &file)
{
    const QByteArray name = QFile::encodeName(file);
    struct stat status;
    if (::lstat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_uid != ::geteuid())
        return;
    const mode_t rights = status.st_mode & S_IRWXU;
    if ((status.st_mode & ALLPERMS) != rights)
        static_cast<void>(::chmod(name.constData(), rights)); // what fails leaves it as it was
}
#else
// Where rights are inherited from the folder, those of the user's profile are right.
OwnersOnly::OwnersOnly() = default;
OwnersOnly::~OwnersOnly() = default;
void OwnersOnly::tighten(const QString &) { }
#endif
