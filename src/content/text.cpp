#include "content/text.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <limits>

namespace {

template <typename Predicate>
QStringView trimmedOf(QStringView text, Predicate isTrimmed)
{
    while (!text.isEmpty() && isTrimmed(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isTrimmed(text.back()))
        text.chop(1);
    return text;
}

// The code point at a place; half a surrogate pair stands for itself.
char32_t characterAt(QStringView text, qsizetype place)
{
    const QStringView pair = text.sliced(place, qMin<qsizetype>(2, text.size() - place));
    if (pair.size() == 2 && pair[0].isHighSurrogate() && pair[1].isLowSurrogate())
        return QChar::surrogateToUcs4(pair[0], pair[1]);
    return pair[0].unicode();
}

bool isOfWord(char32_t character)
{
    return QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

} // namespace

namespace Text {

bool isBlank(QChar character)
{
    // Nearly all characters asked about are ASCII, and need no look into the Unicode tables.
    if (character < u'\u0080')
        return character == u' ' || character == u'\t';
    return character.category() == QChar::Separator_Space;
}

bool isLineEnd(QChar character)
{
    return (character >= u'\u000A' && character <= u'\u000D') || character == u'\u0085'
        || character == u'\u2028' || character == u'\u2029';
}

QStringView trimmedBlanks(QStringView text)
{
    return trimmedOf(text, isBlank);
}

QStringView trimmedBlanksAndLines(QStringView text)
{
    return trimmedOf(
        text, [](QChar character) { return isBlank(character) || isLineEnd(character); });
}

std::optional<qint64> wholeNumber(QStringView text)
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();

    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text = text.sliced(1);
    if (text.isEmpty())
        return std::nullopt;

    // Counted downwards, since the range reaches one further below zero than above it.
    qint64 value = 0;
    for (const QChar character : text) {
        if (character < u'0' || character > u'9')
            return std::nullopt;
        const qint64 digit = character.unicode() - u'0';
        if (value < (lowest + digit) / 10)
            return std::nullopt;
        value = 10 * value - digit;
    }
    if (isNegative)
        return value;
    if (value == lowest)
        return std::nullopt;
    return -value;
}

std::optional<QString> decodedUtf8(QByteArrayView bytes)
{
    // Stateless: a sequence that the end cuts off is an error, not the start of more to come. The
    // decoder takes off the byte order mark itself.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

qsizetype characterCount(QStringView text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

QStringList words(QStringView text)
{
    const QString lowered = text.toString().toLower();
    QStringList words;
    qsizetype start = 0; // of the word that the loop is in, or else of the next character
    for (qsizetype i = 0; i < lowered.size();) {
        const char32_t character = characterAt(lowered, i);
        const qsizetype next = i + (QChar::requiresSurrogates(character) ? 2 : 1);
        if (!isOfWord(character)) {
            if (start < i)
                words.append(lowered.sliced(start, i - start));
            start = next;
        }
        i = next;
    }
    if (start < lowered.size())
        words.append(lowered.sliced(start));
    return words;
}

} // namespace Text
