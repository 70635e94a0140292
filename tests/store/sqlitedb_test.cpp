#include "store/sqlitedb.h"

#include "store/storetesting.h"
#include "support/environment.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <limits>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
constexpr qint64 kLargest = std::numeric_limits<qint64>::max();

// What a value reads back as after a trip through the database.
SQLValue roundTrip(const SQLValue &value)
{
    const SQLiteDB db(u":memory:"_s);
    return db.query(u"SELECT ? AS answer"_s, { value }).constFirst().values.value(u"answer"_s);
}

SQLRow rowOf(const SQLValue &value)
{
    return { .values = { { u"column"_s, value } } };
}

} // namespace

TEST(HVError, DescribesEachKindInItsOwnWords)
{
    using Kind = HVError::Kind;
    EXPECT_EQ(HVError(Kind::Database, u"disk I/O error"_s).description(),
        u"The database reported a problem: disk I/O error"_s);
    EXPECT_EQ(HVError(Kind::Invalid, u"A note can't be empty."_s).description(),
        u"A note can't be empty."_s);
    EXPECT_EQ(HVError(Kind::BadBackup, u"it is cut off"_s).description(),
        u"This file can't be restored: it is cut off"_s);
    EXPECT_EQ(HVError(Kind::NotFound).description(), u"That record no longer exists."_s);
}

TEST(HVError, SaysTheSameToTheStandardLibrary)
{
    const HVError error(HVError::Kind::Invalid, u"Zu groß."_s);
    EXPECT_STREQ(error.what(), "Zu gro\xC3\x9F.");
}

TEST(HVError, IsEqualByKindAndPayloadAlone)
{
    using Kind = HVError::Kind;
    EXPECT_EQ(HVError(Kind::Database, u"busy"_s, SQLITE_BUSY), HVError(Kind::Database, u"busy"_s));
    EXPECT_FALSE(HVError(Kind::Database, u"busy"_s) == HVError(Kind::Database, u"full"_s));
    EXPECT_FALSE(HVError(Kind::Database, u"busy"_s) == HVError(Kind::Invalid, u"busy"_s));
}

TEST(SQLRow, ReadsAMissingColumnAsNothing)
{
    const SQLRow row;
    EXPECT_FALSE(row.integer(u"missing"_s));
    EXPECT_FALSE(row.real(u"missing"_s));
    EXPECT_FALSE(row.string(u"missing"_s));
    EXPECT_FALSE(row.data(u"missing"_s));
    EXPECT_EQ(row.str(u"missing"_s), QString());
    EXPECT_FALSE(row.boolean(u"missing"_s));
}

TEST(SQLRow, ReadsWholeNumbers)
{
    const struct {
        SQLValue value;
        std::optional<qint64> expected;
    } cases[]{
        { 42, 42 },
        { kSmallest, kSmallest },
        { 2.9, 2 },
        { -2.9, -2 },
        { -0x1p63, kSmallest },
        { 0x1p63, std::nullopt }, // the first double beyond the range
        { std::numeric_limits<double>::infinity(), std::nullopt },
        { std::numeric_limits<double>::quiet_NaN(), std::nullopt },
        { u"-17"_s, -17 },
        { u"9223372036854775807"_s, kLargest },
        { u"9223372036854775808"_s, std::nullopt },
        { u"1.5"_s, std::nullopt },
        { u" 1"_s, std::nullopt },
        { u"one"_s, std::nullopt },
        { QString(), std::nullopt },
        { QByteArray("1"), std::nullopt },
        { std::nullopt, std::nullopt },
    };
    for (const auto &[value, expected] : cases) {
        SCOPED_TRACE(::testing::PrintToString(value.string().value_or(u"(no text)"_s)));
        EXPECT_EQ(rowOf(value).integer(u"column"_s), expected);
        EXPECT_EQ(rowOf(value).boolean(u"column"_s), expected.value_or(0) != 0);
    }
}

