#include "kit/preferences.h"

#include "kit/ownersonly.h"

#include <QFileInfo>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFile = 1024 * 1024; // bytes, thousands of times what is stored

// A pipe would keep its reader waiting for ever, and a file of any size would be read to its end.
bool isReadable(const QString &path)
{
    const QFileInfo info(path);
    return !info.exists() || (info.isFile() && info.size() <= kLargestFile);
}

bool read(QIODevice &device, QSettings::SettingsMap &values)
{
    values = QJsonDocument::fromJson(device.readAll()).object().toVariantMap();
    return true; // what is no JSON holds nothing
}

bool write(QIODevice &device, const QSettings::SettingsMap &values)
{
    const QByteArray bytes = QJsonDocument(QJsonObject::fromVariantMap(values)).toJson();
    return device.write(bytes) == bytes.size();
}

// Texts and numbers alone. QSettings' own form takes a text that begins with "@Variant(" for any of
// Qt's types, makes one as large as it says it is, and so ends the program for want of memory.
QSettings::Format jsonFormat()
{
    static const QSettings::Format format
        = QSettings::registerFormat(u"json"_s, read, write, Qt::CaseSensitive);
    return format;
}

} // namespace

Preferences &Preferences::shared()
{
    static Preferences preferences(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/CRVN Halvorin/CRVN Halvorin.json"_L1);
    return preferences;
}

Preferences::Preferences(const QString &path)
{
    if (isReadable(path))
        m_file = std::make_unique<QSettings>(path, jsonFormat());
}

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
    return value(key).toString();
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
