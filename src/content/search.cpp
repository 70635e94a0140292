#include "content/contentlibrary.h"

#include "content/contentkind.h"
#include "content/text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString kCreate = u"CREATE VIRTUAL TABLE fts USING fts5(kind UNINDEXED, ref UNINDEXED, "
                        u"title, aka, body, tokenize = 'porter unicode61')"_s;
const QString kInsert = u"INSERT INTO fts VALUES (?,?,?,?,?)"_s;
const QString kSelect = u"SELECT kind, ref, title, snippet(fts, 4, '', '', '…', 14) AS snip "
                        u"FROM fts WHERE fts MATCH ?"_s;
const QString kOfKind = u" AND kind = ?"_s;
const QString kBestFirst = u" ORDER BY bm25(fts, 0, 0, 12.0, 6.0, 1.0) LIMIT "_s;

// The time that a snippet takes grows with the square of the number of words: at this bound a query
// whose words stand everywhere takes seconds, and a page pasted by mistake would take hours.
constexpr qsizetype kMostWords = 24;

// One for each screen with a search field, and some for the way back while the user deletes.
constexpr qsizetype kRememberedAnswers = 8;

QString searchableText(const GearEntry &entry)
{
    QStringList models;
    for (const GearModel &model : entry.models)
        models.append(model.name + u' ' + model.use + u' ' + model.specs);
    return entry.body + u' ' + models.join(u' ');
}

// All terms, each as the beginning of a token. Terms hold no quote, so that none can end early and
// be read as an operator.
QString matchExpression(const QStringList &terms)
{
    return u'"' + terms.join(u"\"* AND \""_s) + u"\"*";
}

// How well a title answers: 0 is the query itself, 1 begins with it, 2 is all else.
int tierOf(const QString &title, const QString &needle)
{
    const QString words = Text::words(title).join(u' ');
    if (!words.startsWith(needle))
        return 2;
    return words.size() == needle.size() ? 0 : 1;
}

} // namespace

QString ContentLibrary::Hit::id() const
{
    return kind + u':' + ref;
}

ContentLibrary::Index ContentLibrary::makeIndex() const
{
    std::optional<SQLiteDB> index;
    try {
        index.emplace(u":memory:"_s);
    } catch (const HVError &) {
        return { .error = u"search index could not be created"_s };
    }

    const auto insert = [&index](const QString &kind, const QString &ref, const QString &title,
                            const QString &aka, const QString &body) {
        index->run(kInsert, { kind, ref, title, aka, body });
    };
    try {
        index->exec(kCreate);
        index->transaction([&] {
            for (const Lesson &lesson : lessons())
                insert(ContentKind::lesson, lesson.id, lesson.title, {}, lesson.body);
            for (const GearEntry &entry : gear())
                insert(ContentKind::gear, entry.id, entry.name, entry.aka + u' ' + entry.category,
                    searchableText(entry));
            for (const TimelineEvent &event : timeline())
                insert(ContentKind::history, event.id, event.title,
                    event.dateText + u' ' + event.era, event.body);
            for (const Video &video : videos())
                insert(ContentKind::video, video.id, video.title, video.channel, video.topic);
            for (const Software &program : software())
                insert(ContentKind::software, program.id, program.name,
                    program.maker + u' ' + program.kind, program.body);
        });
    } catch (const HVError &error) {
        return { .error = u"search index: " + error.description() };
    }
    return { .database = std::move(index) };
}

QList<ContentLibrary::Hit> ContentLibrary::search(
    const QString &query, const std::optional<QString> &kind, qint64 limit) const
{
    const auto isAsked = [&](const Answer &answer) {
        return answer.query == query && answer.kind == kind && answer.limit == limit;
    };
    const auto known = std::find_if(m_answers.cbegin(), m_answers.cend(), isAsked);
    if (known != m_answers.cend())
        return known->hits;

    try {
        const QList<Hit> hits = found(Text::words(query), kind, limit);
        if (m_answers.size() == kRememberedAnswers)
            m_answers.removeFirst();
        m_answers.append({ query, kind, limit, hits });
        return hits;
    } catch (const HVError &) {
        return {}; // a search that finds nothing is what the user can act upon: another word
    }
}

QList<ContentLibrary::Hit> ContentLibrary::found(
    const QStringList &terms, const std::optional<QString> &kind, qint64 limit) const
{
    if (terms.isEmpty() || terms.size() > kMostWords || !index())
        return {};

    QString sql = kSelect;
    QList<SQLValue> arguments = { matchExpression(terms) };
    if (kind) {
        sql += kOfKind;
        arguments.append(*kind);
    }
    sql += kBestFirst + QString::number(limit);

    const QString needle = terms.join(u' ');
    QList<std::pair<int, Hit>> ranked;
    for (const SQLRow &row : index()->query(sql, arguments)) {
        Hit hit{
            .kind = row.str(u"kind"_s),
            .ref = row.str(u"ref"_s),
            .title = row.str(u"title"_s),
            .snippet = row.str(u"snip"_s),
        };
        const int tier = tierOf(hit.title, needle);
        ranked.append({ tier, std::move(hit) });
    }
    std::ranges::stable_sort(ranked, {}, [](const auto &hit) { return hit.first; });

    QList<Hit> hits;
    hits.reserve(ranked.size());
    for (auto &[tier, hit] : ranked)
        hits.append(std::move(hit));
    return hits;
}
