#include "kit/preferences.h"

#include "kit/ownersonly.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

Preferences &Preferences::shared()
{
    static Preferences preferences(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/CRVN Halvorin/CRVN Halvorin.conf"_L1);
    return preferences;
}

Preferences::Preferences(const QString &path)
    : m_file(std::make_unique<QSettings>(path, QSettings::IniFormat))
{ }

Preferences::~Preferences() = default;

QVariant Preferences::value(const QString &key) const
{
    return m_file ? m_file->value(key) : m_memory.value(key);
}

void Preferences::write()
{
    const OwnersOnly ownersOnly;
    m_file->sync();
    OwnersOnly::tighten(m_file->fileName()); // which keeps the rights of the one that it replaces
}

bool Preferences::contains(const QString &key) const
{
    return m_file ? m_file->contains(key) : m_memory.contains(key);
}

QString Preferences::text(const QString &key) const
{
    const QVariant stored = value(key);
    // An unquoted comma in a hand-edited file reads as a list; no value of ours is one.
    return stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(u',')
                                                     : stored.toString();
}

double Preferences::number(const QString &key) const
{
    return value(key).toDouble();
}

void Preferences::set(const QString &key, const QVariant &value)
{
    if (contains(key) && text(key) == value.toString())
        return;
    if (m_file) {
        m_file->setValue(key, value);
        write();
    } else {
        m_memory.insert(key, value);
    }
    Q_EMIT changed(key);
}

void Preferences::remove(const QString &key)
{
    if (!contains(key))
        return;
    if (m_file) {
        m_file->remove(key);
        write();
    } else {
        m_memory.remove(key);
    }
    Q_EMIT changed(key);
}

void Preferences::keepInMemory()
{
    m_file.reset();
    m_memory.clear();
}
