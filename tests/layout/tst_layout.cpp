#include "layout/clsResize.h"
#include "layout/resize_tag.h"
#include "support/plain_window.h"

#include <QTest>
#include <array>
#include <limits>
#include <utility>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

using Measures = std::array<double, 4>; // left, top, width, height

/// A control of plain values. A measure that it refuses is not set; one without measures is a menu item.
struct PlacedControl : Control {
    std::optional<QString> tag_;
    std::optional<Measures> place;
    std::optional<Measure> refused;
    Setting refusal = Setting::Failed;
    int set = 0;

    QString name() const override { return u"control"_s; }
    std::optional<QString> tag() const override { return tag_; }
    std::optional<double> measure(Measure which) const override {
        return place ? std::optional(place->at(static_cast<std::size_t>(which))) : std::nullopt;
    }
    Setting setMeasure(Measure which, double value) override {
        if (!place) return Setting::NoSuchProperty;
        if (which == refused) return refusal;
        place->at(static_cast<std::size_t>(which)) = value;
        ++set;
        return Setting::Done;
    }
};

struct PlacedWindow : PlainWindow<ResizableWindow, PlacedControl> {
    double width = 400, height = 300;
    bool minimised = false;
    int suspended = 0;
    clsResize resizer;

    PlacedWindow() { resizer.setSourceForm(this); }
    void resize(double newWidth, double newHeight) {
        width = newWidth;
        height = newHeight;
        resizer.ResizeControls();
    }
    PlacedControl& add(std::optional<Measures> place, const QString& itsTag = {}) {
        PlacedControl& control = addControl();
        control.place = place;
        control.tag_ = itsTag;
        return control;
    }
    double innerWidth() const override { return width; }
    double innerHeight() const override { return height; }
    bool isMinimised() const override { return minimised; }
    void suspendDrawing() override { ++suspended; }
    void resumeDrawing() override { --suspended; }
    double screenWidth() const override { return 0; }
    double screenHeight() const override { return 0; }
    void setOuterMeasure(Measure /*which*/, double /*twips*/) override {}
};

} // namespace

/// Controls in proportion to their window.
class LayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tagSelectsTheMeasures() {
        for (const auto& [tag, doubled] : {std::pair(QString(), Measures{20, 40, 60, 80}),
                                           {u"note"_s, {20, 40, 60, 80}},
                                           {u" @W"_s, {20, 40, 60, 80}}, // @ not at the very beginning
                                           {u"@L,T"_s, {20, 40, 30, 40}},
                                           {u"@"_s, {10, 20, 30, 40}},
                                           {u"@w,h"_s, {10, 20, 60, 80}},
                                           {u"@HELP"_s, {20, 20, 30, 80}}}) { // letters inside a word
            PlacedWindow window;
            PlacedControl& control = window.add(Measures{10, 20, 30, 40});
            window.resizer.ResizeControls();
            control.tag_ = tag; // as the language file may, after the recording
            window.resize(800, 600);
            QVERIFY2(*control.place == doubled, qPrintable(tag));
        }
    }

    void firstCallRecordsAndMovesNothing() {
        PlacedWindow window;
        PlacedControl& control = window.add(Measures{10.5, 11.5, 30.4, -2.5});
        window.resize(0, 300); // nothing can be in proportion to that: the next size is recorded
        window.resize(800, 0);
        window.resize(800, 600.5);             // recorded as 600
        window.resizer.setSourceForm(&window); // keeps the record
        PlacedControl& late = window.add(Measures{1, 1, 1, 1});
        QCOMPARE(control.set, 0);
        window.resize(1600, 600.5);
        // From the recorded whole numbers, a half having gone to the even neighbour; and not rounded again.
        const double down = 600.5 / 600;
        QCOMPARE(*control.place, (Measures{20, 12 * down, 60, -2 * down}));
        QCOMPARE(late.set, 0);
    }

    void roundingDoesNotAddUp() {
        PlacedWindow window;
        const Measures first{7, 13, 101, 59};
        PlacedControl& control = window.add(first);
        for (int step = 0; step <= 1000; ++step) {
            window.resize(400 + step * 7 % 613, 300 + step * 11 % 401);
            QCOMPARE(window.suspended, 0);
        }
        window.minimised = true;
        window.resize(400, 300);
        QVERIFY(*control.place != first);
        window.minimised = false;
        window.resize(400, 300);
        QCOMPARE(*control.place, first);
    }

    void failuresSkipTheStepOrTheRestOfTheControl() {
        PlacedWindow window;
        window.add(std::nullopt); // a menu item
        PlacedControl& refusing = window.add(Measures{10, 20, 30, 40});
        PlacedControl& lacking = window.add(Measures{10, 20, 30, 40});
        PlacedControl& tagless = window.add(Measures{10, -1e10, 30, std::numeric_limits<double>::infinity()});
        tagless.tag_.reset();
        refusing.refused = lacking.refused = Measure::Top;
        lacking.refusal = Setting::NoSuchProperty;
        window.resizer.ResizeControls();
        window.resize(800, 300);
        QCOMPARE(*refusing.place, (Measures{20, 20, 30, 40}));
        QCOMPARE(*lacking.place, (Measures{20, 20, 60, 40}));
        QCOMPARE(*tagless.place, (Measures{20, 0, 60, 0})); // a measure beyond 32 bits is none
    }
};

QTEST_GUILESS_MAIN(LayoutTest)
#include "tst_layout.moc"
