#include "soak/monkey.h"

#include "content/contentlibrary.h"
#include "kit/themes.h"
#include "shell/appmodel.h"
#include "shell/launch/savepanel.h"
#include "store/userstore.h"

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QQuickItem>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// Those that do something somewhere. To quit and to close are among them: the window comes back.
const QList<Key> kKeys{
    { Qt::Key_Tab },
    { Qt::Key_Tab },
    { Qt::Key_Tab },
    { Qt::Key_Backtab, Qt::ShiftModifier },
    { Qt::Key_Return },
    { Qt::Key_Return },
    { Qt::Key_Space },
    { Qt::Key_Space },
    { Qt::Key_Escape },
    { Qt::Key_Left },
    { Qt::Key_Right },
    { Qt::Key_Up },
    { Qt::Key_Down },
    { Qt::Key_Left, Qt::ShiftModifier },
    { Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier },
    { Qt::Key_Home },
    { Qt::Key_End },
    { Qt::Key_PageUp },
    { Qt::Key_PageDown },
    { Qt::Key_Backspace },
    { Qt::Key_Delete },
    { Qt::Key_Slash },
    { Qt::Key_F1 },
    { Qt::Key_F10 },
    { Qt::Key_Alt },
    { Qt::Key_F, Qt::ControlModifier },
    { Qt::Key_S, Qt::ControlModifier },
    { Qt::Key_S, Qt::ControlModifier },
    { Qt::Key_N, Qt::ControlModifier },
    { Qt::Key_D, Qt::ControlModifier },
    { Qt::Key_E, Qt::ControlModifier },
    { Qt::Key_A, Qt::ControlModifier },
    { Qt::Key_C, Qt::ControlModifier },
    { Qt::Key_X, Qt::ControlModifier },
    { Qt::Key_V, Qt::ControlModifier },
    { Qt::Key_Z, Qt::ControlModifier },
    { Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier },
    { Qt::Key_BracketLeft, Qt::ControlModifier },
    { Qt::Key_BracketRight, Qt::ControlModifier },
    { Qt::Key_Equal, Qt::ControlModifier },
    { Qt::Key_Minus, Qt::ControlModifier },
    { Qt::Key_0, Qt::ControlModifier },
    { Qt::Key_W, Qt::ControlModifier },
    { Qt::Key_Q, Qt::ControlModifier },
    { Qt::Key_1, Qt::ControlModifier },
    { Qt::Key_2, Qt::ControlModifier },
    { Qt::Key_3, Qt::ControlModifier },
    { Qt::Key_4, Qt::ControlModifier },
    { Qt::Key_5, Qt::ControlModifier },
    { Qt::Key_6, Qt::ControlModifier },
    { Qt::Key_7, Qt::ControlModifier },
    { Qt::Key_8, Qt::ControlModifier },
    { Qt::Key_9, Qt::ControlModifier },
};

// Words that are found, marks that mean something to somebody, and letters of other kinds.
const QStringList kWords{ u"lens "_s, u"f/1.8"_s, u"tripod "_s, u"<b>bold</b>"_s, u"50mm "_s,
    u"déjà vu "_s, u"Ω≈ç√ "_s, u"写真 "_s, u"الضوء "_s, u"👩‍👩‍👧 "_s, u"%1 %n "_s,
    u"\"quote "_s, u"NEAR AND OR "_s, u"* "_s, u"'); DROP TABLE notes; "_s, u"ﬁlm "_s,
    u"a\u0301 "_s, u"Light\nis the whole\n\ngame. "_s, QString(300, u'm') };

// ms between two strokes of a held key, two notches of a wheel that is spun, two moves of a
// pointer.
constexpr int kKeyRepeat = 30;
constexpr int kNotch = 10;
constexpr int kMove = 10;
// ms until a panel has opened, and more.
constexpr int kOpening = 400;

// The nearest place in a window, which may have been resized since the place was chosen.
QPoint inside(const QWindow *window, QPoint place)
{
    return { std::clamp(place.x(), 0, window->width() - 1),
        std::clamp(place.y(), 0, window->height() - 1) };
}

