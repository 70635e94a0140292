// A home for the tests' own process.
#pragma once

#include <QTemporaryDir>

/// Nothing of the user's is read or written, by whichever test asks first where such things lie:
/// what is the process's own keeps its place for good. To be made before the application.
class OwnHome
{
public:
    OwnHome()
    {
        for (const char *name :
            { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
            qputenv(name, m_folder.path().toLocal8Bit());
    }

private:
    const QTemporaryDir m_folder;
};
