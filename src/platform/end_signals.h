#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quarvel {

/// The system's requests to end: it goes down, the user logs out, or somebody asks the process. Without this
/// the process would end in the middle of whatever it does.
class EndSignals {
public:
    /// `end` runs from the event loop, once. What asks a second time ends the process as usual.
    explicit EndSignals(std::function<void()> end);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> told_;
};

} // namespace quarvel
