// A thin layer over the SQLite C library: a connection, a row and a value.
//
// Leaf target hv_sqlite. Statements are texts with positional parameters ("?"); each call prepares,
// binds, steps and finalizes anew, at the rate of a person clicking. Every failure is an HVError of
// kind Database that carries SQLite's own message and its primary result code.
//
// The file is not trusted: its triggers don't fire, its views can't be read, its checks aren't
// made, its schema calls no function that reaches beyond it. It may have been made so that reading
// it never ends. A value of more than 64 MB is therefore an error, and so is a result of more than
// 256 MB or a statement that reads some hundred thousand rows. Sorting is done in memory, of which
// SQLite gets 512 MB in all.
//
// A connection has no lock of its own and is used from one thread at a time. Another process may
// hold the file: a call then waits up to busyTimeout before it fails.
#pragma once

#include "store/hverror.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <chrono>
#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

/// One value on its way into a statement or out of a row: an integer, a real number, a text, a blob
/// or null. It converts from what the program handles, so that arguments are written as a list:
///
///     db.run(u"INSERT INTO bookmarks VALUES (?,?,?)"_s, {type, id, now});
///
/// Texts keep every character, NUL and a leading byte order mark included. A null QString is the
/// empty text and a null QByteArray the empty blob; only an absent value is null.
class SQLValue
{
public:
    using Payload = std::variant<std::monostate, qint64, double, QString, QByteArray>;

    SQLValue() = default; ///< null
    SQLValue(std::nullopt_t) { }
    SQLValue(int value)
        : m_payload(qint64(value))
    { }
    SQLValue(qint64 value)
        : m_payload(value)
    { }
    SQLValue(double value)
        : m_payload(value)
    { }
    SQLValue(const QString &value)
        : m_payload(value)
    { }
    SQLValue(const QByteArray &value)
        : m_payload(value)
    { }

    /// 1 or 0. Only a bool proper: a pointer would convert to bool behind the caller's back.
    template <std::same_as<bool> Bool>
    SQLValue(Bool value)
        : m_payload(qint64(value))
    { }
    SQLValue(const void *) = delete;

    /// Seconds since 1970-01-01 UTC as a real number, to the millisecond; an invalid date is null.
    SQLValue(const QDateTime &value);

    /// The value, or null where there is none.
    template <typename T>
    SQLValue(const std::optional<T> &value)
        : SQLValue(value ? SQLValue(*value) : SQLValue())
    { }

    [[nodiscard]] const Payload &payload() const { return m_payload; }

    /// An integer, a real number truncated toward zero, or the whole number that a text spells
    /// (Text::wholeNumber). Nothing for all else and beyond the 64-bit range.
    [[nodiscard]] std::optional<qint64> integer() const;

    /// An integer or a real number, or the number that a text spells; nothing for all else.
    [[nodiscard]] std::optional<double> real() const;

    /// A text, or a number in decimal notation with the fewest digits that read back as the same
    /// number. Nothing for a blob and null.
    [[nodiscard]] std::optional<QString> string() const;

    /// The bytes of a blob; nothing for all else.
    [[nodiscard]] std::optional<QByteArray> data() const;

    friend bool operator==(const SQLValue &, const SQLValue &) = default;

private:
    Payload m_payload;
};

/// A row of a result. Of several columns with one name the last wins. Each accessor is that of
/// SQLValue, and a missing column reads like null.
struct SQLRow {
    QHash<QString, SQLValue> values;

    [[nodiscard]] std::optional<qint64> integer(const QString &column) const;
    [[nodiscard]] std::optional<double> real(const QString &column) const;
    [[nodiscard]] std::optional<QString> string(const QString &column) const;
    [[nodiscard]] std::optional<QByteArray> data(const QString &column) const;

    /// As string(), with the empty text for nothing.
    [[nodiscard]] QString str(const QString &column) const;

    /// Whether integer() is a number other than 0.
    [[nodiscard]] bool boolean(const QString &column) const;

    friend bool operator==(const SQLRow &, const SQLRow &) = default;
};

/// A connection to one database, open from construction until close() or destruction.
class SQLiteDB
{
public:
    enum class Access {
        ReadWrite, ///< A missing file is created. Foreign keys are enforced.
        ReadOnly,
        /// Read only and trusting that nothing changes the file meanwhile: takes no lock, looks at
        /// no journal and no write-ahead log beside the file, and leaves nothing there.
        Immutable,
    };

    /// How long a call waits for another process to let go of the file.
    static constexpr std::chrono::milliseconds busyTimeout{ 3000 };

    explicit SQLiteDB(const QString &path, Access access = Access::ReadWrite);

    /// The text given at opening.
    [[nodiscard]] QString path() const { return m_path; }

    /// Runs one or more statements without parameters.
    void exec(const QString &sql);

    /// Runs one statement, as far as its first row if it yields any. Returns the row id of the last
    /// insert on this connection. A placeholder without an argument is null.
    qint64 run(const QString &sql, const QList<SQLValue> &arguments = {});

    /// Runs one statement to its end and returns all its rows.
    [[nodiscard]] QList<SQLRow> query(
        const QString &sql, const QList<SQLValue> &arguments = {}) const;

    /// The same for long results, row by row and without keeping any: `take` sees each row for as
    /// long as its call lasts.
    void each(const QString &sql, const QList<SQLValue> &arguments,
        const std::function<void(const SQLRow &row)> &take) const;

    /// The number in the first row of a statement that selects one column; 0 if there is no row, no
    /// number in it, or the statement fails. Never throws an HVError.
    [[nodiscard]] qint64 scalarInt(const QString &sql, const QList<SQLValue> &arguments = {}) const;

    /// Runs `body` inside a transaction that can write from the start. If `body` or the commit
    /// throws, everything is rolled back and that first error goes on to the caller.
    void transaction(const std::function<void()> &body);

    /// The number of rows that the last INSERT, UPDATE or DELETE changed.
    [[nodiscard]] int changes() const;

    /// Whether another file stands under the path by now, or none: what is written from here on
    /// would be gone with the connection. Only where a file that is open can be moved or deleted.
    [[nodiscard]] bool hasMoved() const;

    /// SQLite's message about the last call, or "closed".
    [[nodiscard]] QString lastError() const;

    /// SQLite's own handle, for what this layer leaves out, such as functions of one's own. It
    /// stays this object's; null once closed.
    [[nodiscard]] sqlite3 *handle() const noexcept { return m_handle.get(); }

    /// Closes the connection; every statement after it fails with "closed". Safe to call again.
    void close() noexcept { m_handle.reset(); }

private:
    struct Closer {
        void operator()(sqlite3 *handle) const noexcept;
    };
    struct Finalizer {
        void operator()(sqlite3_stmt *statement) const noexcept;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    [[nodiscard]] HVError error() const;
    [[nodiscard]] Statement prepared(const QString &sql, const QList<SQLValue> &arguments) const;

    std::unique_ptr<sqlite3, Closer> m_handle;
    QString m_path;
};