// All items below one that can have the focus by Tab and can be seen.
void collectControls(QQuickItem *item, QList<QQuickItem *> &controls)
{
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (item->activeFocusOnTab())
        controls.append(item);
    for (QQuickItem *child : item->childItems())
        collectControls(child, controls);
}

} // namespace

Monkey::Monkey(QQuickWindow *camera, unsigned seed, QString playground, QString journal)
    : m_camera(camera)
    , m_generator(seed)
    , m_playground(std::move(playground))
    , m_journal(std::move(journal))
    , m_habits({
          { 24, [this] { pressKey(); } },
          { 10, [this] { typeWords(); } },
          { 12, [this] { click(); } },
          { 16, [this] { pressControl(); } },
          { 10, [this] { turnWheel(); } },
          { 6, [this] { drag(); } },
          { 2, [this] { resize(); } },
          { 2, [this] { changeZoom(); } },
          { 1, [this] { changeTheme(); } },
          { 4, [this] { changeScreen(); } },
          { 2, [this] { search(); } },
          { 3, [this] { useMenu(); } },
          { 5, [this] { openSomething(); } },
          { 2, [this] { writeNote(); } },
      })
{
    if (!m_journal.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("%s: %s", qPrintable(m_journal.fileName()), qPrintable(m_journal.errorString()));
    std::vector<double> weights;
    for (const Habit &habit : m_habits)
        weights.push_back(habit.weight);
    m_choice = std::discrete_distribution<size_t>(weights.begin(), weights.end());
    AppModel::shared().setSavePanel([this](const QString &name) { return chooseFile(name); });

    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Monkey::act);
    m_timer.start(1000);
}

void Monkey::act()
{
    // Before it acts, since an action may run an event loop of its own: a dialog's.
    m_timer.start(upTo(40) == 0 ? 600 : 5 + upTo(30));
    QGuiApplication::clipboard()->setText(Typed::kPasted);
    ++m_actions;
    m_habits.at(m_choice(m_generator)).act();
}

void Monkey::note(const QString &action)
{
    m_last = action;
    m_journal.write(QByteArray::number(m_actions) + ' ' + action.simplified().toUtf8() + '\n');
}

int Monkey::upTo(int most)
{
    return std::uniform_int_distribution(0, most)(m_generator);
}

// What a hand does takes its time, and it does nothing else meanwhile.
void Monkey::inTurn(int count, int pause, const std::function<void(int)> &step)
{
    for (int turn = 0; turn < count; ++turn)
        QTimer::singleShot(turn * pause, this, [step, turn] { step(turn); });
    m_timer.start(m_timer.interval() + count * pause);
}

// What has the focus, since an open help or about window would never be left otherwise. Only what
// QML draws: a dialog of the platform's could do anything to anybody's files.
QQuickWindow *Monkey::window() const
{
    auto *focused = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow());
    return focused && focused->isVisible() ? focused : m_camera;
}

QPoint Monkey::anywhere()
{
    const QSize size = window()->size();
    return { upTo(size.width() - 1), upTo(size.height() - 1) };
}

void Monkey::pressKey()
{
    const Key key = any(kKeys);
    const int times = upTo(3) == 0 ? 1 + upTo(12) : 1;
    note(u"key %1 %2 times"_s.arg(QKeySequence(key.key | key.modifiers).toString()).arg(times));
    inTurn(times, kKeyRepeat, [this, key](int) { strike(key.key, key.modifiers); });
}

// A key that no shortcut takes may be a letter to a text field, also with Alt.
void Monkey::strike(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key < Qt::Key_Escape && !modifiers.testFlag(Qt::ControlModifier))
        m_typed.add(QChar(key).toLower());
    QTest::keyClick(window(), key, modifiers);
}

void Monkey::typeWords()
{
    QString text = any(kWords);
    if (upTo(30) == 0)
        text = text.repeated(80);
    note(u"type "_s + text.left(40));
    m_typed.add(text);
    QTest::sendKeyEvent(QTest::Click, window(), Qt::Key_unknown, text, Qt::NoModifier);
}

