// The course as values: what a screen shows and the search looks through.
//
// Leaf target hv_records. Plain data, compared field by field and copied freely. A text that the
// course doesn't give is empty. Ids name things for other records and for the user's own data; one
// that names nothing is no error.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A chapter of the course: some lessons, closed by a quiz.
struct Module {
    QString id;
    QString title;
    QString level;
    QString summary;
    qsizetype order = 0; ///< Place in the course, from 1; modules and lessons share one sequence.

    friend bool operator==(const Module &, const Module &) = default;
};

struct Lesson {
    QString id;
    QString moduleID;
    QString title;
    qint64 minutes = 5;  ///< Time that reading takes.
    QString body;        ///< Lesson mark-up.
    qsizetype order = 0; ///< Place in the course, from 1; modules and lessons share one sequence.
    QStringList gear;    ///< Ids of gear entries.
    QStringList videos;  ///< Ids of videos.

    friend bool operator==(const Lesson &, const Lesson &) = default;
};

/// A multiple-choice question of a module's quiz.
struct Question {
    QString id;
    QString moduleID;
    QString prompt;
    QStringList options;
    qsizetype correct = -1; ///< Index into `options`; -1 without exactly one right answer.
    QString why;            ///< What to tell after the answer.

    friend bool operator==(const Question &, const Question &) = default;
};

/// A product named as an example of a kind of gear.
struct GearModel {
    QString name;
    QString use;
    QString specs;
    QString url;
    QString checked; ///< Day on which the specifications were last checked, as "2026-10-24".

    friend bool operator==(const GearModel &, const GearModel &) = default;
};

/// An article of the gear encyclopedia.
struct GearEntry {
    QString id;
    QString name;
    QString category;
    QString diagram; ///< The text id of a gear drawing.
    QString aka;     ///< Other names for it.
    QString body;
    QList<GearModel> models;
    QStringList see; ///< Ids of other gear entries.

    /// The first paragraph of the body: all of it before the first empty line.
    [[nodiscard]] QString summary() const;

    friend bool operator==(const GearEntry &, const GearEntry &) = default;
};

/// A source of what the history tells.
struct Citation {
    QString title;
    QString url;
    QString checked; ///< Day on which the source was last checked, as "2026-10-24".

    friend bool operator==(const Citation &, const Citation &) = default;
};

struct TimelineEvent {
    QString id;
    qint64 year = 0;  ///< For the order of events.
    QString dateText; ///< For the reader, such as "about 1015".
    QString era;
    QString title;
    QString body;
    QList<Citation> sources;

    friend bool operator==(const TimelineEvent &, const TimelineEvent &) = default;
};

/// A film that an outside service shows.
struct Video {
    QString id; ///< The service's own id for it.
    QString title;
    QString channel;
    QString moduleID;
    QString topic;
    qint64 seconds = 0; ///< Running time.
    QString published;
    QString checked; ///< Day on which the link was last checked, as "2026-10-24".

    /// The running time as minutes and seconds, such as "61:05".
    [[nodiscard]] QString length() const;

    friend bool operator==(const Video &, const Video &) = default;
};

/// A program for working on pictures.
struct Software {
    QString id;
    QString name;
    QString kind;
    QString maker;
    QString url;
    QString platforms;
    QString body;

    friend bool operator==(const Software &, const Software &) = default;
};

/// A stage on the way to a picture, on film and digitally.
struct WorkflowStep {
    QString id;
    qsizetype order = 0; ///< From 1.
    QString stage;
    QString film;
    QString digital;

    friend bool operator==(const WorkflowStep &, const WorkflowStep &) = default;
};
