#include "layout/clsResize.h"
#include "layout/resize_tag.h"

#include <QTest>
#include <array>
#include <limits>
#include <memory>
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
    int setInSight = 0; ///< of these, while the window was painted
    const int* suspended = nullptr;

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
        if (*suspended == 0) ++setInSight;
        return Setting::Done;
    }
};

struct PlacedWindow : ResizableWindow {
    double width = 400, height = 300;
    bool minimised = false;
    int suspended = 0, suspensions = 0;
    QStringList outer; ///< what was done to the window itself
    std::vector<std::unique_ptr<PlacedControl>> list;

    PlacedControl& add(std::optional<Measures> place, const QString& tag = {}) {
        PlacedControl& control = *list.emplace_back(std::make_unique<PlacedControl>());
        control.place = place;
        control.tag_ = tag;
        control.suspended = &suspended;
        return control;
    }
    QString windowName() const override { return u"frmFS9"_s; }
    QString windowCaption() const override { return {}; }
    void setWindowCaption(const QString& /*text*/) override {}
    QString windowTag() const override { return {}; }
    void setWindowTag(const QString& /*text*/) override {}
    std::vector<Control*> controls() const override {
        std::vector<Control*> all;
        for (const auto& control : list) all.push_back(control.get());
        return all;
    }
    void processPendingMessages() override {}
    bool isLoaded() const override { return true; }
    int loading() const override { return 1; }
    double innerWidth() const override { return width; }
    double innerHeight() const override { return height; }
    bool isMinimised() const override { return minimised; }
    void suspendDrawing() override { ++suspended, ++suspensions; }
    void resumeDrawing() override { --suspended; }
    double screenWidth() const override { return 19215; }
    double screenHeight() const override { return 14415; }
    void setOuterMeasure(Measure which, double twips) override {
        outer.append(u"%1 %2"_s.arg(static_cast<int>(which)).arg(twips));
        if (which == Measure::Width) width = twips / 15;
        if (which == Measure::Height) height = twips / 15;
    }
};

} // namespace

/// Controls in proportion to their window.
class LayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tagSelectsTheMeasures_data() {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<Measures>("doubled");
        QTest::newRow("no tag") << QString() << Measures{20, 40, 60, 80};
        QTest::newRow("a text that does not begin with @") << u"note"_s << Measures{20, 40, 60, 80};
        QTest::newRow("@ not at the very beginning") << u" @W"_s << Measures{20, 40, 60, 80};
        QTest::newRow("moves only") << u"@L,T"_s << Measures{20, 40, 30, 40};
        QTest::newRow("nothing at all") << u"@"_s << Measures{10, 20, 30, 40};
        QTest::newRow("small letters") << u"@w,h"_s << Measures{10, 20, 60, 80};
        QTest::newRow("letters inside a word") << u"@HELP"_s << Measures{20, 20, 30, 80};
    }
    void tagSelectsTheMeasures() {
        QFETCH(QString, tag);
        PlacedWindow window;
        PlacedControl& control = window.add(Measures{10, 20, 30, 40});
        clsResize resizer;
        resizer.setSourceForm(&window);
        resizer.ResizeControls();
        control.tag_ = tag; // as the language file may, after the recording
        window.width *= 2;
        window.height *= 2;
        resizer.ResizeControls();
        QTEST(*control.place, "doubled");
    }

    void firstCallRecordsAndMovesNothing() {
        PlacedWindow window;
        PlacedControl& control = window.add(Measures{10.5, 11.5, 30.4, -2.5});
        clsResize resizer;
        resizer.setSourceForm(&window);
        window.width = 0; // nothing can be in proportion to that: the next size is recorded
        resizer.ResizeControls();
        window.width = 800;
        window.height = 0;
        resizer.ResizeControls();
        window.height = 600.5; // recorded as 600
        resizer.ResizeControls();
        QCOMPARE(control.set, 0);
        QCOMPARE(window.suspensions, 0);
        resizer.setSourceForm(&window); // keeps the record
        PlacedControl& late = window.add(Measures{1, 1, 1, 1});
        window.width = 1600;
        resizer.ResizeControls();
        // From the recorded whole numbers, a half having gone to the even neighbour; and not rounded again.
        const double down = 600.5 / 600;
        QCOMPARE(*control.place, (Measures{20, 12 * down, 60, -2 * down}));
        QCOMPARE(late.set, 0);
        const auto gone = std::move(window.list.front()); // not in the next record
        window.list.erase(window.list.begin());
        window.height = 600;
        resizer.ReInitialise();
        window.width = 800;
        resizer.ResizeControls();
        QCOMPARE(*late.place, (Measures{0.5, 1, 0.5, 1}));
        QCOMPARE(*gone->place, (Measures{20, 12 * down, 60, -2 * down}));
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
        clsResize resizer;
        resizer.ResizeControls(); // of no window
        resizer.setSourceForm(&window);
        resizer.ResizeControls();
        window.width *= 2;
        resizer.ResizeControls();
        QCOMPARE(*refusing.place, (Measures{20, 20, 30, 40}));
        QCOMPARE(*lacking.place, (Measures{20, 20, 60, 40}));
        QCOMPARE(*tagless.place, (Measures{20, 0, 60, 0})); // a measure beyond 32 bits is none
    }

    void sizeToScreenRecordsFirstAndCentres() {
        PlacedWindow window;
        PlacedControl& control = window.add(Measures{10, 20, 30, 40});
        clsResize resizer;
        resizer.setSourceForm(&window);
        resizer.SizeFormToScreen(33);
        QCOMPARE(window.outer, QStringList({u"1 4829.5"_s, u"0 6437.5"_s, u"3 4756"_s, u"2 6340"_s}));
        QCOMPARE(control.place->at(0), 10 * (6340 / 15.0) / 400);
        window.minimised = true;
        resizer.SizeFormToScreen(66);
        QCOMPARE(control.place->at(0), 10 * (6340 / 15.0) / 400);
        window.minimised = false;
        resizer.ResizeControls(); // still from the first record
        QCOMPARE(control.place->at(0), 10 * (12681 / 15.0) / 400);
        QVERIFY(control.setInSight == 0 && window.suspended == 0);
    }
};

QTEST_GUILESS_MAIN(LayoutTest)
#include "tst_layout.moc"
