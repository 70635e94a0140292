#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QString>

#include <memory>

class QQmlEngine;

/// The kit's own windows, help and About: makes each when it is first asked for, through
/// CRVNHelp::show() and CRVNAbout::show(), and keeps it as long as this exists.
class KitWindows : public QObject
{
    Q_OBJECT
public:
    /// Answers to both from now on. The engine outlives it.
    explicit KitWindows(QQmlEngine &engine);
    ~KitWindows() override;

private:
    /// The window of this file, made if need be.
    [[nodiscard]] QQuickWindow *made(std::unique_ptr<QQuickWindow> &window, const QString &file);

    QQmlEngine &m_engine;
    std::unique_ptr<QQuickWindow> m_help;
    std::unique_ptr<QQuickWindow> m_about;
};
