#include "viewer/viewport/viewport.h"

#include <QTest>
#include <functional>
#include <tuple>
#include <vector>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// The chart viewer's frame: 5955 x 9165 twips in a window of 11280 x 8880 twips that calls itself 12.2888 x
/// 15 units. That is 6.4876 x 15.4814.
constexpr FrameMeasures viewer{static_cast<float>(5955.0 / 11280 * 12.2888),
                               static_cast<float>(9165.0 / 8880 * 15)};
/// The companion window's, 5655 x 6495 twips in pixels.
constexpr FrameMeasures companion{377, 433};

using Step = std::function<void(Viewport&)>;
using Steps = std::vector<Step>;

Step load(QSize chart) {
    return [=](Viewport& v) { v.load(chart); };
}
Step place(float left, float top, float width, float height) {
    return [=](Viewport& v) { v.place(left, top, width, height); };
}
Step values(double across, double down) {
    return [=](Viewport& v) { v.setHorizontal(across), v.setVertical(down); };
}
Step in(float x, float y, ZoomBy by = ZoomBy::Mouse) {
    return [=](Viewport& v) { QCOMPARE(v.zoomIn(x, y, by), ZoomOutcome::Done); };
}
Step out(float x, float y) {
    return [=](Viewport& v) { QCOMPARE(v.zoomOut(x, y), ZoomOutcome::Done); };
}
Step pan(double left, double top) {
    return [=](Viewport& v) { v.panTo(left, top); };
}
const Step recompute = [](Viewport& v) { v.Set_Scrolls(); };

QString told(const ScrollBar& bar) {
    return (bar.enabled ? u""_s : u"off "_s) +
           u"%1..%2@%3"_s.arg(bar.minimum).arg(bar.maximum).arg(bar.value);
}

/// All of a viewport in one line: size, place, bars as minimum..maximum@value, zoom level.
QString told(const Viewport& v) {
    const auto number = [](float value) { return QString::number(static_cast<double>(value), 'g', 12); };
    return u"%1x%2 at %3,%4 | "_s.arg(number(v.width()), number(v.height()), number(v.left()),
                                      number(v.top())) +
           u"%1 | %2 | zoom %3"_s.arg(told(v.horizontal()), told(v.vertical())).arg(v.zoomLevel());
}

/// A viewport as its window makes it, the image at 1260 x 1410 twips at (120, 0).
Viewport empty(FrameMeasures frame) {
    Viewport viewport(8, 0, 84, 94);
    viewport.setFrame(frame);
    return viewport;
}

Viewport loaded(FrameMeasures frame, QSize chart) {
    Viewport viewport = empty(frame);
    viewport.load(chart);
    return viewport;
}

void row(const char* claim, FrameMeasures frame, const Steps& steps, const QString& expected) {
    QTest::newRow(claim) << frame << steps << expected;
}

} // namespace

class ViewportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stands_data() {
        QTest::addColumn<FrameMeasures>("frame");
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QString>("expected");

