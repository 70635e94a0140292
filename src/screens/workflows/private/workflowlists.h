#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The stages of the work, on film and digitally: roles `stage`, `film` and `digital`.
class WorkflowSteps : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit WorkflowSteps(QObject *parent = nullptr);
};

/// The kinds of programs: roles `kind` and `caption`.
class SoftwareKindList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit SoftwareKindList(QObject *parent = nullptr);
};

/// The programs of a kind: roles `softwareID`, `name`, `makerLine`, `body`, `address`, `host`
/// (empty for an address that leads nowhere) and `found`, which marks what a search asked for.
class SoftwareList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY kindChanged)
public:
    explicit SoftwareList(QObject *parent = nullptr);

    [[nodiscard]] QString kind() const { return m_kind; }
    void setKind(const QString &kind);

Q_SIGNALS:
    void kindChanged();

private:
    void show(const QList<struct Software> &programs);

    QString m_kind;
};
