#include "store/sqlitedb.h"

#include "content/text.h"

#include <QLocale>
#include <QStringDecoder>
#include <QUrl>

#include <sqlite3.h>

#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::optional<qint64> truncated(double value)
{
    // -2^63 and 2^63 are doubles; the largest qint64 is not, so the upper bound is 2^63, left out.
    constexpr double bound = 9223372036854775808.0;
    const double whole = std::trunc(value);
    if (whole >= -bound && whole < bound)
        return static_cast<qint64>(whole);
    return std::nullopt; // NaN ends here too
}

std::optional<double> realNumber(const QString &text)
{
    // toDouble() overlooks white space around the number, but such a text isn't a number.
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber && text.trimmed().size() == text.size())
        return value;
    return std::nullopt;
}

// SQLite takes lengths and positions as int. Nothing of this program comes near that.
int checkedInt(qsizetype value)
{
    if (value > std::numeric_limits<int>::max())
        qFatal("A value or a list of arguments is too long for SQLite.");
    return static_cast<int>(value);
}

// Binds one payload; the call operators return SQLite's result code. The transient destructor lets
// SQLite copy a text or blob at once, since the buffer behind it is gone before the step. Lengths
// are explicit, for a text may hold NUL.
struct Binder {
    sqlite3_stmt *statement;
    int position;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, position); }
    int operator()(qint64 value) const { return sqlite3_bind_int64(statement, position, value); }
    int operator()(double value) const { return sqlite3_bind_double(statement, position, value); }
    int operator()(const QString &value) const
    {
        const QByteArray text = value.toUtf8();
        return sqlite3_bind_text(
            statement, position, text.constData(), checkedInt(text.size()), SQLITE_TRANSIENT);
    }
    int operator()(const QByteArray &value) const
    {
        return sqlite3_bind_blob(
            statement, position, value.constData(), checkedInt(value.size()), SQLITE_TRANSIENT);
    }
};

// Far more than a note may take, and little enough to read.
constexpr int kLongestValue = 64 * 1024 * 1024; // bytes

// Texts and blobs of a result. A small file can hold the same long text a million times.
constexpr qsizetype kLargestResult = 256 * 1024 * 1024; // bytes

// SQLite's own memory, that of all connections together.
constexpr sqlite3_int64 kMostMemory = 512 * 1024 * 1024; // bytes

// Steps of SQLite's machine in one statement, less than a second: some ten for each row that is
// read.
constexpr int kMostSteps = 5'000'000;

// A file that anybody may have made gets to run nothing of its own: no trigger, no view, no check,
// no function in its schema that reaches beyond it. Its internal tables can't be written to, it
// can't bring in other files, and damage is looked for as pages are read. What can't be looked for
// is a tree that leads back to itself, and so statements end when they have gone too far. What they
// sort stays in memory: a file for it would lie outside the user's folder and grow without bounds.
void distrust(sqlite3 *handle)
{
    for (const int trusted : { SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER,
             SQLITE_DBCONFIG_ENABLE_VIEW })
        sqlite3_db_config(handle, trusted, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLongestValue);
    // One for the process: a lower one that somebody has set stays.
    if (const sqlite3_int64 limit = sqlite3_hard_heap_limit64(-1);
        limit == 0 || limit > kMostMemory)
        sqlite3_hard_heap_limit64(kMostMemory);
    sqlite3_progress_handler(
        handle, kMostSteps, [](void *) { return 1; }, nullptr);
    sqlite3_exec(handle,
        "PRAGMA cell_size_check = ON; PRAGMA ignore_check_constraints = ON;"
        "PRAGMA temp_store = MEMORY",
        nullptr, nullptr, nullptr);
}

// SQLite counts a statement's steps for as long as the statement is kept, and the index for full
// texts keeps some of its own: in the end any search would have gone too far. One that is running
// counts on, whatever is asked between two of its rows.
void countStepsAnew(sqlite3 *handle)
{
    sqlite3_stmt *statement = handle ? sqlite3_next_stmt(handle, nullptr) : nullptr;
    for (; statement; statement = sqlite3_next_stmt(handle, statement)) {
        if (!sqlite3_stmt_busy(statement))
            sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_VM_STEP, true);
    }
}

