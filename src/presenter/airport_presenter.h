#pragma once

#include "presenter/own_agent.h"
#include "presenter/presenter.h"

namespace quarvel {

/// Presents airports with the program's own character. Nothing of it is set up before the first
/// presentation; what it has still to say outlives the window that asked for it.
class AirportPresenter : public Presenter {
public:
    explicit AirportPresenter(OwnAgent::MakeVoice makeVoice) : Agent(std::move(makeVoice)) {}

    /// The text is single-byte, in Windows-1252. A file that cannot be read leaves the box unchanged.
    void LoadTextFile(const QString& path, HiddenTextBox& box) override;
    void PresentAirport(const HiddenTextBox& box) override;

private:
    OwnAgent Agent;
    AgentCharacter* Genie = nullptr;
};

} // namespace quarvel
