#include "content/contentlibrary.h"
#include "shell/info.h"
#include "store/dateformatter.h"
#include "store/storetesting.h"
#include "store/textfile.h"
#include "store/userstore.h"

#include "support/filesizelimit.h"
#include "support/ordinaryuser.h"
#include "support/qtprinters.h"
#include "support/testcourse.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

class ExportTest : public ::testing::Test
{
protected:
    Note add(const QString &type, const QString &id, const QString &body)
    {
        Note note{ .targetType = type, .targetID = id, .body = body };
        store.save(note);
        return note;
    }

    // Another connection, which can give a row a date of its own.
    void change(const QString &sql) const { SQLiteDB(store.url().toLocalFile()).exec(sql); }

    [[nodiscard]] QStringList lines() const { return store.exportText(*library).split(u'\n'); }

    [[nodiscard]] const ContentLibrary &course() const { return *library; }

    const Folder folder;
    UserStore store{ folder.url(u"Progress.sqlite"_s) };
    const std::unique_ptr<const ContentLibrary> library = [this] {
        TestCourse::write(folder.path(u"course"_s));
        return std::make_unique<const ContentLibrary>(folder.path(u"course"_s));
    }();
};

} // namespace

TEST_F(ExportTest, DigestOfAnEmptyStoreIsThreeMarks)
{
    EXPECT_EQ(store.digest(), u"###"_s);
}

TEST_F(ExportTest, DigestListsLessonsQuizzesBookmarksAndNotes)
{
    store.setComplete(u"m03.2"_s, true);
    store.setComplete(u"m01.1"_s, true);
    store.saveQuiz(u"m01"_s, 5, 6, QDateTime::currentDateTimeUtc());
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    add(u"lesson"_s, u"m01.1"_s, u"Aperture = the hole."_s);
    add(u"general"_s, u"general"_s, u"Buy a 50mm f/1.8 first."_s);
    EXPECT_EQ(store.digest(),
        u"m01.1,m03.2#m01=5/6#gear:tripod#lesson:m01.1:Aperture = the hole.¦general:general:Buy a "
        "50mm f/1.8 first."_s);
}

TEST_F(ExportTest, DigestKeepsQuizzesInTheirOrderAndSortsBookmarks)
{
    store.saveQuiz(u"m02"_s, 1, 6, QDateTime::currentDateTimeUtc());
    store.saveQuiz(u"m01"_s, 6, 6, QDateTime::currentDateTimeUtc().addDays(-1));
    store.setBookmark(u"lesson"_s, u"b"_s, true);
    store.setBookmark(u"lesson"_s, u"a"_s, true);
    store.setBookmark(u"gear"_s, u"z"_s, true);
    EXPECT_EQ(store.digest(), u"#m02=1/6,m01=6/6#gear:z,lesson:a,lesson:b#"_s);
}

TEST_F(ExportTest, DigestLeavesDatesOut)
{
    add(u"gear"_s, u"tripod"_s, u"Heavy."_s);
    store.setComplete(u"m01.1"_s, true);
    const QString before = store.digest();
    change(u"UPDATE notes SET created = 1, updated = 2; UPDATE progress SET completed = 3"_s);
    EXPECT_EQ(store.digest(), before);
}

TEST_F(ExportTest, DigestOfAListThatCanNotBeReadIsEmptyThere)
{
    store.setComplete(u"m01.1"_s, true);
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    change(u"DROP TABLE progress"_s);
    EXPECT_EQ(store.digest(), u"##gear:tripod#"_s);
}

