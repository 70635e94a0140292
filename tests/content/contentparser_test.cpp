#include "content/contentparser.h"

#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The only record of a text that holds one.
ContentRecord onlyRecord(const QString &text)
{
    const QList<ContentRecord> records = ContentParser::parse(text);
    EXPECT_EQ(records.size(), 1);
    return records.value(0);
}

// The record of a text that stands below a header.
ContentRecord recordBelowHeader(const QString &lines)
{
    return onlyRecord(u"=== A a\n" % lines);
}

QStringList keysOf(const ContentRecord &record)
{
    QStringList keys;
    for (const ContentRecord::Field &field : record.fields)
        keys.append(field.key.toString());
    return keys;
}

QStringList typesIn(const QString &text)
{
    QStringList types;
    for (const ContentRecord &record : ContentParser::parse(text))
        types.append(record.type.toString());
    return types;
}

const QString kLesson = u"=== LESSON a1-l1\n"
                        u"module: a1\n"
                        u"title: What a camera does\n"
                        u"# a comment\n"
                        u"minutes: 9\n"
                        u"---\n"
                        u"The body, over as many lines as it needs.\n"
                        u"\n"
                        u"# this line is part of the body\n"_s;

} // namespace

TEST(ContentParser, ReadsTypeIdFieldsAndBodyOfARecord)
{
    const ContentRecord record = onlyRecord(kLesson);
    EXPECT_EQ(record.type, u"LESSON");
    EXPECT_EQ(record.id, u"a1-l1");
    ASSERT_EQ(keysOf(record), (QStringList{ u"module"_s, u"title"_s, u"minutes"_s }));
    EXPECT_EQ(record.fields[0].value, u"a1");
    EXPECT_EQ(record.fields[1].value, u"What a camera does");
    EXPECT_EQ(record.fields[2].value, u"9");
    EXPECT_EQ(record.body,
        u"The body, over as many lines as it needs.\n\n# this line is part of the body");
}

TEST(ContentParser, FindsNoRecordsInAnEmptyText)
{
    EXPECT_TRUE(ContentParser::parse(QString()).isEmpty());
    EXPECT_TRUE(ContentParser::parse(u"\n\n"_s).isEmpty());
}

TEST(ContentParser, FindsNoRecordsInATextWithoutAHeader)
{
    EXPECT_TRUE(ContentParser::parse(u"title: x\n---\nbody\n"_s).isEmpty());
}

TEST(ContentParser, DropsWhateverStandsAboveTheFirstHeader)
{
    const ContentRecord record = onlyRecord(u"title: x\n---\nbody\n=== A a\n"_s);
    EXPECT_EQ(record.id, u"a");
    EXPECT_TRUE(record.fields.isEmpty());
    EXPECT_TRUE(record.body.isEmpty());
}

TEST(ContentParser, KeepsRecordsInFileOrderWithUnknownTypesAndEqualIds)
{
    const QList<ContentRecord> records
        = ContentParser::parse(u"=== B x\n=== WHATEVER y\n=== B x\nk: v\n"_s);
    ASSERT_EQ(records.size(), 3);
    EXPECT_EQ(records[0].type, u"B");
    EXPECT_EQ(records[1].type, u"WHATEVER");
    EXPECT_EQ(records[1].id, u"y");
    EXPECT_EQ(records[2].id, u"x");
    EXPECT_TRUE(records[0].fields.isEmpty());
    EXPECT_EQ(records[2].first(u"k"), u"v");
}

TEST(ContentParser, ReadsFilesWithEitherKindOfLineEndAlike)
{
    QString withReturns = kLesson;
    withReturns.replace(u"\n"_s, u"\r\n"_s);
    EXPECT_EQ(ContentParser::parse(withReturns), ContentParser::parse(kLesson));
}

TEST(ContentParser, IgnoresCarriageReturnsInTheMiddleOfALine)
{
    const ContentRecord record
        = onlyRecord(u"==\r= LES\rSON a\r1\nti\rtle: o\rne\n-\r--\nbo\rdy\r\r\n"_s);
    EXPECT_EQ(record.type, u"LESSON");
    EXPECT_EQ(record.id, u"a1");
    EXPECT_EQ(record.first(u"title"), u"one");
    EXPECT_EQ(record.body, u"body");
}

TEST(ContentParser, TakesNoOtherCharacterForALineEnd)
{
    const ContentRecord record = recordBelowHeader(u"k: a\u2028=== B\u0085x\v--- \f:y\n"_s);
    EXPECT_EQ(record.first(u"k"), u"a\u2028=== B\u0085x\v--- \f:y");
}

