#include "content/text.h"

#include "support/qtprinters.h"

#include <QList>

#include <gtest/gtest.h>

#include <utility>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// General category Zs, and the tab.
constexpr QStringView kBlanks = u"\u0009\u0020\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005"
                                u"\u2006\u2007\u2008\u2009\u200A\u202F\u205F\u3000";
constexpr QStringView kLineEnds = u"\u000A\u000B\u000C\u000D\u0085\u2028\u2029";

// Next to blanks in the code table or often taken for them: the controls around the tab and the
// line ends, the Mongolian vowel separator, the zero width space and its neighbors, the word
// joiner and the byte order mark.
constexpr QStringView kNoBlanks = u"\u0000\u0008\u000E\u001C\u001D\u001E\u001F\u0021\u007F\u0084"
                                  u"\u0086\u009F\u00A1\u180E\u1FFF\u200B\u200E\u2027\u202A\u202E"
                                  u"\u2030\u205E\u2060\u2FFF\u3001\uFEFF";

bool isIn(QStringView set, char16_t character)
{
    return set.contains(QChar(character));
}

} // namespace

TEST(TextTrimming, TakesExactlySpaceSeparatorsAndTheTabForBlanks)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        EXPECT_EQ(Text::isBlank(character), isIn(kBlanks, character)) << "U+" << std::hex << code;
    }
}

TEST(TextTrimming, TakesExactlySevenCharactersForLineEnds)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        EXPECT_EQ(Text::isLineEnd(character), isIn(kLineEnds, character))
            << "U+" << std::hex << code;
    }
}

TEST(TextTrimming, TakesBlanksOffBothEndsAndLeavesThoseInside)
{
    const QString text = kBlanks % u"a b\tc"_s % kBlanks;
    EXPECT_EQ(Text::trimmedBlanks(text), u"a b\tc");
    EXPECT_EQ(Text::trimmedBlanksAndLines(text), u"a b\tc");
}

TEST(TextTrimming, StopsAtLineEndsUnlessTheyAreToGoToo)
{
    const QString text = u" \n \r\n a\nb \u2029 "_s;
    EXPECT_EQ(Text::trimmedBlanks(text), u"\n \r\n a\nb \u2029");
    EXPECT_EQ(Text::trimmedBlanksAndLines(text), u"a\nb");
}

TEST(TextTrimming, LeavesControlCharactersAndInvisibleOnes)
{
    for (const QChar character : kNoBlanks) {
        const QString text(character);
        const int code = character.unicode();
        EXPECT_EQ(Text::trimmedBlanks(text), text) << "U+" << std::hex << code;
        EXPECT_EQ(Text::trimmedBlanksAndLines(text), text) << "U+" << std::hex << code;
    }
}

TEST(TextTrimming, LeavesNothingOfATextOfBlanks)
{
    EXPECT_TRUE(Text::trimmedBlanks(u"").isEmpty());
    EXPECT_TRUE(Text::trimmedBlanks(kBlanks).isEmpty());
    EXPECT_TRUE(Text::trimmedBlanksAndLines(kLineEnds).isEmpty());
}

TEST(WholeNumber, ReadsDigitsWithAnOptionalSign)
{
    EXPECT_EQ(Text::wholeNumber(u"0"), 0);
    EXPECT_EQ(Text::wholeNumber(u"9"), 9);
    EXPECT_EQ(Text::wholeNumber(u"1839"), 1839);
    EXPECT_EQ(Text::wholeNumber(u"+7"), 7);
    EXPECT_EQ(Text::wholeNumber(u"-350"), -350);
    EXPECT_EQ(Text::wholeNumber(u"-0"), 0);
    EXPECT_EQ(Text::wholeNumber(u"000000000000000000000000012"), 12);
}