QString decodedText(QByteArrayView bytes)
{
    // QString::fromUtf8() swallows a byte order mark at the front, which a user may have pasted. A
    // decoder keeps it and takes several times as long.
    if (!bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

SQLValue columnValue(sqlite3_stmt *statement, int column)
{
    // The pointer is asked for before the length: it is what settles the column's encoding. It is
    // missing where the value is empty.
    const auto bytes = [statement, column](const void *pointer) {
        return QByteArrayView(static_cast<const char *>(pointer),
            pointer ? sqlite3_column_bytes(statement, column) : 0);
    };

    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return qint64(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_TEXT:
        return decodedText(bytes(sqlite3_column_text(statement, column)));
    case SQLITE_BLOB:
        return bytes(sqlite3_column_blob(statement, column)).toByteArray();
    default:
        return {};
    }
}

// What a text or blob takes in memory.
qsizetype sizeOf(const SQLValue &value)
{
    if (const auto *text = std::get_if<QString>(&value.payload()))
        return text->size() * qsizetype(sizeof(QChar));
    if (const auto *blob = std::get_if<QByteArray>(&value.payload()))
        return blob->size();
    return 0;
}

} // namespace

SQLValue::SQLValue(const QDateTime &value)
{
    if (value.isValid())
        m_payload = double(value.toMSecsSinceEpoch()) / 1000;
}

std::optional<qint64> SQLValue::integer() const
{
    if (const auto *integer = std::get_if<qint64>(&m_payload))
        return *integer;
    if (const auto *real = std::get_if<double>(&m_payload))
        return truncated(*real);
    if (const auto *text = std::get_if<QString>(&m_payload))
        return Text::wholeNumber(*text);
    return std::nullopt;
}

std::optional<double> SQLValue::real() const
{
    if (const auto *integer = std::get_if<qint64>(&m_payload))
        return double(*integer);
    if (const auto *real = std::get_if<double>(&m_payload))
        return *real;
    if (const auto *text = std::get_if<QString>(&m_payload))
        return realNumber(*text);
    return std::nullopt;
}

std::optional<QString> SQLValue::string() const
{
    if (const auto *integer = std::get_if<qint64>(&m_payload))
        return QString::number(*integer);
    if (const auto *real = std::get_if<double>(&m_payload))
        return QString::number(*real, 'f', QLocale::FloatingPointShortest);
    if (const auto *text = std::get_if<QString>(&m_payload))
        return *text;
    return std::nullopt;
}

std::optional<QByteArray> SQLValue::data() const
{
    if (const auto *blob = std::get_if<QByteArray>(&m_payload))
        return *blob;
    return std::nullopt;
}

std::optional<qint64> SQLRow::integer(const QString &column) const
{
    return values.value(column).integer();
}

std::optional<double> SQLRow::real(const QString &column) const
{
    return values.value(column).real();
}

std::optional<QString> SQLRow::string(const QString &column) const
{
    return values.value(column).string();
}

std::optional<QByteArray> SQLRow::data(const QString &column) const
{
    return values.value(column).data();
}

QString SQLRow::str(const QString &column) const
{
    return string(column).value_or(QString());
}

bool SQLRow::boolean(const QString &column) const
{
    return integer(column).value_or(0) != 0;
}

void SQLiteDB::Closer::operator()(sqlite3 *handle) const noexcept
{
    sqlite3_close_v2(handle);
}

void SQLiteDB::Finalizer::operator()(sqlite3_stmt *statement) const noexcept
{
    sqlite3_finalize(statement);
}

SQLiteDB::SQLiteDB(const QString &path, Access access)
    : m_path(path)
{
    QByteArray name = path.toUtf8();
    int flags = SQLITE_OPEN_READONLY;
    if (access == Access::ReadWrite)
        flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    if (access == Access::Immutable) {
        flags |= SQLITE_OPEN_URI;
        name = QUrl::fromLocalFile(path).toEncoded() + "?immutable=1";
    }

    sqlite3 *handle = nullptr;
    const int code = sqlite3_open_v2(name.constData(), &handle, flags, nullptr);
    m_handle.reset(handle); // a failed opening hands out a handle too
    if (code != SQLITE_OK)
        throw m_handle ? error() : HVError(HVError::Kind::Database, u"could not open"_s, code);

    sqlite3_busy_timeout(handle, int(busyTimeout.count()));
    distrust(handle);
    if (access == Access::ReadWrite)
        exec(u"PRAGMA foreign_keys = ON"_s);
}

void SQLiteDB::exec(const QString &sql)
{
    countStepsAnew(m_handle.get());
    char *rawMessage = nullptr;
    const int code
        = sqlite3_exec(m_handle.get(), sql.toUtf8().constData(), nullptr, nullptr, &rawMessage);
    const std::unique_ptr<char, decltype(&sqlite3_free)> message(rawMessage, &sqlite3_free);
    if (code == SQLITE_OK)
        return;
    if (!message)
        throw error();
    throw HVError(HVError::Kind::Database, QString::fromUtf8(message.get()), code);
}

qint64 SQLiteDB::run(const QString &sql, const QList<SQLValue> &arguments)
{
    const Statement statement = prepared(sql, arguments);
    const int code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throw error();
    return sqlite3_last_insert_rowid(m_handle.get());
}

QList<SQLRow> SQLiteDB::query(const QString &sql, const QList<SQLValue> &arguments) const
{
    QList<SQLRow> rows;
    each(sql, arguments, [&rows](const SQLRow &row) { rows.append(row); });
    return rows;
}

void SQLiteDB::each(const QString &sql, const QList<SQLValue> &arguments,
    const std::function<void(const SQLRow &row)> &take) const
{
    const Statement statement = prepared(sql, arguments);
    QStringList names;
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column)
        names.append(QString::fromUtf8(sqlite3_column_name(statement.get(), column)));

    qsizetype size = 0;
    SQLRow row; // One for all: making its table anew takes longer than reading the columns.
    int code = sqlite3_step(statement.get());
    for (; code == SQLITE_ROW; code = sqlite3_step(statement.get())) {
        for (int column = 0; column < names.size(); ++column) {
            const SQLValue value = columnValue(statement.get(), column);
            size += sizeOf(value);
            row.values.insert(names.at(column), value);
        }
        if (size > kLargestResult)
            throw HVError(HVError::Kind::Database, u"the result is too large"_s, SQLITE_TOOBIG);
        take(row);
    }
    if (code != SQLITE_DONE)
        throw error();
}

