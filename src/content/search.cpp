#include "content/contentlibrary.h"

#include "content/contentkind.h"
#include "content/ranking.h"
#include "content/text.h"

#include <QHash>
#include <QPromise>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString kCreate = u"CREATE VIRTUAL TABLE fts USING fts5(kind UNINDEXED, ref UNINDEXED, "
                        u"title, aka, body, tokenize = 'porter unicode61')"_s;
const QString kInsert = u"INSERT INTO fts VALUES (?,?,?,?,?)"_s;

// A query of more different words than this is taken for a pasted sentence.
constexpr qsizetype kMostTypedWords = 12;

// One for each screen with a search field, and some for the way back while the user deletes.
constexpr qsizetype kRememberedAnswers = 8;

QString searchableText(const GearEntry &entry)
{
    QStringList models;
    for (const GearModel &model : entry.models)
        models.append(model.name + u' ' + model.use + u' ' + model.specs);
    return entry.body + u' ' + models.join(u' ');
}

// All words, each as the beginning of a token. Words hold no quote, so that none can end early and
// be read as an operator.
QString anywhere(const QStringList &words)
{
    return u'"' + words.join(u"\"* AND \""_s) + u"\"*";
}

// The words one after the other, the last as the beginning of a token.
QString inOneStretch(const QStringList &words)
{
    return u'"' + words.join(u' ') + u"\"*";
}

// The numbers of the rows that a statement selects, for the list of an IN.
QString rowsOf(const SQLiteDB &index, const QString &sql, const QList<SQLValue> &arguments)
{
    QStringList numbers;
    for (const SQLRow &row : index.query(sql, arguments))
        numbers.append(row.str(u"rowid"_s));
    return numbers.join(u',');
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
        index.emplace(Ranking::openDatabase());
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
    ++m_inHaste;
    const std::scoped_lock lock(m_searching);
    --m_inHaste;
    m_inHaste.notify_all();
    return answer({ query, kind, limit });
}

QFuture<QList<ContentLibrary::Hit>> ContentLibrary::searchInBackground(
    const QString &query, const std::optional<QString> &kind, qint64 limit) const
{
    const auto promise = std::make_shared<QPromise<QList<Hit>>>();
    promise->start();
    m_background.start([this, promise, search = Search{ query, kind, limit }] {
        QList<Hit> hits;
        for (bool isAnswered = false; !isAnswered && !promise->isCanceled();) {
            for (int waiting = m_inHaste; waiting > 0; waiting = m_inHaste)
                m_inHaste.wait(waiting);
            const std::scoped_lock lock(m_searching);
            const Ranking::Interruption interruption(
                [&] { return promise->isCanceled() || m_inHaste > 0; });
            hits = answer(search);
            isAnswered = m_inHaste == 0;
        }
        promise->addResult(std::move(hits)); // dropped if nobody wants it any more
        promise->finish();
    });
    return promise->future();
}

QList<ContentLibrary::Hit> ContentLibrary::answer(const Search &search) const
{
    const auto known = std::ranges::find(m_answers, search, &Answer::search);
    if (known != m_answers.cend())
        return known->hits;

    try {
        const QList<Hit> hits = found(search);
        if (m_answers.size() == kRememberedAnswers)
            m_answers.removeFirst();
        m_answers.append({ search, hits });
        return hits;
    } catch (const HVError &) {
        return {}; // a search that finds nothing is what the user can act upon: another word
    }
}

QList<ContentLibrary::Hit> ContentLibrary::found(const Search &search) const
{
    const QStringList words = Text::words(search.query);
    if (words.isEmpty() || !index())
        return {};

    // First what is found and in which order, then the texts of those alone: a statement that
    // selects all at once quotes every text that matches before it counts to the limit.
    const Ranking::Asked asked = Ranking::asked(words);
    const QString match = anywhere(asked.words);
    QString order = u"hv_rank(fts, ?, 0, 0, 12.0, 6.0, 1.0)"_s;
    if (asked.words.size() > kMostTypedWords) {
        const QString sentence = rowsOf(
            *index(), u"SELECT rowid FROM fts WHERE fts MATCH ?"_s, { inOneStretch(words) });
        order.prepend(u"rowid NOT IN (%1), rowid IN (%1) AND kind <> 'lesson', "_s.arg(sentence));
    }
    QList<SQLValue> arguments = { match };
    if (search.kind)
        arguments.append(*search.kind);
    arguments.append(asked.order);
    const QString rows = rowsOf(*index(),
        u"SELECT rowid FROM fts WHERE fts MATCH ? "_s
            + (search.kind ? u"AND kind = ? "_s : QString()) + u"ORDER BY " + order + u" LIMIT "
            + QString::number(search.limit),
        arguments);
    if (rows.isEmpty())
        return {};

    QHash<QString, Hit> texts;
    // The sign keeps SQLite from looking the words up for each row.
    for (const SQLRow &row : index()->query(
             u"SELECT rowid, kind, ref, title, hv_snippet(fts, ?, 4, 14) AS snip FROM fts "
             "WHERE fts MATCH ? AND +rowid IN ("_s
                 + rows + u')',
             { asked.order, match })) {
        texts.insert(row.str(u"rowid"_s),
            { .kind = row.str(u"kind"_s),
                .ref = row.str(u"ref"_s),
                .title = row.str(u"title"_s),
                .snippet = row.str(u"snip"_s) });
    }

    const QString needle = words.join(u' ');
    QList<std::pair<int, Hit>> ranked;
    for (const QString &row : rows.split(u',')) {
        const Hit hit = texts.value(row);
        ranked.append({ tierOf(hit.title, needle), hit });
    }
    std::ranges::stable_sort(ranked, {}, [](const auto &hit) { return hit.first; });

    QList<Hit> hits;
    hits.reserve(ranked.size());
    for (auto &[tier, hit] : ranked)
        hits.append(std::move(hit));
    return hits;
}
