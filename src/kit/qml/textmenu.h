#pragma once

#include <QQmlParserStatus>
#include <QQuickItem>
#include <QtQml/qqml.h>

#include <memory>

/// Gives a text its context menu: by the right button, the Menu key and Shift+F10. Stands in a
/// TextInput or TextEdit. The menu is made when it is first asked for.
class TextMenu : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
public:
    explicit TextMenu(QObject *parent = nullptr);
    ~TextMenu() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    [[nodiscard]] QQuickItem *text() const { return qobject_cast<QQuickItem *>(parent()); }
    void open(QPointF at);

    std::unique_ptr<QObject> m_menu;
};