TEST(ContentParser, KeepsNulCharacters)
{
    const QString nul(QChar(u'\0'));
    const ContentRecord record
        = onlyRecord(u"=== A"_s + nul + u" i" + nul + u"\nk: v" + nul + u"\n---\n" + nul + u"b");
    EXPECT_EQ(record.type, QString(u"A" + nul));
    EXPECT_EQ(record.id, QString(u"i" + nul));
    EXPECT_EQ(record.first(u"k"), QString(u"v" + nul));
    EXPECT_EQ(record.body, QString(nul + u"b"));
}

TEST(ContentParserHeader, PartsTheTypeFromTheIdAtTheFirstBlank)
{
    const std::pair<QStringView, std::pair<QStringView, QStringView>> table[] = {
        { u"=== GEAR my lens  ", { u"GEAR", u"my lens" } },
        { u"===   GEAR  x", { u"GEAR", u"x" } },
        { u"=== GEAR", { u"GEAR", u"" } },
        { u"=== GEAR ", { u"GEAR", u"" } },
        { u"=== GEAR   ", { u"GEAR", u"" } },
        { u"=== GEAR \t\u00A0x\u3000", { u"GEAR", u"x" } },
        { u"=== A\tb", { u"A\tb", u"" } },
        { u"=== A\tb c", { u"A\tb", u"c" } },
        { u"=== A\u00A0b c", { u"A\u00A0b", u"c" } },
        { u"=== \tA b", { u"\tA", u"b" } },
        { u"=== gear X", { u"gear", u"X" } },
        { u"=== === x", { u"===", u"x" } },
    };
    for (const auto &[header, expected] : table) {
        for (const QString &lineEnd : { u""_s, u"\n"_s }) {
            const ContentRecord record = onlyRecord(header % lineEnd);
            EXPECT_EQ(record.type, expected.first) << header.toUtf8().constData();
            EXPECT_EQ(record.id, expected.second) << header.toUtf8().constData();
            EXPECT_TRUE(record.fields.isEmpty());
            EXPECT_TRUE(record.body.isEmpty());
        }
    }
}

TEST(ContentParserHeader, StartsARecordWithoutTypeOrIdIfNothingStandsBehindTheMark)
{
    for (const QString &header : { u"=== "_s, u"=== \r"_s, u"===    "_s }) {
        const ContentRecord record = onlyRecord(header % u"\nk: v\n"_s);
        EXPECT_TRUE(record.type.isEmpty());
        EXPECT_TRUE(record.id.isEmpty());
        EXPECT_EQ(record.first(u"k"), u"v");
    }
    EXPECT_EQ(typesIn(u"=== "_s), QStringList{ u""_s });
}

TEST(ContentParserHeader, NeedsThreeEqualsSignsAndABlankAtTheVeryStartOfItsLine)
{
    for (const QString &line :
        { u"==="_s, u"===="_s, u"==== X"_s, u"  === X"_s, u"\t=== X"_s, u"===\tX"_s,
            u"===\u00A0X"_s, u"== = X"_s, u"== X"_s, u"x=== X"_s, u"\uFEFF=== X"_s }) {
        EXPECT_TRUE(ContentParser::parse(line).isEmpty()) << line.toUtf8().constData();

        const ContentRecord inFields = recordBelowHeader(line % u"\nk: v\n"_s);
        EXPECT_EQ(keysOf(inFields), QStringList{ u"k"_s }) << line.toUtf8().constData();

        const ContentRecord inBody = recordBelowHeader(u"---\na\n"_s % line % u"\nb\n"_s);
        EXPECT_EQ(inBody.body, QString(u"a\n"_s % line % u"\nb"_s));
    }
}

TEST(ContentParserHeader, LeavesALineThatIsNoneToTheFieldsIfItHoldsAColon)
{
    const ContentRecord record = recordBelowHeader(u"  === X: y\n====: z\n"_s);
    EXPECT_EQ(keysOf(record), (QStringList{ u"=== X"_s, u"===="_s }));
}

