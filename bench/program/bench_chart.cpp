// The promises for a chart of 3000 x 4200: a click in the list shows it in at most 1.2 times what its
// decoding takes; a zoom or scroll step is painted within 2 ms, from 0.3 to 9.3 times; a chart takes about a
// byte a pixel, and zooming hardly any more.

#include "drawn_chart.h"
#include "forms/look.h"
#include "measuring.h"
#include "painted.h"
#include "pictures/picture.h"
#include "process_memory.h"
#include "support/test_program.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <map>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 15;
constexpr double megapixels = 3000 * 4200 / 1048576.0;

class Viewer {
public:
    explicit Viewer(TestProgram& test)
        : test_(test), chart_(control(u"Image1"_s)), across_(bar(u"HScroll1"_s)), down_(bar(u"VScroll1"_s)),
          painted_(chart_) {}

    void choose(int row = 0) {
        TestProgram::clickRow(test_.viewWindow(), u"List1"_s, row);
        painted_.wait();
    }
    /// A click on the chart in the middle of its visible part.
    void zoom(Qt::MouseButton button) {
        const QPointF point(chart_->visibleRegion().boundingRect().center());
        QMouseEvent press(QEvent::MouseButtonPress, point, chart_->mapToGlobal(point), button, button, {});
        QCoreApplication::sendEvent(chart_, &press);
        painted_.wait();
    }
    void scroll() {
        for (QScrollBar* one : {across_, down_})
            if (one->isEnabled()) one->triggerAction(steps_ % 2 == 0 ? forwards : backwards);
        ++steps_;
        painted_.wait();
    }
    [[nodiscard]] bool scrolls() const { return across_->isEnabled() || down_->isEnabled(); }
    [[nodiscard]] int level() { return test_.program().viewWindow().ZoomLevel; }
    [[nodiscard]] double times() const { return chart_->width() / 3000.0; }

private:
    static constexpr auto forwards = QAbstractSlider::SliderPageStepAdd;
    static constexpr auto backwards = QAbstractSlider::SliderPageStepSub;
    [[nodiscard]] QWidget* control(const QString& name) const {
        return TestProgram::control(test_.viewWindow(), name);
    }
    [[nodiscard]] QScrollBar* bar(const QString& name) const {
        return TestProgram::control<QScrollBar>(test_.viewWindow(), name);
    }

    TestProgram& test_;
    QWidget* chart_;
    QScrollBar* across_;
    QScrollBar* down_;
    Painted painted_;
    int steps_ = 0;
};

/// The times of the steps (milliseconds) by the zoom that they led to.
struct Steps {
    std::map<double, std::vector<double>> zoom;
    std::map<double, std::vector<double>> scroll;
};

/// From the natural size step by step to 0.3 times (the right button) or 9.3 times (the left one), with some
/// scrolling at each.
void walkThroughZooms(Viewer& viewer, Qt::MouseButton button, Steps& steps) {
    const int last = button == Qt::LeftButton ? 10 : -4;
    while (viewer.level() != last) {
        const double time = milliseconds([&] { viewer.zoom(button); });
        steps.zoom[viewer.times()].push_back(time);
        for (int i = 0; i < 6 && viewer.scrolls(); ++i)
            steps.scroll[viewer.times()].push_back(milliseconds([&] { viewer.scroll(); }));
    }
}

/// What the chart is drawn in: so many shades of grey, or of a colour of their own each.
struct Inks {
    int count;
    bool coloured;

    [[nodiscard]] QString name() const {
        return u"%1 %2"_s.arg(count).arg(coloured ? u"colours"_s : u"shades"_s);
    }
    [[nodiscard]] QByteArray chart() const {
        constexpr int paletteAt = 13; // red, green and blue by turns
        QByteArray gif = drawnChart({3000, 4200}, count);
        for (int i = 0; coloured && i < count - 1; ++i)
            gif[paletteAt + 3 * i] = static_cast<char>(40 * i % 256);
        return gif;
    }
};

void printSlowest(const char* what, const Inks& inks, const std::map<double, std::vector<double>>& byZoom) {
    double slowest = 0, at = 0;
    for (const auto& [zoom, times] : byZoom)
        if (const double time = median(times); time > slowest) slowest = time, at = zoom;
    const QString claim =
        u"%1, %2, slowest of %3 zooms (%4 times)"_s.arg(QLatin1StringView(what), inks.name())
            .arg(byZoom.size())
            .arg(at, 0, 'f', 2);
    printFigure(qPrintable(claim), slowest, "", 2, "ms");
}

void benchClick(TestProgram& test, Viewer& viewer, const QString& file, const Inks& inks) {
    const auto times = medians(rounds, {[&] { viewer.choose(); },
                                        [&] {
                                            if (!Picture::read(test.path(file))) qFatal("no chart");
                                        }});
    printRatio(qPrintable(u"A click on a chart, %1"_s.arg(inks.name())), times[0], "its decoding", times[1],
               1.2);
}

/// What the chart of the first row keeps resident, over what a chart of hardly a pixel in the second one
/// does.
void benchPixels(Viewer& viewer, const Inks& inks) {
    const auto residentWith = [&](int row) {
        viewer.choose(row);
        return residentMegabytes();
    };
    residentWith(0); // what the first chart of all brings with it is not the chart's
    const double without = residentWith(1);
    const double megabytes = residentWith(0) - without;
    const QString claim = u"Memory that a chart of 3000 x 4200 takes, %1"_s.arg(inks.name());
    const QString size = u"%1 MB of pixels"_s.arg(megapixels, 0, 'f', 1);
    printFigure(qPrintable(claim), megabytes / megapixels, qPrintable(size), 1.1, "bytes a pixel");
}

/// The peak of memory while zooming, over that while the same chart is scrolled at its natural size.
void benchMemory(Viewer& viewer, const Inks& inks) {
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
        viewer.choose();
        forgetPeak();
        for (int i = 0; i < 20; ++i) viewer.scroll();
        const double natural = peakMegabytes();
        forgetPeak();
        Steps untimed;
        walkThroughZooms(viewer, button, untimed);
        const QString claim = u"Memory that zooming %1 times adds, %2"_s.arg(
            button == Qt::LeftButton ? u"in to 9.3"_s : u"out to 0.3"_s, inks.name());
        printFigure(qPrintable(claim), peakMegabytes() - natural,
                    qPrintable(u"%1 MB at natural size"_s.arg(natural, 0, 'f', 1)), 1, "MB");
    }
}

void benchSteps(Viewer& viewer, const Inks& inks) {
    Steps steps;
    for (int i = 0; i < roundsOf(rounds); ++i)
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
            viewer.choose();
            walkThroughZooms(viewer, button, steps);
        }
    printSlowest("A zoom step", inks, steps.zoom);
    printSlowest("A scroll step", inks, steps.scroll);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    for (const Inks& inks : {Inks{2, false}, {16, false}, {16, true}}) {
        const QString file = u"aeroporti/LIRF/Sid/KENN1.gif"_s;
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.write(file, inks.chart());
        test.addChart(u"aeroporti/LIRF/Sid/KENN2.gif"_s, {90, 90});
        test.start();
        test.openViewer(u"LIRF"_s);
        TestProgram::click(test.viewWindow(), u"Option1(0)"_s);
        Viewer viewer(test);
        viewer.choose();
        benchPixels(viewer, inks);
        benchMemory(viewer, inks);
        benchClick(test, viewer, file, inks);
        benchSteps(viewer, inks);
    }
    return 0;
}
