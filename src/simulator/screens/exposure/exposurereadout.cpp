#include "exposurereadout.h"

#include "shell/appmodel.h"

using namespace std::chrono_literals;

namespace {

// Of the pictures of SceneRenderer::shared(), which isn't asked: it may not have been made yet, and
// making it is the render thread's work.
constexpr int kPictureWidth = 720;

const SimSettings &sim()
{
    return AppModel::shared().sim();
}

} // namespace

ExposureReadout::ExposureReadout(QObject *parent)
    : QObject(parent)
    , m_pictureInWords(1s)
    , m_math(ExposureTexts::math(sim()))
    , m_equivalents(sim())
    , m_depthAndMotion(ExposureTexts::depthAndMotion(sim()))
{
    connect(&AppModel::shared(), &AppModel::simChanged, this, &ExposureReadout::follow);
    connect(&m_preview, &PreviewRenderer::imageChanged, this, &ExposureReadout::pictureChanged);
    connect(&m_pictureInWords, &UnhurriedText::textChanged, this,
        &ExposureReadout::pictureInWordsChanged);
    photograph();
}

void ExposureReadout::follow()
{
    photograph();
    m_math.setFigures(ExposureTexts::math(sim()));
    m_equivalents.setSettings(sim());
    m_depthAndMotion.setFigures(ExposureTexts::depthAndMotion(sim()));
    Q_EMIT changed();
}

void ExposureReadout::photograph()
{
    m_preview.update(sim());
    m_pictureInWords.setText(ExposureTexts::picture(sim(), kPictureWidth));
}

QString ExposureReadout::caption() const
{
    return ExposureTexts::caption(sim());
}

double ExposureReadout::offset() const
{
    return sim().offset();
}

QString ExposureReadout::meter() const
{
    return ExposureTexts::meter(sim());
}

QString ExposureReadout::verdict() const
{
    return ExposureTexts::verdict(sim());
}

QString ExposureReadout::mathNote() const
{
    return ExposureTexts::mathNote();
}

QString ExposureReadout::shakeWarning() const
{
    return ExposureTexts::shakeWarning(sim());
}
