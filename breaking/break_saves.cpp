// Loaded into the running program by scripts/break-saves: takes the place of the event loop once the main
// window is on the screen, goes up to the click that saves, and lets a child process make that click for each
// call, error and way of failing. The windows, the boxes and all that saves are the program's own.
#include "calls.h"
#include "judgement.h"
#include "user.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMap>
#include <array>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace breaking;

namespace {

struct Error {
    int number;
    const char* name;
};
constexpr std::array errors = {Error{EIO, "EIO"},       Error{ENOSPC, "ENOSPC"}, Error{EACCES, "EACCES"},
                               Error{EMFILE, "EMFILE"}, Error{EROFS, "EROFS"},   Error{ENOMEM, "ENOMEM"}};

Expectation expected;
QStringList boxes;
/// What a child does when the program ends, or when its save is over.
std::function<void()> atEnd;

[[noreturn]] void leave(int status) { ::syscall(SYS_exit_group, status), __builtin_unreachable(); }

void say(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

// How a child ends, besides with an Outcome.
constexpr int wrong = 10, notReached = 11, tooLong = 100;
constexpr unsigned longestSeconds = 20;
constexpr int shortStep = 13; ///< in a short run, from one failing call to the next

/// Runs a deed in a child, whose exit status it gives.
int inChild(const std::function<void()>& deed) {
    const pid_t child = ::fork();
    if (child == 0) {
        deed();
        leave(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : tooLong;
}

/// In a child: the save with a failing call, what became of it, and the next save without.
[[noreturn]] void tryBroken(Saving what, int turn, const Error& error, Failing failing) {
    const QString where = u"call %1, %2, %3"_s.arg(turn).arg(
        QLatin1String(error.name), failing == Failing::Once ? u"once"_s : u"from then on"_s);
    int outcome = 0;
    QString struckCall;
    const auto judgeNext = [&] {
        const QString found =
            wrongAfterSuccess(expected, boxes, failing == Failing::Once ? Left::Nothing : Left::OldSelves);
        if (!found.isEmpty()) say(where + u" ("_s + struckCall + u"): "_s + found);
        leave(found.isEmpty() ? outcome : wrong);
    };
    atEnd = [&] {
        const Struck struck = disarm();
        if (struck.name.isEmpty()) leave(notReached);
        struckCall = struck.name;
        const Verdict verdict = judgeFailure(expected, boxes, error.number);
        outcome = static_cast<int>(verdict.outcome);
        if (!verdict.wrong.isEmpty()) {
            say(u"%1 (%2): %3"_s.arg(where, struck.name, verdict.wrong));
            leave(wrong);
        }
        boxes.clear();
        atEnd = judgeNext;
    };
    ::alarm(longestSeconds);
    arm(expected.folder, turn, error.number, failing);
    save(what, boxes);
    std::exchange(atEnd, {})();
    atEnd = judgeNext;
    save(what, boxes);
    judgeNext();
    leave(wrong);
}

int breakSaves(Saving what, bool partOfThem) {
    QMap<int, int> ends;
    int calls = 0;
    for (const Failing failing : {Failing::Once, Failing::FromThenOn})
        for (std::size_t at = 0; at < errors.size(); ++at)
            for (int turn = 1;; ++turn) {
                if (partOfThem && (turn % shortStep != 1 || turn / shortStep % 6 != static_cast<int>(at)))
                    continue;
                layOut(expected.folder, expected.before);
                const int ended = inChild([&] { tryBroken(what, turn, errors[at], failing); });
                if (ended == notReached) break;
                if (ended == tooLong)
                    say(u"call %1, %2: the program hangs"_s.arg(turn).arg(QLatin1String(errors[at].name)));
                calls = std::max(calls, turn);
                ++ends[ended];
            }
    const auto of = [&](Outcome outcome) { return ends.take(static_cast<int>(outcome)); };
    const int saved = of(Outcome::Saved), refused = of(Outcome::Refused), partly = of(Outcome::Partly);
    int faults = 0;
    for (const int other : std::as_const(ends)) faults += other;
    say(u"%1 calls, %2 failures: %3 times saved, %4 refused, %5 in part; %6 wrong"_s.arg(calls)
            .arg(saved + refused + partly + faults)
            .arg(saved)
            .arg(refused)
            .arg(partly)
            .arg(faults));
    return calls > 0 && faults == 0 ? 0 : 1;
}

/// A save without failures: what it makes, and what it asks.
int learn(Saving what) {
    const QString boxesFile = expected.folder + u"/../boxes"_s;
    const int ended = inChild([&] {
        atEnd = [&] {
            atEnd = nullptr;
            QFile file(boxesFile);
            leave(file.open(QIODevice::WriteOnly) && file.write(boxes.join(QChar::Null).toUtf8()) >= 0 &&
                          file.flush()
                      ? 0
                      : wrong);
        };
        save(what, boxes);
        atEnd();
    });
    QFile file(boxesFile);
    if (file.open(QIODevice::ReadOnly))
        expected.usualBoxes = QString::fromUtf8(file.readAll()).split(QChar::Null, Qt::SkipEmptyParts);
    expected.after = filesBelow(expected.folder);
    return expected.after == expected.before ? wrong : ended;
}

/// What another program saves for the airport that is being entered.
void putRecord() {
    const QString airport = expected.folder + u"/aeroporti/LIRN/"_s;
    for (const auto& name : {u"Aeroporto/LIRN.txt"_s, u"LIRN_Agent.txt"_s})
        if (QFile file(airport + name); !file.open(QIODevice::WriteOnly) || file.write(name.toUtf8()) < 0)
            qFatal("cannot put %s", qPrintable(name));
}

int breakAll() {
    const QStringList kinds = {u"new-record"_s, u"record"_s, u"notes"_s, u"new-notes"_s, u"language"_s};
    const auto what = static_cast<Saving>(kinds.indexOf(qEnvironmentVariable("BREAK_SAVES")));
    expected.folder = QCoreApplication::applicationDirPath();
    prepare(what);
    if (what == Saving::Record) putRecord();
    expected.before = filesBelow(expected.folder);
    if (learn(what) != 0) {
        say(u"a save without failures does not save"_s);
        return 1;
    }
    return breakSaves(what, qEnvironmentVariableIsSet("BREAK_SAVES_SHORT"));
}

} // namespace

// The program's own main() asks for these two.
extern "C" Q_DECL_EXPORT int standInForEventLoop() __asm__("_ZN12QApplication4execEv");
int standInForEventLoop() { leave(breakAll()); }

extern "C" [[noreturn]] Q_DECL_EXPORT void standInForEnd(int) __asm__("_Exit");
void standInForEnd(int status) {
    if (atEnd) atEnd();
    leave(status);
}

// The toolkit shares large fills among threads, which a child of this process lacks: there it is to do them
// alone, as it does in one of those threads.
extern "C" Q_DECL_EXPORT bool
standInForMembership(const void*, const void*) __asm__("_ZNK11QThreadPool8containsEPK7QThread");
bool standInForMembership(const void* /*pool*/, const void* /*thread*/) { return true; }
