// The promise for the companion window: a resize step, with a chart of 3000 x 4200 in it, is on the screen
// within 2 ms. Every control is placed anew and the whole window is painted.

#include "drawn_chart.h"
#include "forms/look.h"
#include "measuring.h"
#include "painted.h"
#include "support/test_program.h"

#include <QApplication>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int steps = 101;

void benchResize(int colours) {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.write(u"aeroporti/LIRF/Sid/KENN1.gif"_s, drawnChart({3000, 4200}, colours));
    test.start();
    test.openViewer(u"LIRF"_s);
    test.openCompanion();
    QWidget* window = test.companionWindow();
    Painted painted(TestProgram::control(window, u"Image1"_s));
    const QSize first = window->size();
    int step = 0;
    // Out and back by a few pixels a step, as a hand drags the window's corner, up to twice the first size.
    const auto resize = [&] {
        const int way = step % 50;
        const int out = 8 * (step / 50 % 2 == 0 ? way + 1 : 50 - way - 1);
        ++step;
        window->resize(first + QSize(out, out));
        painted.wait();
    };
    const double time = medians(steps, {resize})[0];
    printFigure(qPrintable(u"A resize step of the companion window, %1 colours"_s.arg(colours)), time, "", 2,
                "ms");
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    for (const int colours : {2, 16}) benchResize(colours);
    return 0;
}
