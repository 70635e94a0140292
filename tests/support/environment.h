// The environment of the tests' own process, changed for as long as a test needs it.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// An environment variable that has another value, or none, while this lives.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char *name, const std::optional<QString> &value)
        : m_name(name)
    {
        if (qEnvironmentVariableIsSet(name))
            m_before = qgetenv(name);
        put(value ? std::optional(value->toLocal8Bit()) : std::nullopt);
    }
    ~EnvironmentVariable() { put(m_before); }
    Q_DISABLE_COPY_MOVE(EnvironmentVariable)

private:
    void put(const std::optional<QByteArray> &value)
    {
        if (value)
            qputenv(m_name, *value);
        else
            qunsetenv(m_name);
    }

    const char *m_name;
    std::optional<QByteArray> m_before;
};
