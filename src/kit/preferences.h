// What the program remembers beside the user's data: theme, zoom and where its windows stood.
//
// One file, "CRVN Halvorin/CRVN Halvorin.json" in the platform's configuration folder,
// written through at each change. A mode that must leave no trace (snapshots, the self-test)
// calls keepInMemory() first: from then on the file is neither read nor written, so a run that is
// killed half-way leaves the user's choices as they were. Main thread only.
#pragma once

#include <QObject>
#include <QVariantHash>

class QSettings;

class Preferences : public QObject
{
    Q_OBJECT
public:
    [[nodiscard]] static Preferences &shared();

    /// Preferences kept in the file at `path`; in memory if what stands there is no file, or one of
    /// more than a megabyte.
    explicit Preferences(const QString &path);
    ~Preferences() override;

    [[nodiscard]] bool contains(const QString &key) const;
    /// The stored text; empty if there is none.
    [[nodiscard]] QString text(const QString &key) const;
    /// The stored number; 0 if there is none, or if what is stored is no number.
    [[nodiscard]] double number(const QString &key) const;

    /// Stores a value. Setting what is there already writes and signals nothing. The file is its
    /// owner's alone once it has been written, unless a link leads to it.
    void set(const QString &key, const QVariant &value);
    void remove(const QString &key);

    /// Lets go of the file: all values so far are forgotten, later ones live in this process only.
    void keepInMemory();

    /// Calls `action` at each change of the value under `wanted`, for as long as `owner` lives.
    template <typename Action>
    void follow(const QString &wanted, const QObject *owner, const Action &action)
    {
        connect(this, &Preferences::changed, owner, [wanted, action](const QString &key) {
            if (key == wanted)
                action();
        });
    }

Q_SIGNALS:
    void changed(const QString &key);

private:
    void write();
    [[nodiscard]] QVariant value(const QString &key) const;

    std::unique_ptr<QSettings> m_file; ///< Absent once keepInMemory() has been called.
    QVariantHash m_memory;
};
