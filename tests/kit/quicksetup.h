// What every Qt Quick Test program of the project does before its first test.
#pragma once

#include "kit/fonts.h"
#include "kit/preferences.h"

#include <QGuiApplication>
#include <QQmlEngine>

/// Derive from it, and call the members of the same name first.
class QuickSetup : public QObject
{
public:
    /// Comes before the application object, which reads the environment.
    QuickSetup()
    {
        setUnlessSet("QT_QPA_PLATFORM", HV_OFFSCREEN);
        setUnlessSet("QT_QUICK_BACKEND", "software");
        // As the program does: one design point is one logical pixel.
        qputenv("QT_FONT_DPI", "72");
    }

protected:
    static void applicationAvailable()
    {
        Preferences::shared().keepInMemory();
        QGuiApplication::setFont(Fonts::rounded(12.5));
    }
    static void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(":/qt/qml"));
    }

private:
    static void setUnlessSet(const char *name, const char *value)
    {
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    }
};
