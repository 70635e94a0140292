// SQLite's own way to the disk, with somebody who looks on and may say no.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

#include <sqlite3.h>

/// What SQLite is about to do.
struct DiskOperation {
    enum Kind { Open, Delete, Write, Truncate, Sync, Lock };

    Kind kind;
    QString path;             ///< Empty for a temporary file, which has no name.
    qint64 offset = 0;        ///< Where bytes are written, or the size to cut to.
    QByteArray bytes = {};    ///< That are written.
    bool syncsFolder = false; ///< Whether a file is to stay deleted whatever happens next.
};

/// The code with which a disk that has trouble answers.
[[nodiscard]] int troubleWith(DiskOperation::Kind kind);

/// All connections opened while this lives go by it, and are closed before it ends. Nothing waits
/// for the platter: a sync is watched and left out, since no test pulls a plug.
class WatchedDisk
{
public:
    /// Asked before each operation. SQLITE_OK lets it happen; with another code SQLite is told that
    /// it has failed. A write that fails has got half-way.
    using Watcher = std::function<int(const DiskOperation &)>;

    explicit WatchedDisk(Watcher watcher);
    ~WatchedDisk();
    Q_DISABLE_COPY_MOVE(WatchedDisk)

private:
    struct File;
    static const sqlite3_io_methods &methods();
    static int open(
        sqlite3_vfs *vfs, const char *name, sqlite3_file *handle, int flags, int *outFlags);
    static int remove(sqlite3_vfs *vfs, const char *name, int syncFolder);

    Watcher m_watcher;
    sqlite3_vfs *const m_real = sqlite3_vfs_find(nullptr);
    sqlite3_vfs m_vfs = *m_real;
};
