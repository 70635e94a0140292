// What the program makes for itself is its user's alone, whatever the umask says.
//
// Leaf target hv_owners_only.
#pragma once

#include <QString>
#include <QtGlobal>

/// While one lives, every file, folder and socket that the process makes is its owner's alone,
/// those that libraries make for us among them. The umask is the process's own: main thread only,
/// and no longer than it takes, since programs that are started inherit it.
class OwnersOnly
{
public:
    OwnersOnly();
    ~OwnersOnly();
    Q_DISABLE_COPY_MOVE(OwnersOnly)

    /// Takes the rights of everybody else from a file of this user's. Nothing is done to a link,
    /// nor to what belongs to another user.
    static void tighten(const QString &file);

#ifdef Q_OS_UNIX
private:
    unsigned m_before;
#endif
};