TEST_F(ExportTest, OfAnEmptyStoreHasHeadModulesAndEmptySections)
{
    const QStringList text = lines();
    ASSERT_EQ(text.size(), 12);
    EXPECT_EQ(text.at(0), u"CRVN Halvorin — my notes and progress"_s);
    EXPECT_TRUE(text.at(1).startsWith(u"Exported "_s));
    EXPECT_EQ(text.at(2), u"by Corvane (CRVN) · "_s + HVInfo::website().toString());
    EXPECT_EQ(text.at(3), QString());
    EXPECT_EQ(text.at(4), u"== PROGRESS: 0 of 3 lessons finished"_s);
    EXPECT_EQ(text.at(5), course().modules().at(0).title + u": 0/2 lessons"_s);
    EXPECT_EQ(text.at(6), course().modules().at(1).title + u": 0/1 lessons"_s);
    // The text ends with the line end of its last line.
    EXPECT_EQ(text.mid(7),
        (QStringList{ QString(), u"== BOOKMARKS"_s, QString(), u"== NOTES"_s, QString() }));
}

TEST_F(ExportTest, TellsOfProgressAndTheBestQuizOfAModule)
{
    store.setComplete(u"a1-l1"_s, true);
    store.setComplete(u"gone"_s, true); // Finished, and no longer in the course.
    store.saveQuiz(u"a1"_s, 2, 2, QDateTime::currentDateTimeUtc());
    store.saveQuiz(u"a1"_s, 1, 2, QDateTime::currentDateTimeUtc());
    const QStringList text = lines();
    EXPECT_EQ(text.at(4), u"== PROGRESS: 2 of 3 lessons finished"_s);
    EXPECT_EQ(text.at(5), course().modules().at(0).title + u": 1/2 lessons, best quiz 2/2"_s);
    EXPECT_EQ(text.at(6), course().modules().at(1).title + u": 0/1 lessons"_s);
}

TEST_F(ExportTest, ListsBookmarksTheNewestFirst)
{
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    store.setBookmark(u"lesson"_s, u"gone"_s, true);
    change(u"UPDATE bookmarks SET created = 1 WHERE target_type = 'gear'"_s);
    const QString text = store.exportText(course());
    EXPECT_TRUE(text.contains(u"\n== BOOKMARKS\n• Lesson: gone\n• Gear: "_s
        + course().gearEntry(u"tripod")->name + u"\n\n== NOTES\n"_s));
}

TEST_F(ExportTest, EndsWithTheNotesAndTheirLastChange)
{
    add(u"lesson"_s, u"gone"_s, u"Écrit à la main ✓\nzwei Zeilen"_s);
    const Note general = add(u"general"_s, u"general"_s, u"Buy film."_s);
    // Created in 2001, changed in 2026: only the second shows, and it leads.
    change(u"UPDATE notes SET created = 1000000000"_s);
    change(u"UPDATE notes SET updated = 1790000000 WHERE id = %1"_s.arg(general.id - 1));
    change(u"UPDATE notes SET updated = 1791000000 WHERE id = %1"_s.arg(general.id));
    const DateFormatter dates;
    const auto date
        = [&](qint64 seconds) { return dates.dayAndTime(QDateTime::fromSecsSinceEpoch(seconds)); };
    EXPECT_TRUE(store.exportText(course()).endsWith(u"\n== NOTES\n\n--- General note ("_s
        + date(1791000000) + u")\nBuy film.\n\n--- Lesson: gone ("_s + date(1790000000)
        + u")\nÉcrit à la main ✓\nzwei Zeilen\n"_s));
    EXPECT_FALSE(store.exportText(course()).contains(u"2001"_s));
    EXPECT_TRUE(store.digest().contains(u"Écrit à la main ✓\nzwei Zeilen"_s));
}

TEST_F(ExportTest, TitlesNameEveryKindOfTarget)
{
    const auto title = [&](const QString &type, const QString &id) {
        return UserStore::title(type, id, course());
    };
    EXPECT_EQ(title(u"lesson"_s, u"a1-l1"_s), u"Lesson: "_s + course().lesson(u"a1-l1")->title);
    EXPECT_EQ(title(u"gear"_s, u"tripod"_s), u"Gear: "_s + course().gearEntry(u"tripod")->name);
    EXPECT_EQ(title(u"history"_s, course().timeline().first().id),
        u"History: "_s + course().timeline().first().title);
    EXPECT_EQ(title(u"video"_s, u"vid-lens"_s), u"Video: "_s + course().video(u"vid-lens")->title);
    for (const QString &type : { u"general"_s, u"software"_s, QString(), u"Lesson"_s })
        EXPECT_EQ(title(type, u"tripod"_s), u"General note"_s) << qPrintable(type);
}

