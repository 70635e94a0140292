// The measure of a start: a Qt Quick window with one text, and nothing else.

#include "firstframe.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData(R"(
        import QtQuick
        Window { width: 1440; height: 948; visible: true; Text { text: "Halvorin" } }
    )");
    return runUntilFirstFrame(qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst()));
}
