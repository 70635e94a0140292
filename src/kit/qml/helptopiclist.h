#pragma once

#include "kit/rowmodel.h"

#include <QString>
#include <QtQml/qqml.h>

/// The help topics that a query finds, as rows with the roles `topicID` and `title`.
class HelpTopicList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
public:
    explicit HelpTopicList(QObject *parent = nullptr);

    [[nodiscard]] QString query() const { return m_query; }
    void setQuery(const QString &query);

    /// Asks for all topics again: their texts follow what they tell of.
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void queryChanged();

private:
    QString m_query;
};
