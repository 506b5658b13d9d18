#pragma once

#include "presenter/character/character_window.h"
#include "presenter/core/request_queue.h"
#include "presenter/voice/voice.h"

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <functional>
#include <memory>

namespace quarvel {

/// Carries out what the character is asked for: the animations in its window on the desktop, the texts by
/// the voice.
class Stage final : public RequestPerformer {
public:
    /// `ended` is called whenever a request that was begun is over.
    Stage(std::unique_ptr<Voice> voice, std::function<void()> ended);

    /// The window beside which the character appears from now on; it stays where it last was when the window
    /// goes.
    void standBeside(QWidget& window) { neighbour_ = &window; }

    [[nodiscard]] Outcome perform(const Request& request) override;

private:
    Outcome show();
    Outcome play(Animation animation);
    Outcome speak(const QString& text);
    void spoken();

    std::unique_ptr<Voice> voice_;
    CharacterWindow character_;
    std::function<void()> ended_;
    QPointer<QWidget> neighbour_;
};

} // namespace quarvel
