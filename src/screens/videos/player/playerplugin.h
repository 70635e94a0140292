#pragma once

#include <QQmlEngineExtensionPlugin>

/// What the program loads to show its first film.
class PlayerPlugin : public QQmlEngineExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid)
public:
    explicit PlayerPlugin(QObject *parent = nullptr);

    /// Makes the web engine ready for a program that wasn't linked with it.
    void initializeEngine(QQmlEngine *engine, const char *uri) override;
};
