// The promise for the presenter: setting it up and asking it for a presentation costs the opening of an
// airport less than 20 ms on the user-interface thread, and so does bringing the character onto the screen
// afterwards.

#include "forms/hidden_text_box.h"
#include "forms/look.h"
#include "measuring.h"
#include "presenter/airport_presenter.h"
#include "presenter/voice/espeak_voice.h"
#include "support/test_program.h"

#include <QApplication>
#include <QElapsedTimer>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 15;

QWidget* character() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == u"Genie"_s && window->isVisible()) return window;
    return nullptr;
}

/// Handles events until the character has come onto the screen.
void waitForCharacter() {
    QElapsedTimer patience;
    patience.start();
    while (character() == nullptr) {
        if (patience.elapsed() > 10'000) qFatal("the character does not come");
        QCoreApplication::processEvents();
    }
    character()->repaint();
}

/// The times of one presentation in a program that had none before, in milliseconds.
struct Times {
    double asked;
    double shown;
};

Times present(const TestProgram& test, HiddenTextBox& box) {
    AirportPresenter presenter([] { return std::make_unique<EspeakVoice>(); });
    const double asked = milliseconds([&] {
        presenter.LoadTextFile(test.path(u"LIRF_Agent.txt"_s), box);
        presenter.PresentAirport(box);
    });
    return {asked, milliseconds(waitForCharacter)};
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    TestProgram test;
    test.write(u"LIRF_Agent.txt"_s,
               QByteArray("Benvenuti all'aeroporto di Roma Fiumicino.\r\n").repeated(100));
    test.start();
    const auto row = [&](const char* what, double first, double median) {
        printFigure(what, std::max(first, median), qPrintable(u"later ones: %1 ms"_s.arg(median, 0, 'f', 2)),
                    20, "ms");
    };
    QWidget window;
    std::vector<Control*> list;
    struct Inside : Container {
        using Container::Container;
    } inside(window, scaleTwips, list);
    HiddenTextBox box(inside, {.name = "TxtFile", .place = {0, 0, 5415, 2535}, .shown = Shown::No});
    const Times first = present(test, box);
    std::vector<double> asked, shown;
    for (int round = 0; round < roundsOf(rounds); ++round) {
        const Times times = present(test, box);
        asked.push_back(times.asked);
        shown.push_back(times.shown);
    }
    row("The first presentation, asked for by an opening", first.asked, median(asked));
    row("The first presentation, the character's first picture", first.shown, median(shown));
    return 0;
}
