#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// Keeps the program's shortcuts alive while a read-only text has the focus.
///
/// Qt 6.4's TextEdit claims every shortcut for itself, also when it is read-only and has no use
/// for it: after a click into a lesson no key would turn the dial. This lets it claim what a
/// reader needs, copying and selecting all, and nothing else.
class ReadingKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *text READ text WRITE setText NOTIFY textChanged REQUIRED)
public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem *text() const { return m_text; }
    void setText(QQuickItem *text);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void textChanged();

private:
    QPointer<QQuickItem> m_text;
};
