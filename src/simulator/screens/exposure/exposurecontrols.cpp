#include "exposurecontrols.h"

#include "simulator/screens/common/nearestbackground.h"
#include "simulator/screens/exposure/exposurechoices.h"

#include "shell/appmodel.h"

using namespace Qt::StringLiterals;

namespace {

const SimSettings &sim()
{
    return AppModel::shared().sim();
}

} // namespace

ExposureControls::ExposureControls(QObject *parent)
    : QObject(parent)
    , m_lightID(ExposureChoices::lightID(sim(), u"office"_s))
{
    connect(&AppModel::shared(), &AppModel::simChanged, this, &ExposureControls::changed);
}

template <typename T>
void ExposureControls::set(T SimSettings::*field, const T &value)
{
    SimSettings settings = sim();
    settings.*field = value;
    AppModel::shared().setSim(settings);
}

void ExposureControls::setLightID(const QString &id)
{
    if (m_lightID == id)
        return;
    m_lightID = id;
    Q_EMIT changed();
    set(&SimSettings::sceneEV, LightLevel::named(id).ev);
}

double ExposureControls::aperture() const
{
    return sim().aperture;
}

void ExposureControls::setAperture(double aperture)
{
    set(&SimSettings::aperture, aperture);
}

double ExposureControls::shutter() const
{
    return sim().shutter;
}

void ExposureControls::setShutter(double seconds)
{
    set(&SimSettings::shutter, seconds);
}

double ExposureControls::iso() const
{
    return sim().iso;
}

void ExposureControls::setIso(double iso)
{
    set(&SimSettings::iso, iso);
}

double ExposureControls::focal() const
{
    return sim().focal;
}

void ExposureControls::setFocal(double focal)
{
    set(&SimSettings::focal, focal);
}

QString ExposureControls::formatID() const
{
    return sim().format.id;
}

void ExposureControls::setFormatID(const QString &id)
{
    set(&SimSettings::format, SensorFormat::named(id));
}

double ExposureControls::subjectDistance() const
{
    return sim().subjectDistance;
}

void ExposureControls::setSubjectDistance(double meters)
{
    set(&SimSettings::subjectDistance, meters);
}

double ExposureControls::backgroundDistance() const
{
    return sim().backgroundDistance;
}

void ExposureControls::setBackgroundDistance(double meters)
{
    set(&SimSettings::backgroundDistance, meters);
}

double ExposureControls::nearestBackground() const
{
    return ::nearestBackground(sim().subjectDistance);
}

double ExposureControls::moverSpeed() const
{
    return sim().moverSpeed;
}

void ExposureControls::setMoverSpeed(double metersPerSecond)
{
    set(&SimSettings::moverSpeed, metersPerSecond);
}

void ExposureControls::meterShutter()
{
    AppModel::shared().setSim(ExposureChoices::withMeteredShutter(sim()));
}

void ExposureControls::meterAperture()
{
    AppModel::shared().setSim(ExposureChoices::withMeteredAperture(sim()));
}