TEST_F(ExportTest, TitlesOfWhatHasLeftTheCourseAreIds)
{
    EXPECT_EQ(UserStore::title(u"lesson"_s, u"gone"_s, course()), u"Lesson: gone"_s);
    EXPECT_EQ(UserStore::title(u"gear"_s, u"gone"_s, course()), u"Gear: gone"_s);
    EXPECT_EQ(UserStore::title(u"history"_s, u"gone"_s, course()), u"History: gone"_s);
    EXPECT_EQ(UserStore::title(u"video"_s, u"gone"_s, course()), u"Video: gone"_s);
}

namespace {

struct DateCase {
    const char *locale;
    QString day;
    QString dayAndTime;
};

// Named in failures.
void PrintTo(const DateCase &date, std::ostream *stream)
{
    *stream << date.locale;
}

class Dates : public ::testing::TestWithParam<DateCase>
{
};

} // namespace

TEST_P(Dates, AreOfMediumLengthAsTheLocaleHasThem)
{
    const QDateTime moment(QDate(2026, 11, 15), QTime(15, 4, 59));
    const DateFormatter dates{ QLocale(QLatin1String(GetParam().locale)) };
    EXPECT_EQ(dates.day(moment), GetParam().day);
    EXPECT_EQ(dates.dayAndTime(moment), GetParam().dayAndTime);
}

INSTANTIATE_TEST_SUITE_P(Locales, Dates,
    ::testing::Values(DateCase{ "en_US", u"Nov 15, 2026"_s, u"Nov 15, 2026 at 3:04 PM"_s },
        DateCase{ "C", u"Nov 15, 2026"_s, u"Nov 15, 2026 at 3:04 PM"_s },
        DateCase{ "en_GB", u"15 Nov 2026"_s, u"15 Nov 2026 at 15:04"_s },
        DateCase{ "de_DE", u"15. Nov. 2026"_s, u"15. Nov. 2026, 15:04"_s },
        DateCase{ "fr_FR", u"15 nov. 2026"_s, u"15 nov. 2026, 15:04"_s },
        DateCase{ "es_ES", u"15 de nov de 2026"_s, u"15 de nov de 2026, 15:04"_s },
        DateCase{ "da_DK", u"15. nov. 2026"_s, u"15. nov. 2026, 15.04"_s },
        DateCase{ "hu_HU", u"2026. nov. 15."_s, u"2026. nov. 15., 15:04"_s },
        DateCase{ "ja_JP", u"2026年11月15日"_s, u"2026年11月15日, 15:04"_s },
        DateCase{ "th_TH", u"15 พ.ย. 2026"_s, u"15 พ.ย. 2026, 15:04"_s }));

TEST(DateFormatter, KeepsADateThatIsWrittenFromTheRightApartFromItsSurroundings)
{
    const QDateTime moment(QDate(2026, 11, 15), QTime(15, 4, 59));
    const DateFormatter dates{ QLocale(QLocale::Arabic, QLocale::Egypt) };
    EXPECT_EQ(dates.day(moment), u"\u2068١٥ نوفمبر ٢٠٢٦\u2069"_s);
    EXPECT_TRUE(dates.dayAndTime(moment).startsWith(u"\u2068١٥ نوفمبر ٢٠٢٦"_s));
    EXPECT_TRUE(dates.dayAndTime(moment).endsWith(u'\u2069'));
}

