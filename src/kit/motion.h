// Whether the desktop asks programs to do without movement.
#pragma once

#include <QObject>
#include <QVariantMap>

/// Follows the desktop's wish. Where the desktop can't be asked, nobody has wished for anything.
/// Main thread only.
class Motion : public QObject
{
    Q_OBJECT
public:
    [[nodiscard]] static Motion &shared();

    /// False until the desktop has answered.
    [[nodiscard]] bool isReduced() const { return m_reduced; }
    void setReduced(bool reduced);

    /// Asks the desktop, and listens from then on. Returns at once: an answer may take a while.
    void followDesktop();

    /// What a desktop's settings say, by group and name: of several that speak of it, the most
    /// careful counts.
    using Settings = QMap<QString, QVariantMap>;
    [[nodiscard]] static bool isReducedBy(const Settings &settings);

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void readAgain();

private:
    bool m_reduced = false;
};
