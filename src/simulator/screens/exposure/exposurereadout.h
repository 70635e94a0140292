#pragma once

#include "simulator/previewrenderer.h"
#include "simulator/screens/common/photograph.h"
#include "simulator/screens/common/unhurriedtext.h"
#include "simulator/screens/exposure/equivalentlist.h"
#include "simulator/screens/exposure/figurelist.h"

#include <QObject>
#include <QString>
#include <QtQml/qqml.h>

/// What the Exposure Lab shows of AppModel::sim: figures and words, which change with it at once,
/// and the picture, which follows from its queue.
class ExposureReadout : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Photo picture READ picture NOTIFY pictureChanged)
    /// The picture in words, for assistive technology; it changes once a second at most.
    Q_PROPERTY(QString pictureInWords READ pictureInWords NOTIFY pictureInWordsChanged)
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    /// Stops over (+) or under (−).
    Q_PROPERTY(double offset READ offset NOTIFY changed)
    Q_PROPERTY(QString meter READ meter NOTIFY changed)
    Q_PROPERTY(QString verdict READ verdict NOTIFY changed)
    Q_PROPERTY(QString mathNote READ mathNote CONSTANT)
    /// Empty while nothing shakes.
    Q_PROPERTY(QString shakeWarning READ shakeWarning NOTIFY changed)
    Q_PROPERTY(FigureList *math READ math CONSTANT)
    Q_PROPERTY(EquivalentList *equivalents READ equivalents CONSTANT)
    Q_PROPERTY(FigureList *depthAndMotion READ depthAndMotion CONSTANT)
public:
    explicit ExposureReadout(QObject *parent = nullptr);

    [[nodiscard]] Photo picture() const { return { m_preview.image() }; }
    [[nodiscard]] QString pictureInWords() const { return m_pictureInWords.text(); }
    [[nodiscard]] QString caption() const;
    [[nodiscard]] double offset() const;
    [[nodiscard]] QString meter() const;
    [[nodiscard]] QString verdict() const;
    [[nodiscard]] QString mathNote() const;
    [[nodiscard]] QString shakeWarning() const;
    [[nodiscard]] FigureList *math() { return &m_math; }
    [[nodiscard]] EquivalentList *equivalents() { return &m_equivalents; }
    [[nodiscard]] FigureList *depthAndMotion() { return &m_depthAndMotion; }

Q_SIGNALS:
    void changed();
    void pictureChanged();
    void pictureInWordsChanged();

private:
    void follow();
    void photograph();

    PreviewRenderer m_preview;
    UnhurriedText m_pictureInWords;
    FigureList m_math;
    EquivalentList m_equivalents;
    FigureList m_depthAndMotion;
};
