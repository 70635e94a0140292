#include "content/ranking.h"

#include "store/hverror.h"

#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

thread_local const std::function<bool()> *interruption = nullptr;

bool isUnwanted()
{
    return interruption && (*interruption)();
}

// Place of a word among those that are looked up.
using Place = quint32;

std::span<const Place> askedPlaces(sqlite3_value *value)
{
    const auto bytes = static_cast<size_t>(sqlite3_value_bytes(value));
    return { static_cast<const Place *>(sqlite3_value_blob(value)), bytes / sizeof(Place) };
}

/// A place of a text at which a word of the query stands.
struct Instance {
    int phrase; ///< Place of the word among those that are looked up.
    int column;
    int offset; ///< In tokens.
};

// What SQLite hands to a function, with its error codes as a state: after the first failure nothing
// is asked any more.
class Row
{
public:
    Row(const Fts5ExtensionApi *api, Fts5Context *fts)
        : m_api(api)
        , m_fts(fts)
    { }

    [[nodiscard]] int error() const { return m_error; }
    void fail(int error) { m_error = error; }

    [[nodiscard]] size_t phraseCount() const { return size_t(m_api->xPhraseCount(m_fts)); }
    [[nodiscard]] int tokensIn(int phrase) const { return m_api->xPhraseSize(m_fts, phrase); }

    /// Size of a column, of all if it is negative; in tokens.
    [[nodiscard]] int size(int column)
    {
        int size = 0;
        note(m_api->xColumnSize(m_fts, column, &size));
        return size;
    }

    [[nodiscard]] int instanceCount()
    {
        int count = 0;
        note(m_api->xInstCount(m_fts, &count));
        return m_error == SQLITE_OK ? count : 0;
    }
    [[nodiscard]] Instance instance(int index)
    {
        Instance found{};
        note(m_api->xInst(m_fts, index, &found.phrase, &found.column, &found.offset));
        return found;
    }

    [[nodiscard]] std::string_view text(int column)
    {
        const char *text = nullptr;
        int size = 0;
        note(m_api->xColumnText(m_fts, column, &text, &size));
        return m_error == SQLITE_OK && text ? std::string_view(text, size_t(size))
                                            : std::string_view();
    }

    /// Calls `visit(begin, end)` with the bytes of each token.
    template <typename Visit>
    void forEachToken(std::string_view text, Visit visit)
    {
        const auto receive = [](void *context, int, const char *, int, int begin, int end) {
            (*static_cast<Visit *>(context))(begin, end);
            return SQLITE_OK;
        };
        if (m_error == SQLITE_OK)
            note(m_api->xTokenize(m_fts, text.data(), int(text.size()), &visit, receive));
    }

private:
    void note(int code)
    {
        if (m_error == SQLITE_OK)
            m_error = code;
    }

    const Fts5ExtensionApi *m_api;
    Fts5Context *m_fts;
    int m_error = SQLITE_OK;
};

// What is the same for all rows of a statement.
struct Statistics {
    std::vector<double> rarity; ///< Inverse document frequency of each word.
    double averageSize = 0;     ///< Tokens of a row.
};

int countRow(const Fts5ExtensionApi *, Fts5Context *, void *count)
{
    ++*static_cast<sqlite3_int64 *>(count);
    return SQLITE_OK;
}

int collect(const Fts5ExtensionApi *api, Fts5Context *fts, Statistics &statistics)
{
    sqlite3_int64 rows = 0;
    sqlite3_int64 tokens = 0;
    int code = api->xRowCount(fts, &rows);
    if (code == SQLITE_OK)
        code = api->xColumnTotalSize(fts, -1, &tokens);
    statistics.averageSize = double(tokens) / double(rows);

    const int phrases = api->xPhraseCount(fts);
    for (int phrase = 0; phrase < phrases && code == SQLITE_OK; ++phrase) {
        if (isUnwanted())
            return SQLITE_INTERRUPT;
        sqlite3_int64 hits = 0;
        code = api->xQueryPhrase(fts, phrase, &hits, countRow);
        const double rarity = std::log((double(rows - hits) + 0.5) / (double(hits) + 0.5));
        // A word that stands in more than half of all rows would count against them.
        statistics.rarity.push_back(rarity > 0 ? rarity : 1e-6);
    }
    return code;
}

// The statistics of the statement that calls; null with an error code in `code`.
const Statistics *statisticsOf(const Fts5ExtensionApi *api, Fts5Context *fts, int &code)
{
    if (void *known = api->xGetAuxdata(fts, 0))
        return static_cast<const Statistics *>(known);
    auto made = std::make_unique<Statistics>();
    code = collect(api, fts, *made);
    if (code != SQLITE_OK)
        return nullptr;
    Statistics *kept = made.release();
    code = api->xSetAuxdata(
        fts, kept, [](void *statistics) { delete static_cast<Statistics *>(statistics); });
    return code == SQLITE_OK ? kept : nullptr;
}

