#pragma once

#include "invariants.h"
#include "presenter/airport_presenter.h"
#include "presenter/voice/espeak_voice.h"
#include "scratch_archive.h"
#include "support/chart_driver.h"

#include <QBasicTimer>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QThread>
#include <thread>

using namespace Qt::StringLiterals;
using enum Qt::Key;

namespace quarvel {

/// A user without any sense: does one thing after the other at the windows of the program, also inside its
/// message boxes and now and then in the middle of a language pass. What it does hangs on the seed and on
/// what the windows show, and after each action everything that must hold is looked at.
class Monkey : public QObject {
public:
    Monkey(TestProgram& test, Invariants& rules, quint64 seed)
        : test_(test), rules_(rules), dice_{std::mt19937_64(seed)} {}

    /// Uses the program, started anew whenever it has ended, until so many actions are done in all.
    void play(int actions) {
        for (enough_ = actions; done_ < enough_; test_.stop()) {
            test_.end.ended = false;
            test_.icons.icons.clear();
            AirportPresenter presenter([] { return std::make_unique<EspeakVoice>(); });
            test_.presents = &presenter;
            test_.start();
            rules_.begin();
            timer_.start(0, this);
            QApplication::exec();
            timer_.stop();
            rules_.check();
        }
    }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        timer_.start(0, this); // another one: this one does not come inside the loops that its action opens
        if (test_.end.ended || done_ >= enough_) return QCoreApplication::exit(); // of all loops
        // By a mnemonic a button is down for a tenth of a second. What is done then must not hang on the
        // machine: it has passed when the loop goes on, and no more is done before the button's click.
        downFor_ = isAnyButtonDown() ? downFor_ + 1 : 0;
        if (downFor_ == 1) std::this_thread::sleep_for(120ms);
        if (downFor_ == 1 || downFor_ == 2) return; // a button that stays down stops nothing
        // In the loop of a message box the user goes on as ever, in a language pass at one control of twenty.
        const int now = QThread::currentThread()->loopLevel();
        if (now == loop_ && !dice_.oneIn(20)) return;
        const int outer = std::exchange(loop_, now);
        rules_.check();
        static constexpr std::array others{&Monkey::type,     &Monkey::pressKey, &Monkey::type,
                                           &Monkey::pressKey, &Monkey::useChart, &Monkey::useWindow,
                                           &Monkey::useRest};
        ++done_;
        while (!(this->*(dice_.oneIn(3)   ? &Monkey::lead
                         : dice_.oneIn(2) ? &Monkey::click
                                          : dice_.pick(others)))()) {} // some find nothing to do
        rules_.check();
        loop_ = outer;
        if (outer == 0) rules_.forget(); // nothing is under way any more that could save
    }

private:
    static QString nameOf(const QWidget& widget) {
        const QString name = widget.objectName();
        return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
    }

    /// The part of a widget that lies within its window; nothing of it may be left.
    static QRect reachable(const QWidget& widget) {
        return widget.rect() & QRect(widget.mapFrom(widget.window(), QPoint(0, 0)), widget.window()->size());
    }

    /// A menu that is just coming has no size yet.
    static bool isWithin(const QWidget& window, QPoint at) {
        return window.windowHandle() != nullptr && QRect({}, window.windowHandle()->size()).contains(at);
    }

    static bool isBlocked() { return QApplication::activeModalWidget() != nullptr; }

    static bool isAnyButtonDown() {
        for (const QWidget* widget : QApplication::allWidgets())
            if (widget->inherits("QAbstractButton") && widget->property("down").toBool()) return true;
        return false;
    }

    void say(QString words, const QList<int>& numbers = {}) {
        for (const int number : numbers) words += u' ' + QString::number(number);
        rules_.note(QString::number(done_) + u": "_s + words);
    }

    QWidgetList windows() const {
        QWidgetList shown{test_.mainWindow(), test_.viewWindow(), test_.companionWindow()};
        shown.removeIf([](const QWidget* window) { return window == nullptr || !window->isVisible(); });
        return shown;
    }

    /// Mostly the one that lies before all others.
    QWidget* window() {
        if (QApplication::activePopupWidget() != nullptr && !dice_.oneIn(6))
            return QApplication::activePopupWidget();
        if (isBlocked() && !dice_.oneIn(20)) return QApplication::activeModalWidget();
        const QWidgetList shown = windows();
        return shown.isEmpty() ? nullptr : dice_.pick(shown);
    }

