#include "platform/end_signals.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quarvel {
namespace {

constexpr std::array endingSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal may come in the middle of anything: all that it does is to write into a pipe that the event loop
// reads.
std::array<int, 2> ends = {-1, -1};

void tellEventLoop(int /*number*/) {
    const char byte = 0;
    static_cast<void>(!::write(ends[1], &byte, 1));
}

void handle(void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    for (const int number : endingSignals) {
        struct sigaction now {};
        const bool ignored = ::sigaction(number, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
        if (!ignored) ::sigaction(number, &action, nullptr); // whoever started it may have wanted it to stay
    }
}

} // namespace

EndSignals::EndSignals(std::function<void()> end) {
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return; // they end the process as usual
    told_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(told_.get(), &QSocketNotifier::activated, told_.get(), [this, end = std::move(end)] {
        told_->setEnabled(false);
        end();
    });
    handle(tellEventLoop, static_cast<int>(SA_RESETHAND) | SA_RESTART);
}

EndSignals::~EndSignals() {
    if (!told_) return;
    handle(SIG_DFL, 0);
    told_.reset();
    for (int& end : ends) ::close(std::exchange(end, -1));
}

} // namespace quarvel
