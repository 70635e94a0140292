#pragma once

#include "kit/windowframe.h"

#include <QQmlParserStatus>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqml.h>

/// Remembers size and place of a window from one run to the next, in the preference
/// "crvn.frame.<name>". Stands in the window:
///
///     FrameMemory { id: memory; name: "main"; window: root }
///     width: memory.size(usual).width
///
/// The size has to be asked for, so that nothing is laid out in the usual one first; the place is
/// taken before the window is shown.
class FrameMemory : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QString name MEMBER m_name REQUIRED)
    Q_PROPERTY(QQuickWindow *window MEMBER m_window REQUIRED)
    /// Whether the window has the place of an earlier run.
    Q_PROPERTY(bool placed READ isPlaced CONSTANT)
    /// The largest window that is seen as a whole on the screen where this one stands.
    Q_PROPERTY(QSizeF room READ room NOTIFY roomChanged)
public:
    explicit FrameMemory(QObject *parent = nullptr);
    ~FrameMemory() override;

    [[nodiscard]] bool isPlaced() const;
    [[nodiscard]] QSizeF room() const;

    /// The remembered size or else `usual`, as far as the screens have room for it.
    Q_INVOKABLE [[nodiscard]] QSizeF size(QSizeF usual) const;

Q_SIGNALS:
    void roomChanged();

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    [[nodiscard]] QString key() const;
    [[nodiscard]] std::optional<WindowFrame> stored() const;
    [[nodiscard]] WindowPlace place(const WindowFrame &frame) const;
    void note();
    void store();

    QString m_name;
    QQuickWindow *m_window = nullptr;
    QRect m_area;             ///< The last one in which the window filled no screen.
    bool m_maximizes = false; ///< With its first show, which would undo it before.
    QTimer m_settled;
};
