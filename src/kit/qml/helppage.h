#pragma once

#include "kit/rowmodel.h"

#include <QString>
#include <QtQml/qqml.h>

/// A help topic to be read: its title, and its text as rows with the roles `kind`, a HelpPage.Kind,
/// and `text`.
class HelpPage : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString topicID READ topicID WRITE setTopicID NOTIFY topicChanged)
    Q_PROPERTY(QString title READ title NOTIFY topicChanged)
public:
    enum Kind { Heading, Bullet, Paragraph };
    Q_ENUM(Kind)

    explicit HelpPage(QObject *parent = nullptr);

    /// An id that names no topic gives the first one.
    [[nodiscard]] QString topicID() const { return m_topicID; }
    void setTopicID(const QString &id);
    [[nodiscard]] QString title() const { return m_title; }

Q_SIGNALS:
    void topicChanged();

private:
    QString m_topicID;
    QString m_title;
};
