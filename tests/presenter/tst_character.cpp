#include "presenter/character/character_window.h"

#include <QSignalSpy>
#include <QTest>
#include <cmath>

using namespace quarvel;
using enum Animation;

/// The longest step of any number from one pose to the other, as a part of its range.
static double steps(const Pose& a, const Pose& b) {
    double longest = 0;
    for (const auto& [number, least, most] : poseNumbers)
        longest = std::max(longest, std::abs(b.*number - a.*number) / (most - least));
    return longest;
}

class CharacterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void animationsJoinAndMoveWithoutJumps() {
        Stance stance = Stance::Away;
        for (const Animation each : {Show, Greet, RestPose, Decline, Read, ReadReturn, Wave, Hide}) {
            QCOMPARE(steps(idlePose(stance, 0), poseAt(each, 0)), 0.0);
            for (int ms = 0; ms < durationOf(each); ms += 33) // a blink is the quickest movement
                QVERIFY2(steps(poseAt(each, ms), poseAt(each, ms + 33)) < 0.4,
                         qPrintable(QString::number(ms)));
            stance = stanceAfter(each);
            if (stance != Stance::Away)
                QCOMPARE(steps(poseAt(each, durationOf(each)), idlePose(stance, 0)), 0.0);
        }
    }

    void theWindowSpeaksPlaysAndLeaves() {
        CharacterWindow window;
        window.standBeside({900, 700, 600, 500}, {0, 0, 1280, 960});
        QVERIFY(QRect(0, 0, 1280, 960).contains(window.geometry()));
        QSignalSpy ended(&window, &CharacterWindow::animationEnded);
        window.play(RestPose);
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
        window.setLoudness(1);
        QTRY_VERIFY(window.pose().beak > 0.9);
        window.setLoudness(0);
        QTRY_VERIFY(window.pose().beak < 0.1);
        QTRY_COMPARE(ended.count(), 1);
        window.play(Hide);
        QTRY_COMPARE(ended.count(), 2);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(CharacterTest)
#include "tst_character.moc"
