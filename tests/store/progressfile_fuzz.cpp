// The image of a progress file: opened as the launch does, read and written to as screens do.

#include "store/progressfiletrial.h"
#include "support/fuzz.h"

#include <QFile>

using namespace StoreTesting;

void Fuzz::tryOut(QByteArrayView bytes)
{
    static const Folder folder;
    writeFile(folder.path(kProgressFile), bytes.toByteArray());
    static_cast<void>(tryProgressFile(folder));
    for (const QString &name : fingerprint(folder.path()).keys())
        QFile::remove(folder.path(name));
}
