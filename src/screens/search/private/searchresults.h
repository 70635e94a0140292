#pragma once

#include "content/contentlibrary.h"
#include "kit/rowmodel.h"

#include <QFutureWatcher>
#include <QtQml/qqml.h>

/// What the search over everything has found for AppModel::globalQuery: at most 40 hits of all
/// kinds, best first, as rows with the roles `kind`, `ref`, `title` and `snippet`, which stands in
/// one line.
///
/// It is looked up in another thread. Until the answer is there, all that is told is the answer
/// before it, with the query that it belongs to. A query that is overtaken by the next letter is
/// never shown.
class SearchResults : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    /// How many results there are for which query; empty before the first answer.
    Q_PROPERTY(QString heading READ heading NOTIFY answered)
    /// Whether the answer is that there is nothing.
    Q_PROPERTY(bool findsNothing READ findsNothing NOTIFY answered)
public:
    explicit SearchResults(QObject *parent = nullptr);
    ~SearchResults() override;

    [[nodiscard]] QString heading() const { return m_heading; }
    [[nodiscard]] bool findsNothing() const { return m_isAnswered && count() == 0; }

Q_SIGNALS:
    void answered();

private:
    using Hits = QList<ContentLibrary::Hit>;

    void ask();
    void show(const Hits &hits);
    void showHits(const Hits &hits);

    QFutureWatcher<Hits> m_search;
    QString m_query; ///< That is being looked up, or has been.
    QString m_heading;
    bool m_isAnswered = false;
};