void Monkey::click()
{
    const QPoint place = anywhere();
    const Qt::MouseButton button = upTo(9) == 0 ? Qt::RightButton : Qt::LeftButton;
    note(u"click %1 at %2,%3"_s.arg(int(button)).arg(place.x()).arg(place.y()));
    QQuickWindow *where = window();
    QTest::mouseMove(where, inside(where, place));
    if (upTo(7) == 0)
        QTest::mouseDClick(where, button, {}, inside(where, place));
    else
        QTest::mouseClick(where, button, {}, inside(where, place));
}

void Monkey::pressControl()
{
    QList<QQuickItem *> controls;
    collectControls(window()->contentItem(), controls);
    if (controls.isEmpty())
        return click();
    QQuickItem *control = any(controls);
    const QPointF middle = control->mapToScene({ control->width() / 2, control->height() / 2 });
    note(u"press %1 at %2,%3"_s.arg(QLatin1String(control->metaObject()->className()))
             .arg(middle.x())
             .arg(middle.y()));
    if (QRectF(QPointF(), window()->size()).contains(middle) && upTo(3) != 0) {
        QTest::mouseClick(window(), Qt::LeftButton, {}, inside(window(), middle.toPoint()));
    } else {
        control->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window(), Qt::Key_Space);
    }
}

void Monkey::turnWheel()
{
    const QPoint place = anywhere();
    const int turns = 1 + upTo(8);
    const int step = (upTo(1) == 0 ? 1 : -1) * (upTo(2) == 0 ? 15 : 120);
    const auto modifiers = upTo(9) == 0 ? Qt::ControlModifier : Qt::NoModifier;
    note(u"wheel %1 times %2 at %3,%4"_s.arg(turns).arg(step).arg(place.x()).arg(place.y()));
    inTurn(turns, kNotch, [this, place, step, modifiers](int) {
        QWheelEvent event(place, window()->mapToGlobal(place), {}, { 0, step }, Qt::NoButton,
            modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window(), &event);
    });
}

