#pragma once

#include "screens/common/itemlist.h"
#include "screens/gear/private/examplelist.h"

#include <QObject>
#include <QtQml/qqml.h>

/// An entry of the encyclopedia as its page shows it, with the user's bookmark on it.
class GearReading : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString entryID READ entryID WRITE setEntryID NOTIFY entryChanged)
    Q_PROPERTY(QString name READ name NOTIFY entryChanged)
    Q_PROPERTY(QString category READ category NOTIFY entryChanged)
    Q_PROPERTY(QString alsoCalled READ alsoCalled NOTIFY entryChanged)
    Q_PROPERTY(QString diagram READ diagram NOTIFY entryChanged)
    Q_PROPERTY(QString body READ body NOTIFY entryChanged)
    Q_PROPERTY(ExampleList *examples READ examples CONSTANT)
    Q_PROPERTY(ItemList *seeAlso READ seeAlso CONSTANT)
    /// How old the examples' specifications are.
    Q_PROPERTY(QString specsNote READ specsNote CONSTANT)
    Q_PROPERTY(bool bookmarked READ isBookmarked NOTIFY marksChanged)
public:
    explicit GearReading(QObject *parent = nullptr);

    [[nodiscard]] QString entryID() const { return m_entryID; }
    void setEntryID(const QString &id);
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString category() const;
    [[nodiscard]] QString alsoCalled() const;
    [[nodiscard]] QString diagram() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] ExampleList *examples() { return &m_examples; }
    /// Other entries; ids that name none are left out.
    [[nodiscard]] ItemList *seeAlso() { return &m_seeAlso; }
    [[nodiscard]] QString specsNote() const;
    [[nodiscard]] bool isBookmarked() const;

    Q_INVOKABLE void toggleBookmark();
    Q_INVOKABLE void addNote();
    /// Goes to another entry.
    Q_INVOKABLE void open(const QString &entryID);

Q_SIGNALS:
    void entryChanged();
    void marksChanged();

private:
    /// The entry, or an empty one for an id that names none.
    [[nodiscard]] const struct GearEntry &entry() const;

    QString m_entryID;
    ExampleList m_examples;
    ItemList m_seeAlso;
};