qint64 SQLiteDB::scalarInt(const QString &sql, const QList<SQLValue> &arguments) const
{
    try {
        const QList<SQLRow> rows = query(sql, arguments);
        if (rows.isEmpty())
            return 0;
        return rows.first().values.cbegin()->integer().value_or(0);
    } catch (const HVError &) {
        return 0; // the answers are counts for display, and a failed count shows as nothing there
    }
}

void SQLiteDB::transaction(const std::function<void()> &body)
{
    exec(u"BEGIN IMMEDIATE"_s);
    try {
        body();
        exec(u"COMMIT"_s);
    } catch (...) {
        // Not exec(): a rollback that fails must not hide the first error. Where SQLite has rolled
        // back by itself, as on a full disk, it does fail.
        sqlite3_exec(m_handle.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

bool SQLiteDB::hasMoved() const
{
    int moved = 0; // Stays so where SQLite doesn't know of such a thing.
    if (m_handle)
        sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

int SQLiteDB::changes() const
{
    return m_handle ? sqlite3_changes(m_handle.get()) : 0;
}

QString SQLiteDB::lastError() const
{
    return m_handle ? QString::fromUtf8(sqlite3_errmsg(m_handle.get())) : u"closed"_s;
}

HVError SQLiteDB::error() const
{
    const int code = m_handle ? sqlite3_errcode(m_handle.get()) : SQLITE_MISUSE;
    return HVError(HVError::Kind::Database, lastError(), code);
}

SQLiteDB::Statement SQLiteDB::prepared(const QString &sql, const QList<SQLValue> &arguments) const
{
    countStepsAnew(m_handle.get());
    sqlite3_stmt *raw = nullptr;
    const int code
        = sqlite3_prepare_v2(m_handle.get(), sql.toUtf8().constData(), -1, &raw, nullptr);
    Statement statement(raw);
    if (code != SQLITE_OK || !statement)
        throw error();

    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const Binder binder{ statement.get(), checkedInt(index + 1) };
        if (std::visit(binder, arguments.at(index).payload()) != SQLITE_OK)
            throw error();
    }
    return statement;
}