TEST(SQLRow, ReadsRealNumbers)
{
    const struct {
        SQLValue value;
        std::optional<double> expected;
    } cases[]{
        { 42, 42.0 },
        { 0.1, 0.1 },
        { u"2.5"_s, 2.5 },
        { u"-1e3"_s, -1000.0 },
        { u"2,5"_s, std::nullopt },
        { u"2.5 "_s, std::nullopt },
        { u"f/2.5"_s, std::nullopt },
        { QString(), std::nullopt },
        { QByteArray("2.5"), std::nullopt },
        { std::nullopt, std::nullopt },
    };
    for (const auto &[value, expected] : cases) {
        SCOPED_TRACE(::testing::PrintToString(value.string().value_or(u"(no text)"_s)));
        EXPECT_EQ(rowOf(value).real(u"column"_s), expected);
    }
}

TEST(SQLRow, ReadsTextsAndTheShortestDecimalTextOfNumbers)
{
    const struct {
        SQLValue value;
        std::optional<QString> expected;
    } cases[]{
        { u"f/2.8"_s, u"f/2.8"_s },
        { QString(), QString() },
        { kSmallest, u"-9223372036854775808"_s },
        { 0.1, u"0.1"_s },
        { 1.0 / 3, u"0.3333333333333333"_s },
        { 5.0, u"5"_s },
        { 1793000000.0, u"1793000000"_s },
        { 1793000000.789, u"1793000000.789"_s },
        { QByteArray("text"), std::nullopt },
        { std::nullopt, std::nullopt },
    };
    for (const auto &[value, expected] : cases) {
        SCOPED_TRACE(::testing::PrintToString(expected.value_or(u"(nothing)"_s)));
        EXPECT_EQ(rowOf(value).string(u"column"_s), expected);
        EXPECT_EQ(rowOf(value).str(u"column"_s), expected.value_or(QString()));
    }
}

TEST(SQLRow, ReadsBytesOfABlobAlone)
{
    EXPECT_EQ(rowOf(QByteArray("\0\xFF", 2)).data(u"column"_s), QByteArray("\0\xFF", 2));
    EXPECT_EQ(rowOf(QByteArray()).data(u"column"_s), QByteArray());
    EXPECT_FALSE(rowOf(u"text"_s).data(u"column"_s));
    EXPECT_FALSE(rowOf(1).data(u"column"_s));
    EXPECT_FALSE(rowOf(1.5).data(u"column"_s));
    EXPECT_FALSE(rowOf(std::nullopt).data(u"column"_s));
}

TEST(SQLiteDB, BindsEachTypeOfArgument)
{
    EXPECT_EQ(roundTrip(std::nullopt), SQLValue());
    EXPECT_EQ(roundTrip(true), SQLValue(1));
    EXPECT_EQ(roundTrip(false), SQLValue(0));
    EXPECT_EQ(roundTrip(-7), SQLValue(qint64(-7)));
    EXPECT_EQ(roundTrip(kSmallest), SQLValue(kSmallest));
    EXPECT_EQ(roundTrip(kLargest), SQLValue(kLargest));
    EXPECT_EQ(roundTrip(0.1), SQLValue(0.1));
    EXPECT_EQ(roundTrip(u"aperture"_s), SQLValue(u"aperture"_s));
    EXPECT_EQ(roundTrip(QByteArray("\0\x01\xFF", 3)), SQLValue(QByteArray("\0\x01\xFF", 3)));
}

TEST(SQLiteDB, BindsAnOptionalAsItsValueOrNull)
{
    EXPECT_EQ(roundTrip(std::optional<QString>(u"lesson"_s)), SQLValue(u"lesson"_s));
    EXPECT_EQ(roundTrip(std::optional<QString>()), SQLValue());
    EXPECT_EQ(roundTrip(std::optional<bool>(true)), SQLValue(1));
    EXPECT_EQ(roundTrip(std::optional<qint64>(3)), SQLValue(3));
    EXPECT_EQ(roundTrip(std::optional<QDateTime>()), SQLValue());
}