void Monkey::drag()
{
    const QPoint from = anywhere();
    const QPoint to = anywhere();
    constexpr int steps = 8;
    note(u"drag %1,%2 to %3,%4"_s.arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
    inTurn(steps + 2, kMove, [this, from, to](int step) {
        QQuickWindow *where = window();
        if (step == 0)
            QTest::mousePress(where, Qt::LeftButton, {}, inside(where, from));
        else if (step <= steps)
            QTest::mouseMove(where, inside(where, from + (to - from) * step / steps));
        else
            QTest::mouseRelease(where, Qt::LeftButton, {}, inside(where, to));
    });
}

void Monkey::resize()
{
    const int way = upTo(9);
    const QSize size(880 + upTo(700), 600 + upTo(380));
    note(u"resize %1 %2x%3"_s.arg(way).arg(size.width()).arg(size.height()));
    if (way == 0)
        m_camera->showMaximized();
    else if (way == 1)
        m_camera->showFullScreen();
    else if (way == 2)
        m_camera->showMinimized();
    else
        m_camera->showNormal();
    if (way > 2)
        m_camera->resize(size);
}

void Monkey::changeZoom()
{
    static const QList<Qt::Key> keys{ Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0 };
    const Qt::Key key = any(keys);
    const int times = 1 + upTo(5);
    note(u"zoom %1 %2 times"_s.arg(char(key)).arg(times));
    inTurn(times, kKeyRepeat,
        [this, key](int) { QTest::keyClick(window(), key, Qt::ControlModifier); });
}

void Monkey::changeTheme()
{
    const QList<CRVNTheme> themes = CRVNThemes::all();
    const QString id = any(themes).id;
    note(u"theme "_s + id);
    CRVNThemes::setCurrentID(id);
}

void Monkey::changeScreen()
{
    const int places = upTo(8) - 4;
    note(u"dial %1"_s.arg(places));
    AppModel::shared().step(places);
}

void Monkey::search()
{
    const QString query = upTo(2) == 0 ? QString() : any(kWords).left(1 + upTo(6));
    note(u"search "_s + query);
    AppModel::shared().setGlobalQuery(query);
}

void Monkey::useMenu()
{
    static const QList<Qt::Key> letters{ Qt::Key_F, Qt::Key_E, Qt::Key_V, Qt::Key_G, Qt::Key_H };
    const Qt::Key letter = any(letters);
    const int down = upTo(12);
    note(u"menu Alt+%1, %2 down"_s.arg(char(letter)).arg(down));
    const Qt::Key last = upTo(3) == 0 ? Qt::Key_Escape : Qt::Key_Return;
    inTurn(down + 2, kKeyRepeat, [this, letter, down, last](int turn) {
        if (turn == 0)
            strike(letter, Qt::AltModifier);
        else
            QTest::keyClick(window(), turn <= down ? Qt::Key_Down : last);
    });
}

void Monkey::openSomething()
{
    const ContentLibrary &course = ContentLibrary::shared();
    AppModel &model = AppModel::shared();
    switch (upTo(5)) {
    case 0: {
        const QString id = any(course.lessons()).id;
        note(u"lesson "_s + id);
        return model.openLesson(id);
    }
    case 1: {
        const QString id = any(course.modules()).id;
        note(u"quiz "_s + id);
        model.openModule(id);
        return model.setQuizModuleID(id);
    }
    case 2: {
        const QString id = any(course.gear()).id;
        note(u"gear "_s + id);
        return model.openGear(id);
    }
    case 3: {
        const QString id = any(course.timeline()).id;
        note(u"event "_s + id);
        return model.openEvent(id);
    }
    case 4: {
        const QString id = any(course.videos()).id;
        note(u"video "_s + id);
        return model.openVideo(id);
    }
    default: {
        const QString id = any(course.gear()).id;
        note(u"bookmark "_s + id);
        return model.toggleBookmark(u"gear"_s, id);
    }
    }
}

void Monkey::writeNote()
{
    const int what = upTo(4);
    note(u"note %1"_s.arg(what));
    AppModel &model = AppModel::shared();
    if (what == 0)
        return model.exportNotes();
    if (model.editsNote())
        QTest::keyClick(window(), Qt::Key_S, Qt::ControlModifier);
    else if (what == 1)
        rewriteNote();
    else
        model.newNote(u"general"_s, u"general"_s);
}

// All of a saved note is selected and written over. By chance alone these strokes hardly ever come
// one after another.
void Monkey::rewriteNote()
{
    const UserStore *store = UserStore::shared();
    const QList<Note> notes = store ? store->notes() : QList<Note>();
    if (notes.isEmpty())
        return;
    const Note chosen = any(notes);
    note(u"rewrite %1"_s.arg(chosen.id));
    AppModel::shared().setNoteDraft(chosen);
    static const QList<Key> strokes{ { Qt::Key_A, Qt::ControlModifier }, { Qt::Key_X },
        { Qt::Key_Z, Qt::ControlModifier }, { Qt::Key_S, Qt::ControlModifier } };
    inTurn(int(strokes.size()) + 1, kOpening, [this](int turn) {
        if (turn > 0)
            strike(strokes.at(turn - 1).key, strokes.at(turn - 1).modifiers);
    });
}

// The platform's dialog, left at once, or a name: a good one, one in a folder that isn't there, one
// of a folder.
std::optional<QString> Monkey::chooseFile(const QString &suggestedName)
{
    const int way = upTo(3);
    note(u"save panel %1"_s.arg(way));
    if (way == 0) {
        QTimer::singleShot(300, this, [] {
            if (QWidget *panel = QApplication::activeModalWidget())
                panel->close();
        });
        return Launch::askWhereToSave(m_camera, suggestedName);
    }
    static const QStringList places{ u"/notes.txt"_s, u"/not there/notes.txt"_s, u""_s };
    return m_playground + places.at(way - 1);
}
