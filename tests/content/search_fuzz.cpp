// What users type into the search field: our index against SQLite's own ranking and excerpts.
//
// The first byte of the input says in what is searched and for how many hits, the rest is the
// query.

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "content/text.h"
#include "support/fuzz.h"
#include "support/testcourse.h"

#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

using Hit = ContentLibrary::Hit;

// A sentence of more words is ranked in another way.
constexpr qsizetype kMostRankedWords = 12;

const ContentLibrary &library()
{
    static const QTemporaryDir folder;
    static const ContentLibrary library = [] {
        TestCourse::write(folder.path());
        return ContentLibrary(folder.path());
    }();
    return library;
}

QString titleWords(const Hit &hit)
{
    return Text::words(hit.title).join(u' ');
}

QList<Hit> hitsOfSQLite(const QStringList &words, const std::optional<QString> &kind, qint64 limit)
{
    QString sql = u"SELECT kind, ref, title, snippet(fts, 4, '', '', '…', 14) AS snip FROM fts "
                  "WHERE fts MATCH ?"_s;
    const QString match = u'"' + words.join(u"\"* AND \""_s) + u"\"*";
    QList<SQLValue> arguments{ match };
    if (kind) {
        sql += u" AND kind = ?"_s;
        arguments.append(*kind);
    }
    sql += u" ORDER BY bm25(fts, 0, 0, 12.0, 6.0, 1.0) LIMIT "_s + QString::number(limit);

    const QString needle = words.join(u' ');
    QList<Hit> tiers[3];
    for (const SQLRow &row : library().index()->query(sql, arguments)) {
        const Hit hit{ .kind = row.str(u"kind"_s),
            .ref = row.str(u"ref"_s),
            .title = row.str(u"title"_s),
            .snippet = row.str(u"snip"_s) };
        const QString title = titleWords(hit);
        tiers[title == needle ? 0 : title.startsWith(needle) ? 1 : 2].append(hit);
    }
    return tiers[0] + tiers[1] + tiers[2];
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    static const QList<std::optional<QString>> kinds{ std::nullopt, ContentKind::lesson,
        ContentKind::gear, ContentKind::history, ContentKind::video, ContentKind::software,
        u"' OR 1"_s };
    static const QList<qint64> limits{ 60, 200, 1, 2, 0, -1, 3, 5 };
    if (bytes.isEmpty())
        return;
    const auto choice = uchar(bytes.front());
    const std::optional<QString> kind = kinds[choice % kinds.size()];
    const qint64 limit = limits[choice / kinds.size() % limits.size()];
    const QString query = QString::fromUtf8(bytes.sliced(1));

    const QList<Hit> hits = library().search(query, kind, limit);
    expect(limit < 0 || hits.size() <= limit, "there are no more hits than asked for");
    QSet<QString> ids;
    for (const Hit &hit : hits) {
        expect(!kind || hit.kind == *kind, "hits are of the kind asked for");
        expect(!ids.contains(hit.id()), "nothing is found twice");
        ids.insert(hit.id());
    }
    expect(library().search(query, kind, limit) == hits, "the same question has the same answer");

    const QStringList words = Text::words(query);
    for (const QString &word : words)
        expect(!word.isEmpty() && !word.contains(u'"'), "a word can't end the quotation");
    if (words.isEmpty()) {
        expect(hits.isEmpty(), "without a word nothing is found");
        return;
    }
    if (QSet<QString>(words.begin(), words.end()).size() <= kMostRankedWords)
        expect(hits == hitsOfSQLite(words, kind, limit), "SQLite finds the same in the same order");
}