TEST(SQLiteDB, BindsADateAsSecondsSince1970WithMilliseconds)
{
    const QDateTime moment(QDate(2026, 10, 24), QTime(7, 6, 40, 789), Qt::UTC);
    EXPECT_EQ(roundTrip(moment), SQLValue(1792825600.789));
    EXPECT_EQ(roundTrip(moment.toOffsetFromUtc(7200)), SQLValue(1792825600.789));
    EXPECT_EQ(roundTrip(QDateTime()), SQLValue());
}

TEST(SQLiteDB, BindsEmptyTextsAndBlobsAsEmptyRatherThanNull)
{
    EXPECT_EQ(roundTrip(QString()), SQLValue(u""_s));
    EXPECT_EQ(roundTrip(QByteArray()), SQLValue(QByteArray("")));
}

TEST(SQLiteDB, KeepsEveryCharacterOfAText)
{
    const QString texts[]{
        u"Grüße, naïve café, 写真, ✓, 📷"_s,
        u"before\0after"_s, // a text of C would end here
        u"\uFEFFbegins with a byte order mark"_s,
        u"e\u0301 stays two code points"_s,
        u"line\r\nline\ttab"_s,
    };
    for (const QString &text : texts)
        EXPECT_EQ(roundTrip(text), SQLValue(text));
}

TEST(SQLiteDB, TakesArgumentsInOrderAndNullForTheRest)
{
    const SQLiteDB db(u":memory:"_s);
    const SQLRow row = db.query(u"SELECT ? AS a, ? AS b, ? AS c"_s, { 1, u"two"_s }).constFirst();
    EXPECT_EQ(row.values,
        (QHash<QString, SQLValue>{ { u"a"_s, 1 }, { u"b"_s, u"two"_s }, { u"c"_s, {} } }));
}

TEST(SQLiteDB, RefusesMoreArgumentsThanPlaceholders)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a)"_s);
    const auto error = errorOf([&] { db.run(u"INSERT INTO t VALUES (?)"_s, { 1, 2 }); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_RANGE);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM t"_s), 0);
}

TEST(SQLiteDB, KeepsTheLastOfSeveralColumnsWithOneName)
{
    const SQLiteDB db(u":memory:"_s);
    const SQLRow row = db.query(u"SELECT 1 AS a, 2 AS b, 3 AS a"_s).constFirst();
    EXPECT_EQ(row.values, (QHash<QString, SQLValue>{ { u"a"_s, 3 }, { u"b"_s, 2 } }));
}

TEST(SQLiteDB, ReturnsRowsInTheOrderOfTheResult)
{
    const SQLiteDB db(u":memory:"_s);
    const QList<SQLRow> rows
        = db.query(u"SELECT column1 AS n FROM (VALUES (3), (1), (2)) ORDER BY n DESC"_s);
    EXPECT_EQ(rows,
        (QList<SQLRow>{ { { { u"n"_s, 3 } } }, { { { u"n"_s, 2 } } }, { { { u"n"_s, 1 } } } }));
    EXPECT_TRUE(db.query(u"SELECT 1 WHERE 0"_s).isEmpty());
}

