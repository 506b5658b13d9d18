#include "presenter/stage.h"

#include <QScreen>

namespace quarvel {

Stage::Stage(std::unique_ptr<Voice> voice, std::function<void()> ended)
    : voice_(std::move(voice)), ended_(std::move(ended)) {
    QObject::connect(&character_, &CharacterWindow::animationEnded, &character_, [this] { ended_(); });
    QObject::connect(voice_.get(), &Voice::loudness, &character_, &CharacterWindow::setLoudness);
    QObject::connect(voice_.get(), &Voice::finished, &character_, [this] { spoken(); });
}

RequestPerformer::Outcome Stage::perform(const Request& request) {
    switch (request.kind) {
    case Request::Kind::Show: return show();
    case Request::Kind::Hide: return play(Animation::Hide);
    case Request::Kind::Speak: return speak(request.text);
    case Request::Kind::Play: break;
    }
    const std::optional<Animation> animation = animationNamed(request.text);
    return animation ? play(*animation) : Outcome::Over;
}

RequestPerformer::Outcome Stage::show() {
    if (neighbour_) character_.standBeside(neighbour_->frameGeometry(), neighbour_->screen()->geometry());
    return play(Animation::Show);
}

RequestPerformer::Outcome Stage::play(Animation animation) {
    character_.play(animation);
    return Outcome::Begun;
}

RequestPerformer::Outcome Stage::speak(const QString& text) {
    character_.setSpokenLine(text);
    voice_->speak(text);
    return Outcome::Begun;
}

void Stage::spoken() {
    character_.setSpokenLine({});
    ended_();
}

} // namespace quarvel