void rank(const Fts5ExtensionApi *api, Fts5Context *fts, sqlite3_context *context, int count,
    sqlite3_value **arguments)
{
    int code = isUnwanted() ? SQLITE_INTERRUPT : SQLITE_OK;
    const Statistics *statistics = code == SQLITE_OK ? statisticsOf(api, fts, code) : nullptr;
    if (!statistics)
        return sqlite3_result_error_code(context, code);

    Row row(api, fts);
    std::vector<double> frequency(row.phraseCount());
    const int instances = row.instanceCount();
    for (int i = 0; i < instances; ++i) {
        const Instance instance = row.instance(i);
        const int weight = instance.column + 1;
        frequency[size_t(instance.phrase)]
            += weight < count ? sqlite3_value_double(arguments[weight]) : 1.0;
    }
    constexpr double k1 = 1.2;
    constexpr double b = 0.75;
    const double size = row.size(-1);
    std::vector<double> parts(frequency.size());
    for (size_t phrase = 0; phrase < parts.size(); ++phrase)
        parts[phrase] = statistics->rarity[phrase]
            * (frequency[phrase] * (k1 + 1.0)
                / (frequency[phrase] + k1 * (1 - b + b * size / statistics->averageSize)));
    if (row.error() != SQLITE_OK)
        return sqlite3_result_error_code(context, row.error());

    double score = 0;
    for (const Place place : askedPlaces(arguments[0])) {
        if (place < parts.size())
            score += parts[place];
    }
    sqlite3_result_double(context, -score); // the best first in ascending order
}

// A stretch of a text that slides forward over the instances in it. It is worth most if it holds
// many different words.
class Window
{
public:
    Window(const std::vector<Instance> &instances, const std::vector<qint64> &times, int size)
        : m_instances(instances)
        , m_times(times)
        , m_counts(times.size())
        , m_size(size)
    { }

    void slideTo(int begin)
    {
        for (; m_end < m_instances.size() && m_instances[m_end].offset < begin + m_size; ++m_end)
            m_score += worth(m_instances[m_end].phrase, m_counts[phraseAt(m_end)]++);
        for (; m_begin < m_end && m_instances[m_begin].offset < begin; ++m_begin)
            m_score -= worth(m_instances[m_begin].phrase, --m_counts[phraseAt(m_begin)]);
    }
    [[nodiscard]] qint64 score() const { return m_score; }
    [[nodiscard]] const Instance &last() const { return m_instances[m_end - 1]; }

private:
    [[nodiscard]] size_t phraseAt(size_t index) const { return size_t(m_instances[index].phrase); }
    // What one more of a word adds: the first counts as a word that is there.
    [[nodiscard]] qint64 worth(int phrase, int before) const
    {
        return m_times[size_t(phrase)] * (before == 0 ? 1000 : 1);
    }

    const std::vector<Instance> &m_instances;
    const std::vector<qint64> &m_times;
    std::vector<int> m_counts;
    int m_size;
    size_t m_begin = 0;
    size_t m_end = 0;
    qint64 m_score = 0;
};

// Where the sentences of a text begin, in tokens: at its beginning, and where a full stop or a
// colon and white space come before.
std::vector<int> sentenceBegins(Row &row, std::string_view text)
{
    std::vector<int> begins;
    int token = 0;
    row.forEachToken(text, [&](int begin, int) {
        const std::string_view before = text.substr(0, size_t(begin));
        const size_t end = before.find_last_not_of(" \t\n\r");
        const bool isApart = end != std::string_view::npos && end + 1 != before.size();
        if (token == 0 || (isApart && (before[end] == '.' || before[end] == ':')))
            begins.push_back(token);
        ++token;
    });
    return begins;
}

struct Excerpt {
    int begin; ///< Token.
    int size;
};