TEST(SQLiteDB, FailsAQueryThatBreaksInTheMiddle)
{
    const SQLiteDB db(u":memory:"_s);
    // The second row overflows.
    const auto error = errorOf([&] {
        static_cast<void>(db.query(u"SELECT abs(column1) FROM (VALUES (1), (?))"_s, { kSmallest }));
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(*error, HVError(HVError::Kind::Database, u"integer overflow"_s));
}

TEST(SQLiteDB, RunReturnsTheRowIdOfTheInsert)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (id INTEGER PRIMARY KEY, a)"_s);
    EXPECT_EQ(db.run(u"INSERT INTO t VALUES (?, ?)"_s, { kLargest - 1, u"x"_s }), kLargest - 1);
    EXPECT_EQ(db.run(u"INSERT INTO t (a) VALUES (?)"_s, { u"y"_s }), kLargest);
}

TEST(SQLiteDB, RunOfASelectThatYieldsARowSucceeds)
{
    SQLiteDB db(u":memory:"_s);
    EXPECT_FALSE(errorOf([&] { db.run(u"SELECT 1"_s); }));
}

TEST(SQLiteDB, RunFailsWithTheMessageOfSQLite)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a NOT NULL)"_s);
    const auto broken = errorOf([&] { db.run(u"INSERT INTO missing VALUES (1)"_s); });
    const auto refused = errorOf([&] { db.run(u"INSERT INTO t VALUES (?)"_s, { std::nullopt }); });
    EXPECT_EQ(broken, HVError(HVError::Kind::Database, u"no such table: missing"_s));
    EXPECT_EQ(refused, HVError(HVError::Kind::Database, u"NOT NULL constraint failed: t.a"_s));
    EXPECT_EQ(broken->sqliteCode(), SQLITE_ERROR);
    EXPECT_EQ(refused->sqliteCode(), SQLITE_CONSTRAINT);
}

TEST(SQLiteDB, FailsATextWithoutAStatement)
{
    SQLiteDB db(u":memory:"_s);
    EXPECT_TRUE(errorOf([&] { db.run(QString()); }));
    EXPECT_TRUE(errorOf([&] { static_cast<void>(db.query(u"-- nothing"_s)); }));
}

TEST(SQLiteDB, ExecRunsSeveralStatementsAndStopsAtTheFirstThatFails)
{
    SQLiteDB db(u":memory:"_s);
    const auto error = errorOf(
        [&] { db.exec(u"CREATE TABLE t (a); INSERT INTO nowhere VALUES (1); DROP TABLE t"_s); });
    EXPECT_EQ(error, HVError(HVError::Kind::Database, u"no such table: nowhere"_s));
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM sqlite_schema WHERE name = 't'"_s), 1);
}

TEST(SQLiteDB, ScalarIntReadsTheFirstRow)
{
    const SQLiteDB db(u":memory:"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT column1 FROM (VALUES (7), (8))"_s), 7);
    EXPECT_EQ(db.scalarInt(u"SELECT ?"_s, { 2.9 }), 2);
    EXPECT_EQ(db.scalarInt(u"SELECT ?"_s, { u"12"_s }), 12);
    EXPECT_EQ(db.scalarInt(u"SELECT ?"_s, { u"twelve"_s }), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT ?"_s, { QByteArray("12") }), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT NULL"_s), 0);
}

TEST(SQLiteDB, ScalarIntIsZeroWithoutARowAndForABrokenStatement)
{
    const SQLiteDB db(u":memory:"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT 1 WHERE 0"_s), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM missing"_s), 0);
    EXPECT_EQ(db.scalarInt(u"SELEKT 1"_s), 0);
}

TEST(SQLiteDB, CountsTheRowsThatAStatementChanged)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a); INSERT INTO t VALUES (1), (2), (3)"_s);
    db.run(u"UPDATE t SET a = 0 WHERE a > ?"_s, { 1 });
    EXPECT_EQ(db.changes(), 2);
    db.run(u"DELETE FROM t WHERE a = ?"_s, { 99 });
    EXPECT_EQ(db.changes(), 0);
}

TEST(SQLiteDB, TransactionKeepsWhatItsBodyDid)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a)"_s);
    db.transaction([&] {
        db.run(u"INSERT INTO t VALUES (1)"_s);
        db.run(u"INSERT INTO t VALUES (2)"_s);
    });
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM t"_s), 2);
    EXPECT_FALSE(errorOf([&] { db.exec(u"BEGIN"_s); })); // none is open any more
}

TEST(SQLiteDB, AFailedTransactionLeavesNothingAndGivesTheFirstError)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a)"_s);
    const auto error = errorOf([&] {
        db.transaction([&] {
            db.run(u"INSERT INTO t VALUES (1)"_s);
            db.run(u"INSERT INTO missing VALUES (1)"_s);
        });
    });
    EXPECT_EQ(error, HVError(HVError::Kind::Database, u"no such table: missing"_s));
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM t"_s), 0);
    EXPECT_FALSE(errorOf([&] { db.exec(u"BEGIN"_s); }));
}

