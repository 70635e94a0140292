#pragma once

#include "kit/fonts.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqml.h>

/// What the interface is lettered in: one name for each role that a text can have.
class Type : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QFont figure MEMBER figure CONSTANT)
    Q_PROPERTY(QFont title MEMBER title CONSTANT)
    Q_PROPERTY(QFont applicationName MEMBER applicationName CONSTANT)
    Q_PROPERTY(QFont pageTitle MEMBER pageTitle CONSTANT)
    Q_PROPERTY(QFont heading MEMBER heading CONSTANT)
    Q_PROPERTY(QFont sheetTitle MEMBER sheetTitle CONSTANT)
    Q_PROPERTY(QFont dialogTitle MEMBER dialogTitle CONSTANT)
    Q_PROPERTY(QFont cardTitle MEMBER cardTitle CONSTANT)
    Q_PROPERTY(QFont question MEMBER question CONSTANT)
    Q_PROPERTY(QFont entryTitle MEMBER entryTitle CONSTANT)
    Q_PROPERTY(QFont hitTitle MEMBER hitTitle CONSTANT)
    Q_PROPERTY(QFont groupCaption MEMBER groupCaption CONSTANT)
    Q_PROPERTY(QFont sectionCaption MEMBER sectionCaption CONSTANT)
    Q_PROPERTY(QFont listCaption MEMBER listCaption CONSTANT)
    Q_PROPERTY(QFont kitCaption MEMBER kitCaption CONSTANT)
    Q_PROPERTY(QFont prose MEMBER prose CONSTANT)
    Q_PROPERTY(QFont message MEMBER message CONSTANT)
    Q_PROPERTY(QFont subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(QFont text MEMBER text CONSTANT)
    Q_PROPERTY(QFont summary MEMBER summary CONSTANT)
    Q_PROPERTY(QFont tip MEMBER tip CONSTANT)
    Q_PROPERTY(QFont detail MEMBER detail CONSTANT)
    Q_PROPERTY(QFont strongDetail MEMBER strongDetail CONSTANT)
    Q_PROPERTY(QFont version MEMBER version CONSTANT)
    Q_PROPERTY(QFont smallPrint MEMBER smallPrint CONSTANT)
    Q_PROPERTY(QFont link MEMBER link CONSTANT)
    Q_PROPERTY(QFont topic MEMBER topic CONSTANT)
    Q_PROPERTY(QFont currentTopic MEMBER currentTopic CONSTANT)
    Q_PROPERTY(QFont rowTitle MEMBER rowTitle CONSTANT)
    Q_PROPERTY(QFont selectedRowTitle MEMBER selectedRowTitle CONSTANT)
    Q_PROPERTY(QFont rowDetail MEMBER rowDetail CONSTANT)
    Q_PROPERTY(QFont noteTarget MEMBER noteTarget CONSTANT)
    Q_PROPERTY(QFont date MEMBER date CONSTANT)
    Q_PROPERTY(QFont field MEMBER field CONSTANT)
    Q_PROPERTY(QFont writing MEMBER writing CONSTANT)
    Q_PROPERTY(QFont button MEMBER button CONSTANT)
    Q_PROPERTY(QFont compactButton MEMBER compactButton CONSTANT)
    Q_PROPERTY(QFont compactChrome MEMBER compactChrome CONSTANT)
    Q_PROPERTY(QFont menuTitle MEMBER menuTitle CONSTANT)
    Q_PROPERTY(QFont row MEMBER row CONSTANT)
    Q_PROPERTY(QFont currentRow MEMBER currentRow CONSTANT)
    Q_PROPERTY(QFont filmRow MEMBER filmRow CONSTANT)
    Q_PROPERTY(QFont selectedFilmRow MEMBER selectedFilmRow CONSTANT)
    Q_PROPERTY(QFont pill MEMBER pill CONSTANT)
    Q_PROPERTY(QFont tag MEMBER tag CONSTANT)
    Q_PROPERTY(QFont dial MEMBER dial CONSTANT)
    Q_PROPERTY(QFont badge MEMBER badge CONSTANT)
    Q_PROPERTY(QFont number MEMBER number CONSTANT)
    Q_PROPERTY(QFont count MEMBER count CONSTANT)
    Q_PROPERTY(QFont dialFigure MEMBER dialFigure CONSTANT)
    Q_PROPERTY(QFont dateline MEMBER dateline CONSTANT)
    Q_PROPERTY(QFont scaleFigure MEMBER scaleFigure CONSTANT)
    Q_PROPERTY(QFont rowFigure MEMBER rowFigure CONSTANT)
    Q_PROPERTY(QFont columnHead MEMBER columnHead CONSTANT)
public:
    using QObject::QObject;

    // Headings, from the largest down.
    const QFont figure = Fonts::rounded(30, QFont::ExtraBold);
    const QFont applicationName = Fonts::rounded(24, QFont::ExtraBold);
    const QFont pageTitle = Fonts::rounded(22, QFont::ExtraBold);
    const QFont title = Fonts::rounded(21, QFont::ExtraBold, 1.4);
    const QFont sheetTitle = Fonts::rounded(18, QFont::ExtraBold);
    const QFont dialogTitle = Fonts::rounded(16, QFont::ExtraBold);
    const QFont heading = Fonts::rounded(15, QFont::Bold);
    const QFont cardTitle = Fonts::rounded(14, QFont::ExtraBold);
    const QFont question = Fonts::rounded(14, QFont::Bold);
    const QFont entryTitle = Fonts::rounded(13.5, QFont::DemiBold);
    const QFont hitTitle = Fonts::rounded(13, QFont::Bold);
    const QFont groupCaption = Fonts::rounded(11, QFont::ExtraBold, 1.5);
    const QFont sectionCaption = Fonts::rounded(10.5, QFont::ExtraBold, 1.2);
    const QFont listCaption = Fonts::rounded(9.5, QFont::ExtraBold, 1);
    const QFont kitCaption = Fonts::rounded(10, QFont::ExtraBold, 1.1);

    // Sentences.
    const QFont prose = Fonts::rounded(13.5);
    const QFont message = Fonts::rounded(13);
    const QFont subtitle = Fonts::rounded(12.5, QFont::Medium);
    const QFont text = Fonts::rounded(12.5);
    const QFont version = Fonts::rounded(12, QFont::DemiBold);
    const QFont summary = Fonts::rounded(11.5);
    const QFont tip = Fonts::rounded(11.5, QFont::Medium);
    const QFont detail = Fonts::rounded(11);
    const QFont strongDetail = Fonts::rounded(11, QFont::DemiBold);
    const QFont rowTitle = Fonts::rounded(12.5, QFont::DemiBold);
    const QFont selectedRowTitle = Fonts::rounded(12.5, QFont::ExtraBold);
    const QFont rowDetail = Fonts::rounded(10);
    const QFont noteTarget = Fonts::rounded(11.5, QFont::Bold);
    const QFont date = Fonts::rounded(10.5);

    const QFont smallPrint = Fonts::rounded(10.5);

    // Controls.
    const QFont link = Fonts::rounded(13, QFont::DemiBold);
    const QFont topic = Fonts::rounded(13, QFont::Medium);
    const QFont currentTopic = Fonts::rounded(13, QFont::Bold);
    const QFont field = Fonts::inPixels(Fonts::rounded(13, QFont::Medium));
    const QFont writing = Fonts::inPixels(prose);
    const QFont button = Fonts::rounded(12.5, QFont::Bold);
    const QFont compactButton = Fonts::rounded(11.5, QFont::Bold);
    const QFont compactChrome = Fonts::rounded(11, QFont::Bold);
    const QFont menuTitle = Fonts::rounded(12, QFont::Medium);
    const QFont row = Fonts::rounded(12);
    const QFont filmRow = Fonts::rounded(12, QFont::Medium);
    const QFont selectedFilmRow = Fonts::rounded(12, QFont::ExtraBold);
    const QFont currentRow = Fonts::rounded(12, QFont::Bold);

    // Lettering in capitals.
    const QFont pill = Fonts::rounded(10, QFont::ExtraBold);
    const QFont tag = Fonts::rounded(9.5, QFont::ExtraBold, 0.7);
    const QFont dial = Fonts::rounded(9, QFont::Black);
    const QFont badge = Fonts::rounded(8.5, QFont::Black);

    // Figures that stand under one another.
    const QFont number = Fonts::monospaced(13, QFont::ExtraBold);
    const QFont count = Fonts::monospaced(11, QFont::Bold);
    const QFont dialFigure = Fonts::monospaced(12, QFont::ExtraBold);
    const QFont dateline = Fonts::monospaced(13);
    const QFont scaleFigure = Fonts::monospaced(10, QFont::Bold);

    // Tables.
    const QFont rowFigure = Fonts::rounded(15, QFont::ExtraBold);
    const QFont columnHead = Fonts::rounded(10.5, QFont::DemiBold);
};
