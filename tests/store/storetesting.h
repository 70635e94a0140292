// What the tests of the store share: scratch folders and their fingerprints, and a second process.
#pragma once

#include "store/hverror.h"

#include "support/qtprinters.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <optional>
#include <ostream>

// GoogleTest finds these by the namespace of the type.
inline void PrintTo(const QDateTime &moment, std::ostream *stream)
{
    *stream << qPrintable(moment.toString(Qt::ISODateWithMs));
}

inline void PrintTo(const HVError &error, std::ostream *stream)
{
    *stream << error.what();
}

namespace StoreTesting {

/// A folder of its own for one test, gone afterwards.
class Folder
{
public:
    Folder();

    [[nodiscard]] QString path(const QString &name = {}) const;
    [[nodiscard]] QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }

private:
    QTemporaryDir m_folder;
};

/// Every entry of a folder by its name: the SHA-256 of a file's bytes, or what else stands there.
/// Equal before and after means that nothing was changed, added or taken away.
using Fingerprint = QMap<QString, QByteArray>;
[[nodiscard]] Fingerprint fingerprint(const QString &folder);

void writeFile(const QString &path, const QByteArray &bytes);
[[nodiscard]] QByteArray fileBytes(const QString &path);

/// What SQLite says of the soundness of a database: "ok", or what is wrong with it.
[[nodiscard]] QString integrity(const QString &path);

/// The HVError that a call throws, or nothing.
template <typename Call>
[[nodiscard]] std::optional<HVError> errorOf(Call &&call)
{
    try {
        call();
        return std::nullopt;
    } catch (const HVError &error) {
        return error;
    }
}

/// A run of the companion program of these tests (child.cpp says what it can do). Ended with the
/// object, whatever it is doing.
class Child
{
public:
    explicit Child(const QStringList &arguments);
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    /// The next line it prints, without the line end; waits for it. Nothing once it has ended.
    [[nodiscard]] std::optional<QString> line();

    /// All lines from here to its end.
    [[nodiscard]] QStringList remainingLines();

    /// Sends it an empty line, which an answering child takes as the request to write.
    void request();

    /// Ends its input, which is what a child waits for before it goes to work.
    void release() { m_process.closeWriteChannel(); }

    /// Ends it on the spot, without any chance to tidy up.
    void kill() { m_process.kill(); }

private:
    const Folder m_temporary; // for its temporary files, which it can't tidy up when it is killed
    QProcess m_process;
};

} // namespace StoreTesting
