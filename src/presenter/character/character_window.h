#pragma once

#include "presenter/character/animations.h"
#include "presenter/character/pose.h"

#include <QElapsedTimer>
#include <QImage>
#include <QRect>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <optional>

namespace quarvel {

/// The character on the desktop: a window without a frame that lies above all others, is seen through where
/// the character is not, and takes neither focus nor clicks.
class CharacterWindow : public QWidget {
    Q_OBJECT

public:
    CharacterWindow();

    /// Starts an animation from the pose of this moment; the window comes onto the screen if it is not there.
    /// One that still runs is left for the new one, without a signal of its own.
    void play(Animation animation);

    /// How loud the voice is right now, 0 .. 1; the beak opens as far, smoothed over a tenth of a second.
    void setLoudness(double loudness);

    /// What the character is saying, for assistive tools; empty when it is silent.
    void setSpokenLine(const QString& line);

    /// Puts the character to the right of a window, at its foot, wholly on the screen. Logical pixels of the
    /// desktop.
    void standBeside(const QRect& window, const QRect& screen);

    /// The pose on the screen.
    [[nodiscard]] const Pose& pose() const { return pose_; }

Q_SIGNALS:
    /// The animation that was played last has reached its end, or was cut short because the window was
    /// hidden. After Hide the window is off the screen.
    void animationEnded();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void step();
    void takePose(double ms);
    void endAnimation();
    void lookForCompositor();
    void cutOut();

    QTimer frames_;
    QElapsedTimer clock_; ///< since the animation or, when none runs, the standing still began
    std::optional<Animation> playing_;
    Stance stance_ = Stance::Away;
    Pose pose_ = idlePose(Stance::Away, 0);
    Pose from_ = pose_; ///< where the running animation took over
    double loudness_ = 0;
    double beak_ = 0;
    QElapsedTimer looked_; ///< since the last look for a compositor
    bool cut_ = false;     ///< the window is cut to the character's outline
    QImage drawn_;         ///< what it was cut from
};

} // namespace quarvel