TEST(SQLiteDB, AFailedTransactionGivesTheFirstErrorEvenIfTheRollbackFails)
{
    SQLiteDB db(u":memory:"_s);
    const HVError first(HVError::Kind::Invalid, u"the first error"_s);
    const auto error = errorOf([&] {
        db.transaction([&] {
            db.exec(u"ROLLBACK"_s); // leaves none for the transaction itself to roll back
            throw first;
        });
    });
    EXPECT_EQ(error, first);
}

TEST(SQLiteDB, ATransactionRollsBackForAnyException)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a)"_s);
    EXPECT_THROW(db.transaction([&] {
        db.run(u"INSERT INTO t VALUES (1)"_s);
        throw std::runtime_error("of another kind");
    }),
        std::runtime_error);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM t"_s), 0);
}

TEST(SQLiteDB, ATransactionThatCannotCommitIsRolledBack)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE parent (id INTEGER PRIMARY KEY);"
            "CREATE TABLE child (id REFERENCES parent DEFERRABLE INITIALLY DEFERRED)"_s);
    const auto error
        = errorOf([&] { db.transaction([&] { db.run(u"INSERT INTO child VALUES (1)"_s); }); });
    EXPECT_EQ(error, HVError(HVError::Kind::Database, u"FOREIGN KEY constraint failed"_s));
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM child"_s), 0);
    EXPECT_FALSE(errorOf([&] { db.exec(u"BEGIN"_s); }));
}

TEST(SQLiteDB, ATransactionKeepsOtherWritersOutFromItsStart)
{
    const Folder folder;
    SQLiteDB db(folder.path(u"file.sqlite"_s));
    SQLiteDB other(db.path());
    other.exec(u"PRAGMA busy_timeout = 0"_s); // nobody lets go of the file while it would wait
    db.transaction([&] {
        const auto error = errorOf([&] { other.exec(u"CREATE TABLE t (a)"_s); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->sqliteCode(), SQLITE_BUSY);
    });
}

TEST(SQLiteDB, ATransactionThatCannotBeginUndoesNothing)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a); BEGIN; INSERT INTO t VALUES (1)"_s);
    bool hasRun = false;
    EXPECT_TRUE(errorOf([&] { db.transaction([&] { hasRun = true; }); }));
    EXPECT_FALSE(hasRun);
    db.exec(u"COMMIT"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM t"_s), 1);
}

TEST(SQLiteDB, SaysClosedAfterClose)
{
    SQLiteDB db(u":memory:"_s);
    db.close();
    db.close();
    EXPECT_EQ(db.lastError(), u"closed"_s);
    EXPECT_EQ(db.changes(), 0);

    const HVError closed(HVError::Kind::Database, u"closed"_s);
    EXPECT_EQ(errorOf([&] { db.exec(u"SELECT 1"_s); }), closed);
    EXPECT_EQ(errorOf([&] { db.run(u"SELECT 1"_s); }), closed);
    EXPECT_EQ(errorOf([&] { static_cast<void>(db.query(u"SELECT 1"_s)); }), closed);
    EXPECT_EQ(errorOf([&] { db.transaction([] {}); }), closed);
    EXPECT_EQ(db.scalarInt(u"SELECT 1"_s), 0);
}

TEST(SQLiteDB, LastErrorIsThatOfTheLastCall)
{
    SQLiteDB db(u":memory:"_s);
    EXPECT_TRUE(errorOf([&] { db.run(u"INSERT INTO missing VALUES (1)"_s); }));
    EXPECT_EQ(db.lastError(), u"no such table: missing"_s);
}

TEST(SQLiteDB, FailsToOpenInAFolderThatDoesNotExist)
{
    const Folder folder;
    const QString path = folder.path(u"missing/file.sqlite"_s);
    const auto error = errorOf([&] { SQLiteDB db(path); });
    EXPECT_EQ(error, HVError(HVError::Kind::Database, u"unable to open database file"_s));
    EXPECT_TRUE(fingerprint(folder.path()).isEmpty());
}

