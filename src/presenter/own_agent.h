#pragma once

#include "presenter/core/agent.h"
#include "presenter/core/request_queue.h"
#include "presenter/stage.h"

#include <QString>
#include <functional>
#include <memory>

namespace quarvel {

/// This program's own character: asked as any other, drawn and voiced by the program itself.
class OwnCharacter final : public AgentCharacter {
public:
    explicit OwnCharacter(std::unique_ptr<Voice> voice);

    void Show() override;
    void Play(const QString& animation) override;
    void Speak(const QString& text) override;
    void Hide() override;
    void setLanguageID(int language) override { languageID_ = language; }
    void setBalloonStyle(int style) override { balloonStyle_ = style; }

    [[nodiscard]] int languageID() const { return languageID_; }
    [[nodiscard]] int balloonStyle() const { return balloonStyle_; }
    [[nodiscard]] Stage& stage() { return stage_; }

private:
    Stage stage_;
    RequestQueue queue_;
    int languageID_ = 0;
    int balloonStyle_ = 0;
};

/// Where the program's own character stands in for whatever character file is asked for: the first load makes
/// it, and from then on its ID is taken.
class OwnAgent final : public AgentControl {
public:
    using MakeVoice = std::function<std::unique_ptr<Voice>()>;
    /// `makeVoice` is called at the first load and not before.
    explicit OwnAgent(MakeVoice makeVoice) : makeVoice_(std::move(makeVoice)) {}

    void setConnected(bool connected) override { connected_ = connected; }
    void load(const QString& id, const QString& path) override;
    [[nodiscard]] AgentCharacter* character(const QString& id) override;

    /// The character, once it is loaded.
    [[nodiscard]] OwnCharacter* own() const { return character_.get(); }

private:
    MakeVoice makeVoice_;
    bool connected_ = false;
    QString id_;
    std::unique_ptr<OwnCharacter> character_;
};

} // namespace quarvel
