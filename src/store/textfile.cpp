#include "store/textfile.h"

#include "store/hverror.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// Has the bytes arrive on the disk before the file gets its name: a power cut could leave the name
// of an empty file otherwise. QSaveFile asks for that as well, but passes over a refusal. Returns
// the reason of one, else an empty text.
QString refusalOfDisk([[maybe_unused]] const QSaveFile &file)
{
#ifdef Q_OS_UNIX
    if (::fsync(file.handle()) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
#endif
    return {};
}

// A disk that becomes full takes a part, and gives its reason when it is asked to take the rest.
bool writeAll(QSaveFile &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return file.flush();
}

} // namespace

void Store::writeTextFile(const QString &path, const QString &text)
{
    const QFileInfo place(path);
    if (place.isSymbolicLink())
        throw HVError(HVError::Kind::Invalid,
            u"\"%1\" is a link to %2. Choose that file itself, or another name."_s.arg(
                place.fileName(), QDir::toNativeSeparators(place.symLinkTarget())));

    const QByteArray bytes = text.toUtf8();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !writeAll(file, bytes))
        throw HVError(HVError::Kind::Invalid, file.errorString());
    // Without commit() the destructor takes the unfinished file away.
    const QString refusal = refusalOfDisk(file);
    if (!refusal.isEmpty())
        throw HVError(HVError::Kind::Invalid, refusal);
    if (!file.commit())
        throw HVError(HVError::Kind::Invalid, file.errorString());
}