TEST(SQLiteDB, OpensAPathWithAnyCharacterInIt)
{
    const Folder folder;
    const QString path = folder.path(u"My Prögress ?#%41&.sqlite"_s);
    {
        SQLiteDB db(path);
        db.exec(u"CREATE TABLE t (a); INSERT INTO t VALUES (5)"_s);
        EXPECT_EQ(db.path(), path);
    }
    EXPECT_EQ(fingerprint(folder.path()).keys(), QStringList{ u"My Prögress ?#%41&.sqlite"_s });
    for (const auto access : { SQLiteDB::Access::ReadOnly, SQLiteDB::Access::Immutable })
        EXPECT_EQ(SQLiteDB(path, access).scalarInt(u"SELECT a FROM t"_s), 5);
}

TEST(SQLiteDB, WaitsThreeSecondsForABusyFile)
{
    EXPECT_EQ(SQLiteDB(u":memory:"_s).scalarInt(u"PRAGMA busy_timeout"_s), 3000);
}

TEST(SQLiteDB, EnforcesForeignKeys)
{
    EXPECT_EQ(SQLiteDB(u":memory:"_s).scalarInt(u"PRAGMA foreign_keys"_s), 1);
}

TEST(SQLiteDB, RunsNothingThatTheFileBringsAlong)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a); CREATE TABLE victim (b); INSERT INTO victim VALUES (1);"
            "CREATE TRIGGER r AFTER INSERT ON t BEGIN DELETE FROM victim; END;"
            "CREATE VIEW v AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
            "SELECT i FROM n"_s);
    db.run(u"INSERT INTO t VALUES (1)"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM victim"_s), 1);
    EXPECT_TRUE(errorOf([&] { static_cast<void>(db.query(u"SELECT i FROM v"_s)); }));
}

TEST(SQLiteDB, BringsInNoOtherFile)
{
    const Folder folder;
    SQLiteDB db(u":memory:"_s);
    EXPECT_TRUE(
        errorOf([&] { db.run(u"ATTACH ? AS other"_s, { folder.path(u"other.sqlite"_s) }); }));
    EXPECT_TRUE(fingerprint(folder.path()).isEmpty());
}

TEST(SQLiteDB, LetsNobodyWriteToItsSchema)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a); PRAGMA writable_schema = ON"_s);
    EXPECT_TRUE(errorOf([&] { db.exec(u"UPDATE sqlite_schema SET sql = 'nonsense'"_s); }));
}

TEST(SQLiteDB, RefusesAValueThatIsTooLongToBeANote)
{
    SQLiteDB db(u":memory:"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT length(zeroblob(64 << 20))"_s), 64 << 20);
    const auto error
        = errorOf([&] { static_cast<void>(db.query(u"SELECT zeroblob((64 << 20) + 1)"_s)); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_TOOBIG);
}

TEST(SQLiteDB, RefusesAResultThatIsTooLargeToBeNotes)
{
    const SQLiteDB db(u":memory:"_s);
    const auto rows = [&db](int count) {
        return errorOf([&] {
            db.each(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT ?) "
                    "SELECT zeroblob(64 << 20) FROM n"_s,
                { count }, [](const SQLRow &) {});
        });
    };
    EXPECT_FALSE(rows(4));
    const auto error = rows(5);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_TOOBIG);
}

