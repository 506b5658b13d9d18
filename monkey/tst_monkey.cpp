#include "actions.h"
#include "forms/look.h"

#include <QApplication>
#include <QDir>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// Uses the whole program at random: MONKEY_ACTIONS actions drawn from MONKEY_SEED. A seed that has failed
/// fails again.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setKeyboardInputInterval(-1); // how fast letters come to a list makes no difference
    applyProgramLook(application);
    const int actions = qEnvironmentVariable("MONKEY_ACTIONS", u"2000"_s).toInt();
    const quint64 seed = qEnvironmentVariable("MONKEY_SEED", u"1"_s).toULongLong();

    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    TestProgram test(QString::fromLatin1(Invariants::surroundings));
    QtMessageBoxes boxes;
    test.asks = &boxes;
    fillArchive(test);
    Invariants rules(test, u"%1 actions from seed %2 in %3"_s.arg(actions).arg(seed).arg(folder.path()));
    Monkey monkey(test, rules, seed);
    monkey.play(actions / 5); // until then, what is kept is seen for the first time
    rules.checkMemory();
    monkey.play(actions);
    rules.checkMemory();
    Invariants::checkChildren();
}
