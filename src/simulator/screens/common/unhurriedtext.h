#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

/// A text that changes no more often than once in an interval, for those to whom every change is
/// read out. The first change shows at once; of those that follow within the interval the last one
/// shows at its end.
class UnhurriedText : public QObject
{
    Q_OBJECT
public:
    explicit UnhurriedText(std::chrono::milliseconds interval, QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);

Q_SIGNALS:
    void textChanged();

private:
    void show();

    QString m_text;
    QString m_newest;
    QTimer m_pause; ///< Runs while no further change may show.
};