    /// Clicks what leads on: a box's button, the first of the airports, their charts, one of these, their
    /// notes.
    bool lead() {
        QWidget* const in = window();
        if (in == nullptr || in->isMinimized()) return false;
        static const QRegularExpression names(
            u"^(txtNomeAeroporto|cmdGrafica|Option1.[02].|List1|Text2|cmdSave|Command4)$"_s);
        QWidgetList controls = in->findChildren<QWidget*>(names);
        if (isBlocked()) // the buttons of a box have no names
            for (QWidget* button : in->findChildren<QPushButton*>()) controls.append(button);
        controls.removeIf([in](const QWidget* each) {
            return each->window() != in || !each->isVisible() || !each->isEnabled();
        });
        if (controls.isEmpty()) return false;
        const QWidget& control = *dice_.pick(controls);
        QRect place = reachable(control);
        if (control.inherits("QListView")) place.setHeight(std::min(place.height(), 40)); // its first rows
        if (place.isEmpty()) return false;
        const QPoint at = control.mapTo(in, placeIn(place));
        if (!isWithin(*in, at)) return false;
        say(u"goes on by "_s + nameOf(control) + u" of "_s + nameOf(*in), {at.x(), at.y()});
        const bool searches = nameOf(control) == u"txtNomeAeroporto";
        if (!isBlocked()) in->activateWindow();
        QTest::mouseClick(in->windowHandle(), Qt::LeftButton, {}, at);
        if (searches) openAirport();
        return true;
    }

    /// Types the beginning of an airport's name and clicks the first that is listed.
    void openAirport() {
        press(Key_A, Qt::ControlModifier);
        for (const QChar letter : dice_.pick(scratchAirports).first(3)) press(letter.unicode(), {});
        QWidget* const in = test_.mainWindow();
        if (in == nullptr || isBlocked()) return;
        const QWidget& list = *TestProgram::control(in, u"lstWords"_s);
        if (list.isVisible())
            QTest::mouseClick(in->windowHandle(), Qt::LeftButton, {}, list.mapTo(in, QPoint(20, 8)));
    }

    bool click() {
        QWidget* const in = window();
        if (in == nullptr || in->isMinimized()) return false;
        QMap<QString, QWidgetList> names{{u"window"_s, {in}}}; // each as often as the next, be it one of 39
        for (QWidget* control : in->findChildren<QWidget*>())
            if (control->window() == in && control->isVisible() && (control->isEnabled() || dice_.oneIn(10)))
                names[nameOf(*control).section(u'(', 0, 0)].append(control);
        const QWidget& control = *dice_.pick(dice_.pick(names.values()));
        QRect place = reachable(control);
        if (control.inherits("QListView")) place.setHeight(std::min(place.height(), 80)); // its first rows
        if (place.isEmpty()) return false;
        const QPoint at = control.mapTo(in, placeIn(place));
        if (!isWithin(*in, at)) return false;
        const int how = dice_.below(20);
        say(u"clicks "_s + nameOf(control) + u" of "_s + nameOf(*in), {at.x(), at.y(), how});
        if (!isBlocked()) in->activateWindow(); // as a window manager does
        const auto action = how == 3 ? QTest::MouseDClick : QTest::MouseClick;
        const auto button = how == 0 ? Qt::MiddleButton : how < 3 ? Qt::RightButton : Qt::LeftButton;
        QTest::mouseEvent(action, in->windowHandle(), button, {}, at);
        return true;
    }

    /// To whichever window has the keyboard, as the desktop would.
    void press(int key, Qt::KeyboardModifiers held) {
        const QPointer<QWindow> keyboard(QGuiApplication::focusWindow());
        const QString text(key < Key_Escape ? 1 : 0, QChar(key & 0xFFFF));
        for (const QEvent::Type half : {QEvent::KeyPress, QEvent::KeyRelease})
            if (keyboard)
                qt_handleKeyEvent(keyboard, half, text.isEmpty() ? key : text.toUpper()[0].unicode(), held,
                                  text);
    }

    /// Types at random, or in place of all that is there the beginning of an airport's name.
    bool type() {
        static const QString letters = u"abdeilmnorstzABCDEILO0123456789 .,;:'\"+-=/\\?*<|àèéìùÀÈçß€“"_s;
        QString text = dice_.pick(scratchAirports);
        text.truncate(1 + dice_.below(text.size()));
        if (dice_.oneIn(2))
            for (QChar& letter : text) letter = dice_.pick(letters);
        else
            press(Key_A, Qt::ControlModifier);
        say(u"types "_s + text);
        for (const QChar letter : text) press(letter.unicode(), {});
        return true;
    }