TEST(ContentParserHeader, EndsTheRecordBeforeItInWhateverState)
{
    EXPECT_EQ(typesIn(u"=== A\n=== B\n"_s), (QStringList{ u"A"_s, u"B"_s }));
    EXPECT_EQ(typesIn(u"=== A\nk: v\n=== B\n"_s), (QStringList{ u"A"_s, u"B"_s }));
    EXPECT_EQ(typesIn(u"=== A\n---\n=== B\n"_s), (QStringList{ u"A"_s, u"B"_s }));

    const QList<ContentRecord> records
        = ContentParser::parse(u"=== A\n---\nbody of A\n\n=== B\nk: v\n---\nbody of B\n"_s);
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records[0].body, u"body of A");
    EXPECT_EQ(records[1].first(u"k"), u"v");
    EXPECT_EQ(records[1].body, u"body of B");
}

TEST(ContentParserFields, CutsALineAtItsFirstColonAndTrimsBothSides)
{
    const ContentRecord record
        = recordBelowHeader(u"  url \t:\u00A0 https://www.example.com:80/a \u3000\n"_s);
    ASSERT_EQ(record.fields.size(), 1);
    EXPECT_EQ(record.fields[0].key, u"url");
    EXPECT_EQ(record.fields[0].value, u"https://www.example.com:80/a");
}

TEST(ContentParserFields, MayHaveAnEmptyKeyOrAnEmptyValue)
{
    const ContentRecord record = recordBelowHeader(u":x\ntitle:\n : \n"_s);
    ASSERT_EQ(keysOf(record), (QStringList{ u""_s, u"title"_s, u""_s }));
    EXPECT_EQ(record.fields[0].value, u"x");
    EXPECT_TRUE(record.fields[1].value.isEmpty());
    EXPECT_TRUE(record.fields[2].value.isEmpty());
    EXPECT_TRUE(record.first(u"title").isEmpty());
}

TEST(ContentParserFields, DropLinesWithoutAColon)
{
    const ContentRecord record = recordBelowHeader(u"\n   \nno field\nk: v\n\t\n"_s);
    EXPECT_EQ(keysOf(record), QStringList{ u"k"_s });
}

TEST(ContentParserFields, DropCommentsWhichHaveTheirMarkAtTheVeryStart)
{
    const ContentRecord record = recordBelowHeader(u"#\n#k: v\n# note: x\n  # note: x\n"_s);
    ASSERT_EQ(keysOf(record), QStringList{ u"# note"_s });
    EXPECT_EQ(record.fields[0].value, u"x");
}

TEST(ContentParserFields, TreatALastLineWithoutALineEndLikeAnyOther)
{
    EXPECT_EQ(recordBelowHeader(u"k: v"_s).first(u"k"), u"v");
    EXPECT_EQ(recordBelowHeader(u"---\na\nb"_s).body, u"a\nb");
    EXPECT_EQ(typesIn(u"=== A\n=== B"_s), (QStringList{ u"A"_s, u"B"_s }));
}

TEST(ContentParserFields, AnswerWithTheFirstValueOfAKey)
{
    const ContentRecord record = recordBelowHeader(u"k: one\nK: two\nk: three\n"_s);
    EXPECT_EQ(record.first(u"k"), u"one");
    EXPECT_EQ(record.first(u"K"), u"two");
    EXPECT_EQ(record.first(u"absent"), u"");
    EXPECT_EQ(record.first(u""), u"");
}

TEST(ContentParserFields, AnswerWithAllValuesOfAKeyInFileOrder)
{
    const ContentRecord record = recordBelowHeader(u"k: one\nK: two\nk:\nk: one\n"_s);
    EXPECT_EQ(record.all(u"k"), (QList<QStringView>{ u"one", u"", u"one" }));
    EXPECT_EQ(record.all(u"K"), QList<QStringView>{ u"two" });
    EXPECT_TRUE(record.all(u"absent").isEmpty());
}

TEST(ContentParserBody, StartsBehindASeparatorWithOrWithoutBlanksAroundIt)
{
    for (const QString &separator : { u"---"_s, u"  ---"_s, u"---\t"_s, u"\u00A0---\u3000"_s }) {
        const ContentRecord record = recordBelowHeader(separator % u"\nk: v\n"_s);
        EXPECT_EQ(record.body, u"k: v") << separator.toUtf8().constData();
    }
}

TEST(ContentParserBody, DoesNotStartAtAnyOtherLine)
{
    for (const QString &line :
        { u"--"_s, u"----"_s, u"--- x"_s, u"- - -"_s, u"#---"_s, u"\u2014"_s, u"\v---"_s }) {
        const ContentRecord record = recordBelowHeader(line % u"\nk: v\n"_s);
        EXPECT_TRUE(record.body.isEmpty()) << line.toUtf8().constData();
        EXPECT_EQ(record.first(u"k"), u"v") << line.toUtf8().constData();
    }
}

