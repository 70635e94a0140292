// Somebody who knows nothing and touches everything.
#pragma once

#include "soak/typed.h"

#include <QFile>
#include <QObject>
#include <QQuickWindow>
#include <QTimer>

#include <functional>
#include <optional>
#include <random>
#include <vector>

/// Presses keys, clicks, drags, types, turns the wheel, resizes and goes everywhere, a few dozen
/// times a second, in the order that its seed gives. Each action is written to the journal before
/// it is made, so that it stands there if the program doesn't outlive it.
class Monkey : public QObject
{
    Q_OBJECT
public:
    Monkey(QQuickWindow *camera, unsigned seed, QString playground, QString journal);

    [[nodiscard]] qint64 actions() const { return m_actions; }
    [[nodiscard]] const QString &lastAction() const { return m_last; }
    [[nodiscard]] const Typed &typed() const { return m_typed; }

private:
    struct Habit {
        int weight;
        std::function<void()> act;
    };

    void act();
    void note(const QString &action);
    void inTurn(int count, int pause, const std::function<void(int)> &step);
    [[nodiscard]] int upTo(int most);
    template <typename List>
    [[nodiscard]] const auto &any(const List &list)
    {
        return list.at(upTo(int(list.size()) - 1));
    }
    [[nodiscard]] QQuickWindow *window() const;
    [[nodiscard]] QPoint anywhere();

    void pressKey();
    void strike(Qt::Key key, Qt::KeyboardModifiers modifiers);
    void typeWords();
    void click();
    void pressControl();
    void turnWheel();
    void drag();
    void resize();
    void changeZoom();
    void changeTheme();
    void changeScreen();
    void search();
    void useMenu();
    void openSomething();
    void writeNote();
    void rewriteNote();
    [[nodiscard]] std::optional<QString> chooseFile(const QString &suggestedName);

    QQuickWindow *m_camera;
    std::mt19937 m_generator;
    QString m_playground; ///< Where it may export to.
    QFile m_journal;
    std::vector<Habit> m_habits;
    std::discrete_distribution<size_t> m_choice;
    QTimer m_timer;
    Typed m_typed;
    QString m_last;
    qint64 m_actions = 0;
};
