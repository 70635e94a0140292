// The shell's plain types under their QML names.
#pragma once

#include "shell/appmodel.h"
#include "shell/screen.h"

#include <QQmlEngine>
#include <QtQml/qqml.h>

namespace HVScreenForQml {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(HVScreen)
QML_NAMED_ELEMENT(HVScreen)
} // namespace HVScreenForQml

struct AppModelForQml {
    Q_GADGET
    QML_FOREIGN(AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_SINGLETON
public:
    static AppModel *create(QQmlEngine *, QJSEngine *)
    {
        QQmlEngine::setObjectOwnership(&AppModel::shared(), QQmlEngine::CppOwnership);
        return &AppModel::shared();
    }
};