TEST(WholeNumber, ReachesBothEndsOfTheSigned64BitRangeAndNoFurther)
{
    EXPECT_EQ(Text::wholeNumber(u"9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(Text::wholeNumber(u"-9223372036854775808"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(Text::wholeNumber(u"9223372036854775808"), std::nullopt);
    EXPECT_EQ(Text::wholeNumber(u"-9223372036854775809"), std::nullopt);
    EXPECT_EQ(Text::wholeNumber(u"92233720368547758070"), std::nullopt);
    EXPECT_EQ(Text::wholeNumber(u"-99999999999999999999999999999999999999"), std::nullopt);
}

TEST(WholeNumber, RefusesWhateverIsNotOnlyADecimalNumber)
{
    const QList<QStringView> texts = { u"", u"+", u"-", u"+-1", u"--1", u"1-", u" 1", u"1 ",
        u"1 000", u"1\t", u"1\r", u"1.0", u"1,000", u"1e3", u"0x10", u"abc", u"1839a", u"a1839",
        u"/", u":", u"\u0661", u"\uFF11", u"\u22121", u"1\u00B2" };
    for (const QStringView text : texts)
        EXPECT_EQ(Text::wholeNumber(text), std::nullopt) << text.toUtf8().constData();
    EXPECT_EQ(Text::wholeNumber(QStringView(u"1\0", 2)), std::nullopt);
}

namespace {

bool isWithin(unsigned char byte, int first, int last)
{
    return byte >= first && byte <= last;
}

// The length of the well-formed sequence that the bytes begin with, or 0.
// Source: The Unicode Standard 15.0, table 3-7.
qsizetype wellFormedLength(const QByteArray &bytes)
{
    const auto at = [&](qsizetype i) { return static_cast<unsigned char>(bytes.at(i)); };
    const auto continuesFrom = [&](qsizetype from, qsizetype length) {
        if (bytes.size() < length)
            return false;
        for (qsizetype i = from; i < length; ++i) {
            if (!isWithin(at(i), 0x80, 0xBF))
                return false;
        }
        return true;
    };
    const unsigned char lead = at(0);
    if (lead <= 0x7F)
        return 1;
    if (isWithin(lead, 0xC2, 0xDF))
        return continuesFrom(1, 2) ? 2 : 0;
    if (isWithin(lead, 0xE0, 0xEF) && continuesFrom(2, 3)) {
        const int first = lead == 0xE0 ? 0xA0 : 0x80;
        const int last = lead == 0xED ? 0x9F : 0xBF;
        return isWithin(at(1), first, last) ? 3 : 0;
    }
    if (isWithin(lead, 0xF0, 0xF4) && continuesFrom(2, 4)) {
        const int first = lead == 0xF0 ? 0x90 : 0x80;
        const int last = lead == 0xF4 ? 0x8F : 0xBF;
        return isWithin(at(1), first, last) ? 4 : 0;
    }
    return 0;
}

bool isWellFormed(QByteArray bytes)
{
    while (!bytes.isEmpty()) {
        const qsizetype length = wellFormedLength(bytes);
        if (length == 0)
            return false;
        bytes = bytes.sliced(length);
    }
    return true;
}

} // namespace

TEST(Utf8Decoding, ReadsSequencesOfEveryLength)
{
    EXPECT_EQ(Text::decodedUtf8("f/2.8"), u"f/2.8"_s);
    EXPECT_EQ(Text::decodedUtf8("Daguerr\xC3\xA9otype"), u"Daguerréotype"_s);
    EXPECT_EQ(Text::decodedUtf8("\xE2\x80\x93"), u"–"_s);
    EXPECT_EQ(Text::decodedUtf8("\xF0\x9F\x93\xB7"), u"\U0001F4F7"_s);
    EXPECT_EQ(Text::decodedUtf8(""), u""_s);
    EXPECT_EQ(Text::decodedUtf8(QByteArrayView()), u""_s);
}

TEST(Utf8Decoding, ReadsTheLastCodePointsAndNoncharacters)
{
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBF\xBF"), QString(QChar(0xFFFF)));
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBF\xBE"), QString(QChar(0xFFFE)));
    EXPECT_EQ(Text::decodedUtf8("\xF4\x8F\xBF\xBF"), u"\U0010FFFF"_s);
}

TEST(Utf8Decoding, KeepsNulBytes)
{
    EXPECT_EQ(Text::decodedUtf8(QByteArrayView("\0a\0", 3)), QStringView(u"\0a\0", 3).toString());
}

TEST(Utf8Decoding, KeepsReplacementCharactersThatTheTextHolds)
{
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBF\xBD"), u"\uFFFD"_s);
}

TEST(Utf8Decoding, TakesOneByteOrderMarkOffTheStartAndNoOther)
{
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB\xBF"), u""_s);
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB\xBFx"), u"x"_s);
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB\xBF\xEF\xBB\xBFx"), u"\uFEFFx"_s);
    EXPECT_EQ(Text::decodedUtf8("x\xEF\xBB\xBF"), u"x\uFEFF"_s);
}

TEST(Utf8Decoding, RefusesACutOffByteOrderMark)
{
    EXPECT_EQ(Text::decodedUtf8("\xEF"), std::nullopt);
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB"), std::nullopt);
}

TEST(Utf8Decoding, RefusesErrorsBehindAByteOrderMark)
{
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB\xBF\x80"), std::nullopt);
    EXPECT_EQ(Text::decodedUtf8("\xEF\xBB\xBF\xE2\x80"), std::nullopt);
}

// The bytes stand at each place of a longer text in turn: decoders take ASCII many bytes at a time,
// and leave that path at different places.
TEST(Utf8Decoding, AcceptsExactlyTheWellFormedSequencesWhereverTheyStand)
{
    // Every lead byte, and the continuation bytes on both sides of every limit.
    const QByteArray others("\x00\x41\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xFF", 11);
    QByteArrayList sequences;
    for (int lead = 0x80; lead <= 0xFF; ++lead) {
        const QByteArray one(1, static_cast<char>(lead));
        sequences.append(one);
        for (const char second : others) {
            sequences.append(one + second);
            for (const char third : others) {
                sequences.append(one + second + third);
                for (const char fourth : others)
                    sequences.append(one + second + third + fourth);
            }
        }
    }
    for (const QByteArray &sequence : sequences) {
        const bool expected = isWellFormed(sequence);
        for (const qsizetype before : { 0, 1, 15, 16, 33 }) {
            for (const qsizetype behind : { 0, 1, 40 }) {
                const QByteArray bytes
                    = QByteArray(before, 'a') + sequence + QByteArray(behind, 'z');
                ASSERT_EQ(Text::decodedUtf8(bytes).has_value(), expected)
                    << sequence.toHex(' ').constData() << " behind " << before << " letters";
            }
        }
    }
}

TEST(CharacterCount, CountsWhatAReaderTakesForOneCharacterOnce)
{
    EXPECT_EQ(Text::characterCount(u""), 0);
    EXPECT_EQ(Text::characterCount(u"aperture"), 8);
    EXPECT_EQ(Text::characterCount(u"e\u0301"), 1);
    EXPECT_EQ(Text::characterCount(u"a\u0308\u0323b"), 2);
    EXPECT_EQ(Text::characterCount(u"\U0001F4F7"), 1);
    EXPECT_EQ(Text::characterCount(u"\U0001F44D\U0001F3FD"), 1);
    EXPECT_EQ(Text::characterCount(u"\U0001F468\u200D\U0001F469\u200D\U0001F467"), 1);
    EXPECT_EQ(Text::characterCount(u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"), 2);
    EXPECT_EQ(Text::characterCount(u"\u1112\u1161\u11AB"), 1);
    EXPECT_EQ(Text::characterCount(u"\r\n"), 1);
    EXPECT_EQ(Text::characterCount(u"\n\r"), 2);
    EXPECT_EQ(Text::characterCount(QStringView(u"a\0b", 3)), 3);
}

// Words

TEST(Words, AreRunsOfLettersMarksAndNumbersInLowerCase)
{
    const QList<std::pair<QString, QStringList>> table = {
        { u"Tripod"_s, { u"tripod"_s } },
        { u"f/2.8"_s, { u"f"_s, u"2"_s, u"8"_s } },
        { u"  two  words "_s, { u"two"_s, u"words"_s } },
        { u"don’t_stop"_s, { u"don"_s, u"t"_s, u"stop"_s } },
        { u"e\u0301TE\u0301"_s, { u"e\u0301te\u0301"_s } },
        { u"ÄÖ ΣΙΓΜΑ"_s, { u"äö"_s, u"σιγμα"_s } },
        { u"½ Ⅻ ١٢ x²"_s, { u"½"_s, u"ⅻ"_s, u"١٢"_s, u"x²"_s } },
        { u"写真 фото"_s, { u"写真"_s, u"фото"_s } },
        { u"𝐀𐐀📷𐐀"_s, { u"𝐀𐐨"_s, u"𐐨"_s } },
        { u"a📷b"_s, { u"a"_s, u"b"_s } },
    };
    for (const auto &[text, words] : table)
        EXPECT_EQ(Text::words(text), words) << text.toUtf8().constData();
}

TEST(Words, AreNoneInATextWithoutLettersMarksAndNumbers)
{
    EXPECT_TRUE(Text::words({}).isEmpty());
    EXPECT_TRUE(Text::words(u" \t\n").isEmpty());
    EXPECT_TRUE(Text::words(u"\"*+-^()…–📷€$_").isEmpty());
}

TEST(Words, EndAtNulAndAtHalfACharacter)
{
    EXPECT_EQ(Text::words(QStringView(u"a\0b", 3)), (QStringList{ u"a"_s, u"b"_s }));
    for (const char16_t half : { char16_t(0xD835), char16_t(0xDC00) }) {
        const QChar broken[] = { u'a', half, u'b', half };
        EXPECT_EQ(Text::words(QStringView(broken, 4)), (QStringList{ u"a"_s, u"b"_s }));
    }
}
