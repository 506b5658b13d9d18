#pragma once

#include "platform/pcm_output.h"
#include "presenter/voice/voice.h"

#include <QTimer>
#include <chrono>
#include <memory>

namespace quarvel {

/// The Italian voice of the synthesiser espeak-ng, heard through the desktop's sound server. Without the one
/// or the other, or when one of them does not answer, it is silent for as long as reading the text takes.
/// Nothing is set up before the first text.
class EspeakVoice : public Voice {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds usualPatience{4000};

    /// A text is given up when for as long as `patience` nothing has come from the synthesiser and nothing
    /// has been heard.
    explicit EspeakVoice(std::chrono::milliseconds patience = usualPatience, QObject* parent = nullptr);
    ~EspeakVoice() override;

    void speak(const QString& text) override;
    void stop() override;

private:
    struct Speech;

    void tick();
    bool takeSound();
    void lookForSound();
    void stayOutOfHearing();
    void beSilent();
    void finish();

    std::chrono::milliseconds patience_;
    PcmOutput output_;
    std::unique_ptr<Speech> speech_; // while it is heard or may yet be
    bool speaking_ = false;          // until finished() is on its way
    QTimer ticking_;
    QTimer silence_;
};

} // namespace quarvel
