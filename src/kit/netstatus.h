// Whether the machine has a network.
#pragma once

#include <QNetworkInformation>
#include <QObject>

#include <optional>

/// The answer of the platform's network monitor, which looks at routes and addresses and connects
/// to nothing. Main thread only.
///
/// Online until the platform says otherwise, and always where it has no monitor: a page that can't
/// be loaded tells so itself, while a way that is closed by mistake has no other door.
class NetStatus : public QObject
{
    Q_OBJECT
public:
    [[nodiscard]] static NetStatus &shared();

    explicit NetStatus(QObject *parent = nullptr);

    /// Begins to follow the platform. Only the first call does anything. Needs the application
    /// object.
    void start();

    /// What is forced upon all objects of this type, or else what the platform has said last.
    [[nodiscard]] bool isOnline() const { return s_override.value_or(m_online); }

    /// An answer for modes without a user, which must not depend on the machine. Nothing lets the
    /// platform answer again.
    static void setOverride(std::optional<bool> online);
    [[nodiscard]] static std::optional<bool> forcedAnswer() { return s_override; }

    /// Takes the platform's word.
    void follow(QNetworkInformation::Reachability reachability);

    /// Only a machine that is cut off for certain is offline. Platforms that know no more than that
    /// there is a local network, or a login page before the rest, can't tell what is behind it.
    [[nodiscard]] static bool countsAsOnline(QNetworkInformation::Reachability reachability);

Q_SIGNALS:
    /// isOnline() answers differently from now on.
    void onlineChanged();

private:
    // Changes what isOnline() depends on, and says so if the answer isn't what it was.
    template <typename Change>
    void change(Change change)
    {
        const bool before = isOnline();
        change();
        if (isOnline() != before)
            Q_EMIT onlineChanged();
    }

    static inline std::optional<bool> s_override;

    bool m_online = true;
    bool m_started = false;
};