        // 800 - 6.4876 = 793.5124, 1100 - 15.4814 = 1084.5186
        row("load", viewer, {load({800, 1100})}, u"800x1100 at -1,-1 | 1..794@1 | 1..1085@1 | zoom 0"_s);
        row("as wide as the frame is not wider", companion, {load({377, 100})},
            u"377x100 at -1,-1 | off 0..32767@1 | off 0..32767@1 | zoom 0"_s);
        // Zoomed out to 375 x 450 the chart stands at Left 0 with the value 1; 500 - 377, 600 - 433.
        row("load at values of 1 leaves the place", companion,
            {load({500, 600}), out(0, 0), load({500, 600})},
            u"500x600 at 0,-1 | 1..123@1 | 1..167@1 | zoom 0"_s);
        // 84 * 1.25 - 6.4876 = 98.5124, 94 * 1.25 - 15.4814 = 102.0186; the new minimum pulls the values of
        // 0.
        row("empty image zooms", viewer, {in(0, 0)}, u"105x117.5 at -1,-1 | 1..99@1 | 1..102@1 | zoom 1"_s);
        // In: 1000 x 1375. Out: 750 x 1031.25. Out: 562.5 x 773.4375, 562.5 - 6.4876 = 556.0124, 757.9561.
        row("buttons keep the corner until the range ends", viewer,
            {load({800, 1100}), values(700, 20), in(600, 600, ZoomBy::Button), out(0, 0), out(0, 0)},
            u"562.5x773.4375 at -556,-20 | 1..556@556 | 1..758@20 | zoom -1"_s);
        // 45000 x 825: 790 + 10 passes the maximum 794 from before, and the new range is beyond 16 bits.
        row("zoom out past the old maximum", viewer,
            {load({800, 1100}), values(790, 9), place(-790, -9, 60000, 1100), out(-600, 0)},
            u"45000x825 at -794,-9 | 1..794@794 | 1..1085@9 | zoom -1"_s);
        // 375 x 500: 500 - 433, 1 + 240 / 15 / 4.
        row("narrower than the frame stands at Left 0", companion, {load({300, 400}), in(60, 240)},
            u"375x500 at 0,-5 | off 0..32767@1 | 1..67@5 | zoom 1"_s);
        // 375 x 500, then 468.75 x 625: 91.75, 192; 1 + 60 / 60. Then 351.5625 x 468.75: 35.75.
        row("narrower again keeps range and value", companion,
            {load({300, 400}), in(60, 240), in(60, 0), out(0, 0)},
            u"351.5625x468.75 at 0,-5 | off 1..92@2 | 1..36@5 | zoom 1"_s);
        row("mouse zoom in of a small chart disables them", companion,
            {load({500, 600}), place(-9, -9, 100, 100), in(0, 0)},
            u"125x125 at 0,0 | off 1..123@1 | off 1..167@1 | zoom 1"_s);
        // 7.875 - 6.4876 = 1.3874; lower than 15.4814
        row("just above ten pixels zooms out", viewer,
            {load({800, 1100}), place(-1, -1, 10.5F, 10.5F), out(0, 0)},
            u"7.875x7.875 at -1,0 | 1..1@1 | off 1..1085@1 | zoom -1"_s);
        // 7 - 6.75 rounds to 0, below the minimum 1: of the two, 1 is nearer to 50.
        row("value between crossed bounds", {6.75F, 400},
            {load({500, 600}), values(50, 1), place(-50, -1, 7, 600), recompute},
            u"7x600 at -1,-1 | 1..0@1 | 1..200@1 | zoom 0"_s);
        // Before any chart the minimum is 0: the maximum 0 takes the value along, the minimum 1 leaves it.
        row("maximum pulls before the minimum", {6.75F, 400},
            {values(50, 0), place(-50, 0, 7, 600), recompute},
            u"7x600 at 0,-1 | 1..0@0 | 1..200@1 | zoom 0"_s);
        // 29993.5124, 84.5186; then 37500 x 125: the bar across keeps its range, the other is not reached.
        row("pan", viewer, {load({800, 1100}), pan(-31, -101)},
            u"800x1100 at -31,-101 | 1..794@31 | 1..1085@101 | zoom 0"_s);
        row("pan as far as the ranges go", viewer, {load({800, 1100}), pan(-9000, 300)},
            u"800x1100 at -794,-1 | 1..794@794 | 1..1085@1 | zoom 0"_s);
        row("a disabled bar stays", companion, {load({300, 500}), pan(-31, -31)},
            u"300x500 at -1,-31 | off 0..32767@1 | 1..67@31 | zoom 0"_s);
        // The layout has put a chart back that was scrolled to 300 and 1: what is seen counts, not the value.
        row("pan on from where the layout placed it", companion,
            {load({800, 1100}), values(300, 1), place(-2, 0, 800, 1100), pan(-300, 5)},
            u"800x1100 at -300,0 | 1..423@300 | 1..667@1 | zoom 0"_s);
        row("range beyond 16 bits across", viewer, {load({30000, 100}), in(600, 600)},
            u"37500x125 at -11,-11 | 1..29994@11 | 1..85@11 | zoom 1"_s);
    }

    void stands() {
        QFETCH(FrameMeasures, frame);
        QFETCH(Steps, steps);
        Viewport viewport = empty(frame);
        for (const Step& step : steps) step(viewport);
        QTEST(told(viewport), "expected");
    }

    void clickMovesValue() {
        // A chart of 800 x 1100: the range grows to 994 (1000 - 6.4876) or shrinks to 594 (600 - 6.4876).
        for (const auto& [claim, click, from, to] :
             {std::tuple("in: a sixtieth of the distance", in(600, 0), 1, 11),
              {"in: half to the even value below", in(690, 0), 1, 12}, // 1 + 11.5
              {"in: half to the even value above", in(750, 0), 1, 14}, // 1 + 12.5
              {"in: up to the new maximum", in(12000, 0), 793, 993},
              {"in: below the minimum is skipped", in(-600, 0), 5, 5},
              {"in: a button has no point", in(600, 0, ZoomBy::Button), 5, 5},
              {"out: a sixtieth of the distance", out(600, 0), 100, 90},
              {"out: raised to 1", out(600, 0), 5, 1},
              {"out: pulled to the new maximum", out(600, 0), 700, 594}}) {
            Viewport viewport = loaded(viewer, {800, 1100});
            viewport.setHorizontal(from);
            click(viewport);
            QVERIFY2(viewport.horizontal().value == to, claim);
            QCOMPARE(viewport.left(), static_cast<float>(-to));
        }
    }

    void zoomInStopsAtTen() {
        Viewport viewport = loaded(viewer, {800, 1100});
        for (int step = 0; step < 10; ++step) in(0, 0)(viewport);
        const QString before = told(viewport);
        QCOMPARE(viewport.zoomIn(600, 600, ZoomBy::Mouse), ZoomOutcome::Refused);
        QCOMPARE(told(viewport), before);
        out(0, 0)(viewport);
        in(0, 0)(viewport);
        QCOMPARE(viewport.zoomIn(0, 0, ZoomBy::Button), ZoomOutcome::Refused);
    }

    void zoomOutStopsAtTenPixels() {
        for (const QSizeF size : {QSizeF(10, 500), QSizeF(500, 10)}) {
            Viewport viewport = loaded(viewer, {800, 1100});
            viewport.place(-1, -1, static_cast<float>(size.width()), static_cast<float>(size.height()));
            const QString before = told(viewport);
            QCOMPARE(viewport.zoomOut(600, 600), ZoomOutcome::Refused);
            QCOMPARE(told(viewport), before);
        }
    }

    void fitsSixteenBitRanges() {
        const Viewport viewport = empty(companion);
        QVERIFY(viewport.fits({32767 + 377, 32767 + 433}));
        QVERIFY(!viewport.fits({32767 + 378, 100}));
        QVERIFY(!viewport.fits({100, 32767 + 434}));
    }
};

QTEST_GUILESS_MAIN(ViewportTest)
#include "tst_viewport.moc"