// The excerpt in which most of the query stands: with one of its words in the middle or, which
// counts a little more, from the beginning of a sentence.
int bestBegin(Row &row, std::string_view text, int column, int textSize, int size,
    const std::vector<qint64> &times)
{
    std::vector<Instance> instances;
    const int count = row.instanceCount();
    for (int i = 0; i < count; ++i) {
        if (const Instance instance = row.instance(i); instance.column == column)
            instances.push_back(instance);
    }
    if (instances.empty())
        return 0;

    const std::vector<int> sentences = sentenceBegins(row, text);
    Window around(instances, times, size);
    Window sentence(instances, times, size);
    size_t next = 0;
    qint64 best = 0;
    int begin = 0;
    for (const Instance &instance : instances) {
        around.slideTo(instance.offset);
        if (around.score() > best) {
            best = around.score();
            const Instance &last = around.last();
            const int end = last.offset + row.tokensIn(last.phrase);
            const int centered = instance.offset - (size - (end - instance.offset)) / 2;
            begin = std::max(0, std::min(centered, textSize - size));
        }
        while (next + 1 < sentences.size() && sentences[next + 1] <= instance.offset)
            ++next;
        if (textSize <= size || sentences.empty() || sentences[next] >= instance.offset)
            continue;
        sentence.slideTo(sentences[next]);
        const qint64 score = sentence.score() + (sentences[next] == 0 ? 120 : 100);
        if (score > best) {
            best = score;
            begin = sentences[next];
        }
    }
    return begin;
}

// The tokens of an excerpt with what stands between them, and an ellipsis at each end that isn't
// the text's own.
std::string quoted(Row &row, std::string_view text, int textSize, Excerpt excerpt)
{
    size_t from = 0;
    size_t to = text.size();
    int token = 0;
    const int last = excerpt.begin + excerpt.size - 1;
    row.forEachToken(text, [&](int begin, int end) {
        if (excerpt.begin > 0 && token == excerpt.begin)
            from = size_t(begin);
        if (last < textSize - 1 && token == last)
            to = size_t(end);
        ++token;
    });
    std::string quotation;
    if (excerpt.begin > 0)
        quotation += "…";
    quotation += text.substr(from, to - from);
    if (last < textSize - 1)
        quotation += "…";
    return quotation;
}

void snippet(const Fts5ExtensionApi *api, Fts5Context *fts, sqlite3_context *context, int count,
    sqlite3_value **arguments)
{
    if (count != 3)
        return sqlite3_result_error(context, "asked, column and tokens", -1);
    if (isUnwanted())
        return sqlite3_result_error_code(context, SQLITE_INTERRUPT);

    Row row(api, fts);
    std::vector<qint64> times(row.phraseCount());
    for (const Place place : askedPlaces(arguments[0])) {
        if (place < times.size())
            ++times[place];
    }
    const int column = sqlite3_value_int(arguments[1]);
    const int size = sqlite3_value_int(arguments[2]);
    const std::string_view text = row.text(column);
    const int textSize = row.size(column);
    const int begin = bestBegin(row, text, column, textSize, size, times);
    const std::string quotation = quoted(row, text, textSize, { begin, size });
    if (row.error() != SQLITE_OK)
        return sqlite3_result_error_code(context, row.error());
    sqlite3_result_text(context, quotation.data(), int(quotation.size()), SQLITE_TRANSIENT);
}

// FTS5's own interface of a connection, or null.
fts5_api *interfaceOf(sqlite3 *connection)
{
    fts5_api *api = nullptr;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(connection, "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
        sqlite3_bind_pointer(statement, 1, &api, "fts5_api_ptr", nullptr);
        sqlite3_step(statement);
    }
    sqlite3_finalize(statement);
    return api;
}

int addFunctions(sqlite3 *connection)
{
    fts5_api *api = interfaceOf(connection);
    if (!api)
        return SQLITE_ERROR;
    const int code = api->xCreateFunction(api, "hv_rank", nullptr, rank, nullptr);
    return code == SQLITE_OK ? api->xCreateFunction(api, "hv_snippet", nullptr, snippet, nullptr)
                             : code;
}

} // namespace

namespace Ranking {

SQLiteDB openDatabase()
{
    SQLiteDB database(u":memory:"_s);
    const int code = addFunctions(database.handle());
    if (code != SQLITE_OK)
        throw HVError(HVError::Kind::Database, database.lastError(), code);
    return database;
}

Asked asked(const QStringList &queryWords)
{
    Asked result;
    QHash<QString, Place> places;
    for (const QString &word : queryWords) {
        const auto known = places.constFind(word);
        const Place place = known != places.constEnd() ? *known : Place(result.words.size());
        if (known == places.constEnd()) {
            places.insert(word, place);
            result.words.append(word);
        }
        result.order.append(reinterpret_cast<const char *>(&place), sizeof place);
    }
    return result;
}

Interruption::Interruption(std::function<bool()> isUnwanted)
    : m_isUnwanted(std::move(isUnwanted))
{
    interruption = &m_isUnwanted;
}

Interruption::~Interruption()
{
    interruption = nullptr;
}

} // namespace Ranking
