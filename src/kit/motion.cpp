#include "kit/motion.h"

#ifdef HV_DBUS
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#elif defined(Q_OS_WIN)
#include <windows.h>
#elif defined(Q_OS_MACOS)
#include <QSettings>
#endif

using namespace Qt::StringLiterals;

namespace {

// The groups of settings that may speak of movement. Each desktop has its own.
const QString kCommon = u"org.freedesktop.appearance"_s;
const QString kGnome = u"org.gnome.desktop.interface"_s;
const QString kPlasma = u"org.kde.kdeglobals.KDE"_s;

} // namespace

Motion &Motion::shared()
{
    static Motion motion;
    return motion;
}

void Motion::setReduced(bool reduced)
{
    if (m_reduced == reduced)
        return;
    m_reduced = reduced;
    Q_EMIT changed();
}

bool Motion::isReducedBy(const Settings &settings)
{
    const auto value = [&settings](const QString &group, const QString &name) {
        return settings.value(group).value(name);
    };
    const QVariant animations = value(kGnome, u"enable-animations"_s);
    const QVariant duration = value(kPlasma, u"AnimationDurationFactor"_s);
    bool isNumber = false;
    const double factor = duration.toDouble(&isNumber);
    return value(kCommon, u"reduced-motion"_s).toUInt() == 1
        || (animations.isValid() && !animations.toBool()) || (isNumber && factor == 0);
}

#ifdef HV_DBUS

namespace {

// Sandboxed or not, every desktop answers here.
constexpr auto kService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto kPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kInterface = "org.freedesktop.portal.Settings"_L1;

} // namespace

void Motion::followDesktop()
{
    // Without a desktop's bus one would be started, in which nobody answers.
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qDBusRegisterMetaType<Settings>();
    bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this, SLOT(readAgain()));
    readAgain();
}

void Motion::readAgain()
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"ReadAll"_s);
    question << QStringList({ kCommon, kGnome, kPlasma });
    auto *call
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<Settings> answer = *call;
        if (answer.isValid())
            setReduced(isReducedBy(answer.value()));
        call->deleteLater();
    });
}

#else

void Motion::followDesktop()
{
    readAgain();
}

void Motion::readAgain()
{
#if defined(Q_OS_WIN)
    BOOL animated = TRUE;
    if (::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animated, 0))
        setReduced(!animated);
#elif defined(Q_OS_MACOS)
    setReduced(QSettings(u"com.apple.universalaccess"_s, QSettings::NativeFormat)
                   .value(u"reduceMotion"_s)
                   .toBool());
#endif
}

#endif
