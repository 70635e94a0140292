#include "screens/videos/player/playerplugin.h"

#include <QtWebEngineQuick>

// Made by the build from the types that are declared for QML.
extern void qml_register_types_Halvorin_Player();

PlayerPlugin::PlayerPlugin(QObject *parent)
    : QQmlEngineExtensionPlugin(parent)
{
    // The registration stands in a file of its own, which a linker may leave out if nothing asks
    // for it.
    volatile auto registration = &qml_register_types_Halvorin_Player;
    Q_UNUSED(registration)
}

void PlayerPlugin::initializeEngine(QQmlEngine *, const char *)
{
    // The program may have started without sharing GL contexts, which the engine can't do without.
    if (!QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts))
        QtWebEngineQuick::initialize();
}