TEST(ContentParserBody, IsEmptyIfTheSeparatorIsTheLastLineOrMissing)
{
    EXPECT_TRUE(recordBelowHeader(u"k: v\n---"_s).body.isEmpty());
    EXPECT_TRUE(recordBelowHeader(u"k: v\n---\n"_s).body.isEmpty());
    EXPECT_TRUE(recordBelowHeader(u"k: v\n---\n \n\u2028\n"_s).body.isEmpty());
    EXPECT_TRUE(recordBelowHeader(u"k: v\n"_s).body.isEmpty());
}

TEST(ContentParserBody, HoldsSeparatorsCommentsAndFieldLinesAsTheyStand)
{
    const ContentRecord record = recordBelowHeader(u"a: b\n---\none\n---\n# two\nk:  v \nend\n"_s);
    EXPECT_EQ(record.body, u"one\n---\n# two\nk:  v \nend");
    EXPECT_EQ(keysOf(record), QStringList{ u"a"_s });
}

TEST(ContentParserBody, LosesBlanksAndEmptyLinesAtItsEndsAndNoneInside)
{
    const ContentRecord record = recordBelowHeader(
        u"---\n\n \n\u2028\u0085  first\n    indented\n\n\n\tlast  \n \v\f\n\u2029\n\n"_s);
    EXPECT_EQ(record.body, u"first\n    indented\n\n\n\tlast");
}

TEST(ContentRecord, KeepsTheTextThatItsViewsShow)
{
    ContentRecord kept;
    {
        const QString text = kLesson + u"=== LESSON a1-l2\n";
        kept = ContentParser::parse(text).at(0);
    }
    EXPECT_EQ(kept, onlyRecord(kLesson));
}

TEST(ContentRecord, EqualsAnotherThatSaysTheSame)
{
    const ContentRecord record = recordBelowHeader(u"k: v\n---\nbody\n"_s);
    EXPECT_EQ(record, recordBelowHeader(u" k :v\n\n---\n\nbody"_s));
    EXPECT_NE(record, onlyRecord(u"=== B a\nk: v\n---\nbody\n"_s));
    EXPECT_NE(record, onlyRecord(u"=== A b\nk: v\n---\nbody\n"_s));
    EXPECT_NE(record, recordBelowHeader(u"k: w\n---\nbody\n"_s));
    EXPECT_NE(record, recordBelowHeader(u"k: v\n---\nother\n"_s));
}

TEST(ContentParserList, SplitsAtCommasAndLeavesEmptyPiecesOut)
{
    EXPECT_EQ(ContentParser::list(u"a, b,,c , "), (QStringList{ u"a"_s, u"b"_s, u"c"_s }));
    EXPECT_EQ(ContentParser::list(u"one piece"), QStringList{ u"one piece"_s });
    EXPECT_EQ(ContentParser::list(u"\u00A0a\u3000,\tb"), (QStringList{ u"a"_s, u"b"_s }));
    EXPECT_EQ(ContentParser::list(u"a|b;c"), QStringList{ u"a|b;c"_s });
    EXPECT_EQ(ContentParser::list(u"a,a"), (QStringList{ u"a"_s, u"a"_s }));
}

TEST(ContentParserList, IsEmptyForATextWithoutPieces)
{
    EXPECT_TRUE(ContentParser::list(u"").isEmpty());
    EXPECT_TRUE(ContentParser::list(u" \t").isEmpty());
    EXPECT_TRUE(ContentParser::list(u", ,,").isEmpty());
}

TEST(ContentParserPipes, SplitsAtBarsAndKeepsEmptyPieces)
{
    EXPECT_EQ(ContentParser::pipes(u"a| |b"), (QStringList{ u"a"_s, u""_s, u"b"_s }));
    EXPECT_EQ(ContentParser::pipes(u"|"), (QStringList{ u""_s, u""_s }));
    EXPECT_EQ(ContentParser::pipes(u" a \t|\u00A0b, c"), (QStringList{ u"a"_s, u"b, c"_s }));
}

TEST(ContentParserPipes, HasOnePieceForATextWithoutBars)
{
    EXPECT_EQ(ContentParser::pipes(u""), QStringList{ u""_s });
    EXPECT_EQ(ContentParser::pipes(u" a "), QStringList{ u"a"_s });
}
