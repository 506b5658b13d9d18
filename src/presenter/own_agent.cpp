#include "presenter/own_agent.h"

namespace quarvel {

OwnCharacter::OwnCharacter(std::unique_ptr<Voice> voice)
    : stage_(std::move(voice), [this] { queue_.finished(); }), queue_(stage_) {}

void OwnCharacter::Show() { queue_.add({Request::Kind::Show}); }

void OwnCharacter::Play(const QString& animation) { queue_.add({Request::Kind::Play, animation}); }

void OwnCharacter::Speak(const QString& text) { queue_.add({Request::Kind::Speak, text}); }

void OwnCharacter::Hide() { queue_.add({Request::Kind::Hide}); }

void OwnAgent::load(const QString& id, const QString& /*path*/) {
    if (!connected_ || character_ != nullptr) return;
    id_ = id;
    character_ = std::make_unique<OwnCharacter>(makeVoice_());
}

AgentCharacter* OwnAgent::character(const QString& id) { return id == id_ ? character_.get() : nullptr; }

} // namespace quarvel