TEST(DateFormatter, TellsLocalTime)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(1791000000, Qt::UTC);
    const DateFormatter dates{ QLocale(QLocale::English, QLocale::UnitedStates) };
    EXPECT_EQ(dates.dayAndTime(moment), dates.dayAndTime(moment.toLocalTime()));
}

TEST(TextFile, HoldsTheTextAsUtf8)
{
    const Folder folder;
    Store::writeTextFile(folder.path(u"notes.txt"_s), u"✓ déjà\n"_s);
    EXPECT_EQ(fileBytes(folder.path(u"notes.txt"_s)), QByteArray("✓ déjà\n"));
    EXPECT_EQ(fingerprint(folder.path()).size(), 1);
}

TEST(TextFile, TakesThePlaceOfAnOlderOne)
{
    const Folder folder;
    writeFile(folder.path(u"notes.txt"_s), QByteArray(5000, 'x'));
    Store::writeTextFile(folder.path(u"notes.txt"_s), u"new"_s);
    EXPECT_EQ(fileBytes(folder.path(u"notes.txt"_s)), QByteArray("new"));
}

TEST(TextFile, LeavesTheOlderOneWholeWhenTheDiskIsFull)
{
    const Folder folder;
    writeFile(folder.path(u"notes.txt"_s), "old");
    const Fingerprint before = fingerprint(folder.path());
    std::optional<HVError> error;
    {
        const FileSizeLimit full(1000);
        error = errorOf(
            [&] { Store::writeTextFile(folder.path(u"notes.txt"_s), QString(100'000, u'x')); });
    }
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->description().isEmpty());
    EXPECT_NE(error->description(), u"Unknown error"_s);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST(TextFile, SaysWhyItCanNotBeWritten)
{
    const Folder folder;
    EXPECT_TRUE(errorOf([&] { Store::writeTextFile(folder.path(u"no/such/folder.txt"_s), {}); }));
    EXPECT_TRUE(errorOf([&] { Store::writeTextFile(folder.path(), u"over a folder"_s); }));
}

TEST(TextFile, IsNotWrittenThroughALink)
{
    const Folder folder;
    const Folder elsewhere;
    writeFile(elsewhere.path(u"precious.txt"_s), "precious");
    ASSERT_TRUE(QFile::link(elsewhere.path(u"precious.txt"_s), folder.path(u"notes.txt"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.path(u"nothing yet"_s), folder.path(u"dangling.txt"_s)));
    const Fingerprint before = fingerprint(folder.path());
    const Fingerprint behind = fingerprint(elsewhere.path());

    EXPECT_EQ(errorOf([&] { Store::writeTextFile(folder.path(u"notes.txt"_s), u"text"_s); }),
        HVError(HVError::Kind::Invalid,
            u"\"notes.txt\" is a link to %1. Choose that file itself, or another name."_s.arg(
                elsewhere.path(u"precious.txt"_s))));
    EXPECT_TRUE(errorOf([&] { Store::writeTextFile(folder.path(u"dangling.txt"_s), u"text"_s); }));
    EXPECT_EQ(fingerprint(folder.path()), before);
    EXPECT_EQ(fingerprint(elsewhere.path()), behind);
}

TEST(TextFile, IsWrittenIntoAFolderThatALinkLeadsTo)
{
    const Folder folder;
    const Folder elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.path(u"Documents"_s)));
    Store::writeTextFile(folder.path(u"Documents/notes.txt"_s), u"text"_s);
    EXPECT_EQ(fileBytes(elsewhere.path(u"notes.txt"_s)), QByteArray("text"));
}

TEST(TextFile, IsRefusedWhereTheUserMayNotWrite)
{
    const Folder folder;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    std::optional<HVError> error;
    {
        const OrdinaryUser user;
        error = errorOf([&] { Store::writeTextFile(folder.path(u"notes.txt"_s), u"text"_s); });
    }
    ASSERT_TRUE(QFile::setPermissions(
        folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->description().isEmpty());
    EXPECT_TRUE(fingerprint(folder.path()).isEmpty());
}
