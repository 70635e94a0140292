#pragma once

#include "kit/rowmodel.h"
#include "store/userstore.h"

#include <QtQml/qqml.h>

/// The notes on one target, the last changed first: roles `noteID`, `body` and `changed`. It shows
/// a page of them, and more when it is asked.
class TargetNotes : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString targetType READ targetType WRITE setTargetType NOTIFY targetChanged)
    Q_PROPERTY(QString targetID READ targetID WRITE setTargetID NOTIFY targetChanged)
    /// How many there are beyond those that are shown.
    Q_PROPERTY(int hidden READ hidden NOTIFY hiddenChanged)
public:
    static constexpr qsizetype pageSize = 40;

    explicit TargetNotes(QObject *parent = nullptr);

    [[nodiscard]] QString targetType() const { return m_targetType; }
    void setTargetType(const QString &type);
    [[nodiscard]] QString targetID() const { return m_targetID; }
    void setTargetID(const QString &id);
    [[nodiscard]] int hidden() const { return int(m_notes.size()) - count(); }

    Q_INVOKABLE void showMore();

    /// Opens the editor on a note.
    Q_INVOKABLE void edit(int row);
    /// Deletes a note for good; a failure becomes the message.
    Q_INVOKABLE void remove(qint64 noteID);

Q_SIGNALS:
    void targetChanged();
    void hiddenChanged();

private:
    void change(QString &part, const QString &value);
    void read();
    void show();

    QString m_targetType;
    QString m_targetID;
    QList<Note> m_notes;
    qsizetype m_shown = pageSize;
};
