#include "viewer/viewport/chart_drag.h"
#include "viewer/viewport/chart_keys.h"
#include "viewer/viewport/wheel_steps.h"

#include <QTest>
#include <optional>
#include <tuple>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

constexpr NotchWay way{30, 30};
constexpr Qt::KeyboardModifiers none;

WheelTurn turn(int x, int y, Qt::KeyboardModifiers held = none, quint64 milliseconds = 0) {
    return {.at = {}, .eighths = {x, y}, .pixels = {}, .modifiers = held, .milliseconds = milliseconds};
}
WheelTurn fingers(int x, int y, Qt::KeyboardModifiers held = none) {
    return {.at = {}, .eighths = {8 * x, 8 * y}, .pixels = {x, y}, .modifiers = held, .milliseconds = 0};
}

} // namespace

Q_DECLARE_METATYPE(quarvel::WheelTurn)

/// How the wheel, the pointer and the keys move a chart, without one.
class MovingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void turnsAddUp_data() {
        QTest::addColumn<QList<WheelTurn>>("turns");
        QTest::addColumn<QList<int>>("sum"); // across, down, zoom
        const auto row = [](const char* claim, const QList<WheelTurn>& turns, const QList<int>& sum) {
            QTest::newRow(claim) << turns << sum;
        };
        const auto shift = Qt::ShiftModifier;
        const auto control = Qt::ControlModifier;
        row("a notch towards the user goes down", {turn(0, -120)}, {0, 30, 0});
        row("with Shift sideways", {turn(0, -120, shift)}, {30, 0, 0});
        row("with Shift sideways where the desktop turns the axis itself", {turn(-120, 0, shift)},
            {30, 0, 0});
        row("a wheel tilted to the left", {turn(120, 0)}, {-30, 0, 0});
        row("odd parts lose nothing", QList<WheelTurn>(120, turn(-7, 1)), {210, -30, 0});
        row("turning back drops the rest", {turn(0, -3), turn(0, 2), turn(0, 2)}, {0, -1, 0});
        row("the other axis has a rest of its own", {turn(0, -2), turn(2, 0), turn(0, -2)}, {0, 1, 0});
        row("another key drops the rest", {turn(0, -3), turn(0, -3, shift), turn(0, -3)}, {0, 0, 0});
        row("fingers move the chart by their own way", {fingers(5, -7)}, {-5, 7, 0});
        row("out, with whatever other key", {turn(0, -120, control | shift)}, {0, 0, -1});
        row("a notch in parts zooms once", QList<WheelTurn>(8, turn(0, -15, control)), {0, 0, -1});
        row("seven parts, and one back", QList<WheelTurn>(7, turn(0, 15, control)) << turn(0, -15, control),
            {0, 0, 0});
        row("fingers zoom by the angle", QList<WheelTurn>(3, fingers(0, 5, control)), {0, 0, 1});
        row("sideways zooms nothing", {turn(240, 0, control)}, {0, 0, 0});
    }
    void turnsAddUp() {
        QFETCH(const QList<WheelTurn>, turns);
        WheelSteps steps;
        QList<int> sum{0, 0, 0};
        for (const WheelTurn& each : turns) {
            const WheelMove move = steps.take(each, way);
            sum = {sum[0] + move.across, sum[1] + move.down, sum[2] + move.zoom};
        }
        QTEST(sum, "sum");
    }

    void aSweepIsRefusedOnce() {
        WheelSteps steps;
        const auto asked = [&](int eighths, quint64 at, int turns) {
            int times = 0;
            for (int i = 0; i < turns; ++i) {
                const int zoom = steps.take(turn(0, eighths, Qt::ControlModifier, at), way).zoom;
                if (zoom == 0) continue;
                steps.zoomRefused();
                ++times;
            }
            return times;
        };
        QCOMPARE(asked(30, 1000, 40), 1);
        QCOMPARE(asked(30, 1400, 40), 0); // still the same sweep
        QCOMPARE(asked(30, 2000, 40), 1); // after a pause
        QCOMPARE(asked(-30, 2000, 4), 1); // back
        QCOMPARE(asked(120, 2000, 3), 3); // each notch by itself
    }

    void theGrabbedPointStaysUnderThePointer() {
        ChartDrag drag({100, 100}, {-40, -50});
        QCOMPARE(drag.moved({90, 120}, {-40, -50}), QPointF(-50, -30));
        drag.standsAt({-50, -1}); // as far as the range goes
        QCOMPARE(drag.moved({90, 105}, {-50, -1}), QPointF(-50, -45));
        drag.standsAt({-50, -45});
        // A zoom in between has moved the chart; from there on it follows as before.
        QCOMPARE(drag.moved({91, 105}, {-70, -60}), QPointF(-69, -60));
    }

    void keysMeanWhatIsOnThem() {
        using Key = std::tuple<Qt::Key, Qt::KeyboardModifiers, std::optional<ChartKey>>;
        const auto control = Qt::ControlModifier;
        const auto shift = Qt::ShiftModifier;
        for (const auto& [key, held, meaning] :
             {Key{Qt::Key_Plus, shift, ChartKey::ZoomIn}, // as it is typed
              {Qt::Key_Plus, control | shift, ChartKey::ZoomIn},
              {Qt::Key_Equal, none, ChartKey::ZoomIn}, // the key of the plus
              {Qt::Key_Equal, shift, std::nullopt},
              {Qt::Key_Minus, Qt::AltModifier, std::nullopt}, // a menu's
              {Qt::Key_Left, Qt::KeypadModifier, ChartKey::Left},
              {Qt::Key_Left, shift, std::nullopt},
              {Qt::Key_End, control, ChartKey::RightEnd},
              {Qt::Key_PageUp, shift, ChartKey::PageLeft}})
            QVERIFY2(chartKey(key, held) == meaning, qPrintable(QString::number(key, 16)));
    }
};

QTEST_APPLESS_MAIN(MovingTest)
#include "tst_moving.moc"