    bool pressKey() {
        const std::array keys{int(Key_Space), Key_A + dice_.below(26), Key_Escape + dice_.below(8),
                              Key_Home + dice_.below(8)};
        const auto held =
            dice_.pick(std::array{Qt::NoModifier, Qt::NoModifier, Qt::AltModifier, Qt::ControlModifier});
        const int key = dice_.pick(keys);
        say(u"presses "_s + QKeySequence(int(held) | key).toString());
        press(key, held);
        return true;
    }

    /// Turns the wheel over a chart, or drags it.
    bool useChart() {
        QWidget* const in = window();
        auto* const chart = in != nullptr ? in->findChild<QWidget*>(u"Picture1"_s) : nullptr;
        if (isBlocked() || chart == nullptr || in->isMinimized() || reachable(*chart).isEmpty()) return false;
        const QPointer<QWindow> handle(in->windowHandle());
        const QPoint at = placeIn(reachable(*chart));
        const int turn = dice_.pick(std::array{120, -120, 1200, -1200, 8, 0, 0, 0});
        say(u"uses the chart of "_s + nameOf(*in), {at.x(), at.y(), turn});
        const auto held = dice_.oneIn(3) ? Qt::ControlModifier : Qt::NoModifier;
        if (turn != 0)
            return ChartDriver::wheel(chart, at, {turn / dice_.pick(std::array{1, 10000}), turn}, held), true;
        QTest::mousePress(handle, Qt::MiddleButton, {}, chart->mapTo(in, at));
        for (int moves = dice_.below(4); moves > 0 && handle; --moves)
            QTest::mouseMove(handle, placeIn({{}, handle->size()}));
        if (handle) QTest::mouseRelease(handle, Qt::MiddleButton, {}, placeIn({{}, handle->size()}));
        return true;
    }

    /// Ends the session, closes, brings back, minimises or resizes.
    bool useWindow() {
        QWidget* const used = isBlocked() ? QApplication::activeModalWidget() : window();
        if (used == nullptr) return false;
        const int how = dice_.below(16);
        const QSize size(50 + dice_.below(1200), 50 + dice_.below(1000));
        say(u"uses the window "_s + nameOf(*used), {how, size.width(), size.height()});
        QCloseEvent byTheTitleBar;
        QSpontaneKeyEvent::setSpontaneous(&byTheTitleBar);
        if (how == 0) return QApplication::closeAllWindows(), test_.end.ended = true; // with the session
        if (how < 4)
            qApp->notify(used->windowHandle(), &byTheTitleBar);
        else if (used->isMinimized())
            used->showNormal();
        else if (how < 8 && !isBlocked())
            used->showMinimized();
        else
            used->resize(size);
        return true;
    }

    /// What is beside the windows: the icon, the languages' menu, printer, notification area, and the
    /// archive.
    bool useRest() {
        const int how = dice_.below(12);
        const bool icon = !test_.icons.icons.isEmpty();
        const bool menu = windows().contains(test_.mainWindow()) && !isBlocked();
        say(u"turns to what is beside the windows"_s, {how, icon ? 1 : 0, menu ? 1 : 0});
        test_.icons.there = how != 0;
        test_.printer.outcome = how == 1 ? PrintOutcome::NoPrinter : PrintOutcome::Printed;
        if (how == 0 && icon) test_.icons.window->iconLost();
        if (how > 1 && how < 5 && icon)
            test_.icons.window->iconMouse(iconMessage::mouseMove + dice_.below(11));
        if (how > 4 && how < 7 && menu)
            TestProgram::chooseItem(test_.mainWindow(), u"mnuLanguage(%1)"_s.arg(how - 5));
        if (how > 6) say(changeArchive(test_, dice_)), rules_.accept();
        return true;
    }

    QPoint placeIn(QRect place) {
        return place.topLeft() + QPoint(dice_.below(place.width()), dice_.below(place.height()));
    }

    TestProgram& test_;
    Invariants& rules_;
    Dice dice_;
    QBasicTimer timer_;
    int done_ = 0, enough_ = 0, downFor_ = 0; ///< actions; turns of the loop in which a button was down
    int loop_ = 0; ///< how deep the event loop is in which the current action began; 0 between actions
};

} // namespace quarvel
