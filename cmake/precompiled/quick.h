// The same for modules of QML: what their C++ and the code that Qt generates from QML include.
#pragma once

#include "plain.h"

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>
#include <QtQml/qqmlmoduleregistration.h>
#include <QtQml/qqmlprivate.h>
