// The pictures that the snapshot mode takes: what each one is called, how large it is and what
// the program shows on it.
#pragma once

#include "camera/geometry.h"

#include <QList>
#include <QSize>
#include <QString>

#include <functional>

class AppModel;

struct Shot {
    enum class Subject { Camera, HelpCredits, TripodDiagram };

    QString name;                                ///< Of the file, without ".png".
    QSize size = Geometry::usualWindow.toSize(); ///< Pixels.
    QString themeID;                             ///< Empty keeps the theme of the shot before.
    std::function<void(AppModel &)> arrange;     ///< Puts the model in the state of the picture.
    bool online = true;                          ///< Whatever the machine is.
    Subject subject = Subject::Camera;
};

/// All pictures in the order in which they are taken.
[[nodiscard]] QList<Shot> allShots();
