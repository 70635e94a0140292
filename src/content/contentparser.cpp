#include "content/contentparser.h"

#include "content/text.h"

#include <utility>

namespace {

constexpr QStringView kHeaderMark = u"=== ";
constexpr QStringView kSeparator = u"---";
constexpr qsizetype kUsualFields = 8; // Few records of a course hold more.

// Where the next header line begins at or behind `from`; the end of the text if none follows.
// Searching for the mark alone skips bodies without a look at each of their lines.
qsizetype headerStart(QStringView text, qsizetype from)
{
    for (;;) {
        const qsizetype start = text.indexOf(kHeaderMark.front(), from);
        if (start < 0)
            return text.size();
        const bool beginsLine = start == 0 || text[start - 1] == u'\n';
        if (beginsLine && text.sliced(start).startsWith(kHeaderMark))
            return start;
        from = start + 1;
    }
}

// Takes the first line off the text, and its line end with it.
QStringView takeLine(QStringView &text)
{
    const qsizetype lineEnd = text.indexOf(u'\n');
    const QStringView line = lineEnd < 0 ? text : text.first(lineEnd);
    text = lineEnd < 0 ? QStringView() : text.sliced(lineEnd + 1);
    return line;
}

// The record of a header line, so far without anything below it.
ContentRecord recordOfHeader(QStringView line)
{
    QStringView words = line.sliced(kHeaderMark.size());
    while (words.startsWith(u' '))
        words = words.sliced(1);
    const qsizetype blank = words.indexOf(u' ');
    const qsizetype typeEnd = blank < 0 ? words.size() : blank;
    return { .type = words.first(typeEnd), .id = Text::trimmedBlanks(words.sliced(typeEnd)) };
}

// The record of the lines from a header to the next one.
ContentRecord recordOfLines(QStringView lines)
{
    ContentRecord record = recordOfHeader(takeLine(lines));
    while (!lines.isEmpty()) {
        const QStringView line = takeLine(lines);
        if (Text::trimmedBlanks(line) == kSeparator) {
            record.body = Text::trimmedBlanksAndLines(lines);
            break;
        }
        const qsizetype colon = line.startsWith(u'#') ? -1 : line.indexOf(u':');
        if (colon < 0)
            continue;
        if (record.fields.isEmpty())
            record.fields.reserve(kUsualFields);
        record.fields.append({
            .key = Text::trimmedBlanks(line.first(colon)),
            .value = Text::trimmedBlanks(line.sliced(colon + 1)),
        });
    }
    return record;
}

} // namespace

namespace ContentParser {

QList<ContentRecord> parse(QString text)
{
    text.remove(u'\r');

    const QStringView view(text);
    QList<ContentRecord> records;
    qsizetype end = 0;
    for (qsizetype start = headerStart(view, 0); start < view.size(); start = end) {
        end = headerStart(view, start + 1);
        ContentRecord record = recordOfLines(view.sliced(start, end - start));
        record.text = text;
        records.append(std::move(record));
    }
    return records;
}

QStringList list(QStringView text)
{
    QStringList pieces;
    pieces.reserve(text.count(u',') + 1);
    for (const QStringView piece : text.tokenize(u',')) {
        const QStringView trimmed = Text::trimmedBlanks(piece);
        if (!trimmed.isEmpty())
            pieces.append(trimmed.toString());
    }
    return pieces;
}

QStringList pipes(QStringView text)
{
    QStringList pieces;
    pieces.reserve(text.count(u'|') + 1);
    for (const QStringView piece : text.tokenize(u'|'))
        pieces.append(Text::trimmedBlanks(piece).toString());
    return pieces;
}

} // namespace ContentParser
