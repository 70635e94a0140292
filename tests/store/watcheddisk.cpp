#include "store/watcheddisk.h"

#include <utility>

int troubleWith(DiskOperation::Kind kind)
{
    switch (kind) {
    case DiskOperation::Open:
        return SQLITE_CANTOPEN;
    case DiskOperation::Delete:
        return SQLITE_IOERR_DELETE;
    case DiskOperation::Write:
        return SQLITE_IOERR_WRITE;
    case DiskOperation::Truncate:
        return SQLITE_IOERR_TRUNCATE;
    case DiskOperation::Sync:
        return SQLITE_IOERR_FSYNC;
    case DiskOperation::Lock:
        return SQLITE_IOERR_LOCK;
    }
    Q_UNREACHABLE();
}

// SQLite allots room for this and for the real file behind it.
struct WatchedDisk::File {
    sqlite3_file base; // Comes first: SQLite knows the file by it.
    WatchedDisk *disk;
    const char *name; // SQLite keeps it as long as the file is open.

    static File &of(sqlite3_file *handle) { return *reinterpret_cast<File *>(handle); }
    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }

    int ask(DiskOperation::Kind kind, qint64 offset = 0, const QByteArray &bytes = {}) const
    {
        return disk->m_watcher(
            { .kind = kind, .path = QString::fromUtf8(name), .offset = offset, .bytes = bytes });
    }

    template <auto Method, typename... Arguments>
    static int pass(sqlite3_file *handle, Arguments... arguments)
    {
        sqlite3_file *real = of(handle).real();
        return (real->pMethods->*Method)(real, arguments...);
    }
};

const sqlite3_io_methods &WatchedDisk::methods()
{
    using IO = sqlite3_io_methods;
    static const IO methods = [] {
        IO io{};
        io.iVersion = 3;
        io.xClose = File::pass<&IO::xClose>;
        io.xRead = File::pass<&IO::xRead>;
        io.xWrite = [](sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset) {
            const auto *data = static_cast<const char *>(bytes);
            const int code
                = File::of(file).ask(DiskOperation::Write, offset, QByteArray(data, size));
            const int written = code == SQLITE_OK ? size : size / 2;
            const int real = File::pass<&IO::xWrite>(file, bytes, written, offset);
            return code == SQLITE_OK ? real : code;
        };
        io.xTruncate = [](sqlite3_file *file, sqlite3_int64 size) {
            const int code = File::of(file).ask(DiskOperation::Truncate, size);
            return code == SQLITE_OK ? File::pass<&IO::xTruncate>(file, size) : code;
        };
        io.xSync = [](sqlite3_file *file, int) { return File::of(file).ask(DiskOperation::Sync); };
        io.xFileSize = File::pass<&IO::xFileSize>;
        io.xLock = [](sqlite3_file *file, int level) {
            const int code = File::of(file).ask(DiskOperation::Lock);
            return code == SQLITE_OK ? File::pass<&IO::xLock>(file, level) : code;
        };
        io.xUnlock = File::pass<&IO::xUnlock>;
        io.xCheckReservedLock = File::pass<&IO::xCheckReservedLock>;
        io.xFileControl = File::pass<&IO::xFileControl>;
        io.xSectorSize = File::pass<&IO::xSectorSize>;
        io.xDeviceCharacteristics = File::pass<&IO::xDeviceCharacteristics>;
        io.xShmMap = File::pass<&IO::xShmMap>;
        io.xShmLock = [](sqlite3_file *file, int first, int count, int flags) {
            const bool unlocks = flags & SQLITE_SHM_UNLOCK;
            const int code = unlocks ? SQLITE_OK : File::of(file).ask(DiskOperation::Lock);
            return code == SQLITE_OK ? File::pass<&IO::xShmLock>(file, first, count, flags) : code;
        };
        io.xShmBarrier = [](sqlite3_file *file) {
            sqlite3_file *real = File::of(file).real();
            real->pMethods->xShmBarrier(real);
        };
        io.xShmUnmap = File::pass<&IO::xShmUnmap>;
        io.xFetch = File::pass<&IO::xFetch>;
        io.xUnfetch = File::pass<&IO::xUnfetch>;
        return io;
    }();
    return methods;
}

int WatchedDisk::open(
    sqlite3_vfs *vfs, const char *name, sqlite3_file *handle, int flags, int *outFlags)
{
    auto *disk = static_cast<WatchedDisk *>(vfs->pAppData);
    File &file = File::of(handle);
    file = { .base = { .pMethods = nullptr }, .disk = disk, .name = name };
    if (const int code = file.ask(DiskOperation::Open))
        return code;
    const int code = disk->m_real->xOpen(disk->m_real, name, file.real(), flags, outFlags);
    if (code == SQLITE_OK)
        file.base.pMethods = &methods();
    return code;
}

int WatchedDisk::remove(sqlite3_vfs *vfs, const char *name, int syncFolder)
{
    auto *disk = static_cast<WatchedDisk *>(vfs->pAppData);
    const int code = disk->m_watcher({ .kind = DiskOperation::Delete,
        .path = QString::fromUtf8(name),
        .syncsFolder = syncFolder != 0 });
    return code == SQLITE_OK ? disk->m_real->xDelete(disk->m_real, name, syncFolder) : code;
}

WatchedDisk::WatchedDisk(Watcher watcher)
    : m_watcher(std::move(watcher))
{
    m_vfs.zName = "watched";
    m_vfs.pNext = nullptr;
    m_vfs.pAppData = this;
    m_vfs.szOsFile = int(sizeof(File)) + m_real->szOsFile;
    m_vfs.xOpen = open;
    m_vfs.xDelete = remove;
    sqlite3_vfs_register(&m_vfs, true);
}

WatchedDisk::~WatchedDisk()
{
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_real, true);
}