TEST(SQLiteDB, EndsAStatementWithoutEnd)
{
    SQLiteDB db(u":memory:"_s);
    const QString endless = u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                            "SELECT COUNT(*) FROM n"_s;
    for (int time = 0; time < 2; ++time) {
        const auto error = errorOf([&] { static_cast<void>(db.query(endless)); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->sqliteCode(), SQLITE_INTERRUPT);
    }
    EXPECT_TRUE(errorOf([&] { db.exec(endless); }));
    EXPECT_EQ(db.scalarInt(u"SELECT 1"_s), 1); // each statement has its own time
}

// The index for full texts keeps statements of its own for as long as the connection is open, and
// SQLite never sets their steps back.
TEST(SQLiteDB, CountsStepsFromTheStartOfAStatement)
{
    constexpr int kColumns = 100;
    QStringList columns;
    for (int column = 0; column < kColumns; ++column)
        columns.append(u"c%1"_s.arg(column));
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE VIRTUAL TABLE t USING fts5("_s + columns.join(u',') + u')');
    db.exec(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 1000) "
            "INSERT INTO t (c0) SELECT 'word' FROM n"_s);

    // A hundred steps and more for each row, of which the statement's own are a few.
    for (int time = 0; time < 100; ++time)
        ASSERT_EQ(db.query(u"SELECT c0 FROM t WHERE t MATCH 'word'"_s).size(), 1000) << time;
}

TEST(SQLiteDB, CountsTheStepsOfAStatementOnWhileOthersRun)
{
    const SQLiteDB db(u":memory:"_s);
    int rows = 0;
    const auto error = errorOf([&] {
        db.each(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                "SELECT i FROM n WHERE i % 10000 = 0"_s,
            {}, [&](const SQLRow &) {
                if (rows > 1000)
                    throw std::runtime_error("no end");
                rows += db.scalarInt(u"SELECT 1"_s);
            });
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_INTERRUPT);
    EXPECT_GT(rows, 10);
}

TEST(SQLiteDB, SortsInMemoryAndNoMoreThanFitsIn)
{
    const Folder scratch;
    const EnvironmentVariable temporaryFolder("TMPDIR", scratch.path());
    const SQLiteDB db(u":memory:"_s);
    const auto error = errorOf([&] {
        static_cast<void>(
            db.query(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                     "SELECT zeroblob(1 << 20) || i AS text FROM n ORDER BY text"_s));
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_NOMEM);
}

TEST(SQLiteDB, MakesNoChecksOfTheFile)
{
    SQLiteDB db(u":memory:"_s);
    db.exec(u"CREATE TABLE t (a CHECK (a < 1)); INSERT INTO t VALUES (2)"_s);
    EXPECT_EQ(db.scalarInt(u"SELECT a FROM t"_s), 2);
}

TEST(SQLiteDB, ReadOnlyNeitherCreatesNorWrites)
{
    const Folder folder;
    const QString path = folder.path(u"file.sqlite"_s);
    EXPECT_TRUE(errorOf([&] { SQLiteDB(path, SQLiteDB::Access::ReadOnly); }));
    EXPECT_TRUE(fingerprint(folder.path()).isEmpty());

    SQLiteDB(path).exec(u"CREATE TABLE t (a)"_s);
    const Fingerprint before = fingerprint(folder.path());
    const auto error = errorOf(
        [&] { SQLiteDB(path, SQLiteDB::Access::ReadOnly).run(u"INSERT INTO t VALUES (1)"_s); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_READONLY);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST(SQLiteDB, ImmutableLeavesNothingBesideTheFile)
{
    const Folder folder;
    const QString path = folder.path(u"file.sqlite"_s);
    SQLiteDB(path).exec(u"PRAGMA journal_mode = WAL; CREATE TABLE t (a)"_s);

    const SQLiteDB db(path, SQLiteDB::Access::Immutable);
    EXPECT_EQ(db.scalarInt(u"SELECT COUNT(*) FROM sqlite_schema"_s), 1);
    EXPECT_EQ(fingerprint(folder.path()).keys(), QStringList{ u"file.sqlite"_s });
}

TEST(SQLiteDB, CanBeMoved)
{
    SQLiteDB first(u":memory:"_s);
    first.exec(u"CREATE TABLE t (a); INSERT INTO t VALUES (5)"_s);
    const SQLiteDB second(std::move(first));
    EXPECT_EQ(second.scalarInt(u"SELECT a FROM t"_s), 5);
}
