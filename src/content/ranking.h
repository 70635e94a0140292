// What orders and quotes the hits of a search: two functions for statements over an FTS5 table.
//
//   hv_rank(fts, asked, weight, …)          what bm25(fts, weight, …) gives
//   hv_snippet(fts, asked, column, tokens)  what snippet(fts, column, '', '', '…', tokens) gives
//
// SQLite's own functions want a word that a query names twice to be looked up twice, and snippet()
// takes a time that grows with the square of the hits in a text: a query of 24 times the same
// letter takes them seconds. These are told in `asked` which words the query names, each time it
// does, and take a time that grows with the text. Their answers are the same, to the last bit.
//
// Source of bm25: S. Robertson, H. Zaragoza, The Probabilistic Relevance Framework: BM25 and
// Beyond, with SQLite's k1 = 1.2 and b = 0.75.
#pragma once

#include "store/sqlitedb.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace Ranking {

/// An empty database in memory that knows the two functions. Throws an HVError.
[[nodiscard]] SQLiteDB openDatabase();

/// The words of a query, for a statement.
struct Asked {
    QStringList words; ///< Each once, in the order in which they first stand.
    QByteArray order;  ///< `asked`: the place in `words` of each word of the query.
};
[[nodiscard]] Asked asked(const QStringList &queryWords);

/// While it lives, statements of this thread that use the functions end with an HVError soon after
/// `isUnwanted` has begun to answer true. It is asked once for each row and each word.
class Interruption
{
public:
    explicit Interruption(std::function<bool()> isUnwanted);
    ~Interruption();
    Q_DISABLE_COPY_MOVE(Interruption)

private:
    std::function<bool()> m_isUnwanted;
};

} // namespace Ranking
