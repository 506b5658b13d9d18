#include "platform/print_queue.h"

#include <QApplication>
#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace quarvel {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds lookInterval{50};
constexpr std::chrono::milliseconds lastWait{500};

enum class Stage { Asking, HandingOver, Ended, GivenUp };

} // namespace

struct PrintQueue::Job {
    Page page;
    Done done;
    Stage stage = Stage::Asking;
    Clock::time_point since = Clock::now(); // when the stage began
    PrintOutcome outcome = PrintOutcome::Failed;
};

/// Where the two threads meet. The lock is never held while the printing service is waited for.
struct PrintQueue::Desk {
    explicit Desk(Print how) : print(std::move(how)) {}

    const Print print;
    std::mutex lock;
    std::condition_variable changed;
    std::deque<std::shared_ptr<Job>> waiting;
    bool threadRuns = false;

    void serve();
    /// False when the job has been given up meanwhile.
    bool enter(Job& job, Stage stage) {
        const std::lock_guard guard(lock);
        if (job.stage == Stage::GivenUp) return false;
        job.stage = stage;
        job.since = Clock::now();
        changed.notify_all();
        return true;
    }
};

void PrintQueue::Desk::serve() {
    std::unique_lock guard(lock);
    while (!waiting.empty()) {
        const std::shared_ptr<Job> job = waiting.front();
        waiting.pop_front();
        if (job->stage == Stage::GivenUp) continue;
        guard.unlock();
        const PrintOutcome outcome =
            print(job->page.picture, job->page.title, [&] { return enter(*job, Stage::HandingOver); });
        guard.lock();
        job->outcome = outcome;
        if (job->stage != Stage::GivenUp) job->stage = Stage::Ended;
        changed.notify_all();
    }
    threadRuns = false;
}

PrintQueue::PrintQueue(Print print, std::chrono::milliseconds patience)
    : desk_(std::make_shared<Desk>(std::move(print))), patience_(patience) {
    looking_.setInterval(lookInterval);
    QObject::connect(&looking_, &QTimer::timeout, &looking_, [this] { look(); });
}

PrintQueue::~PrintQueue() { finish(); }

void PrintQueue::add(const Page& page, Done done) {
    const auto job = std::make_shared<Job>(Job{page, std::move(done)});
    jobs_.push_back(job);
    looking_.start();
    const std::lock_guard guard(desk_->lock);
    desk_->waiting.push_back(job);
    if (desk_->threadRuns) return;
    try {
        std::thread([desk = desk_] { desk->serve(); }).detach();
        desk_->threadRuns = true;
    } catch (const std::system_error&) { // too many threads
        desk_->waiting.pop_back();
        job->stage = Stage::Ended;
    }
}

void PrintQueue::look() {
    // What comes of itself interrupts no answer that the user is about to give.
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) return;
    const std::optional<News> news = nextNews();
    if (jobs_.empty()) looking_.stop();
    if (news) news->done(news->outcome);
}

std::optional<PrintQueue::News> PrintQueue::nextNews() {
    const std::lock_guard guard(desk_->lock);
    const auto isLate = [&](const auto& job) { return Clock::now() - job->since >= patience_; };
    for (auto job = jobs_.begin(); job != jobs_.end(); ++job) {
        const bool ended = (*job)->stage == Stage::Ended;
        if (!ended && ((*job)->stage == Stage::Asking || !isLate(*job))) continue;
        News news{std::move((*job)->done), ended ? (*job)->outcome : PrintOutcome::Unconfirmed};
        jobs_.erase(job);
        return news;
    }
    if (std::none_of(jobs_.begin(), jobs_.end(), isLate)) return std::nullopt;
    News news{nullptr, PrintOutcome::NoAnswer};
    for (const auto& job : jobs_)
        if (giveUp(*job)) news.done = std::move(job->done);
    std::erase_if(jobs_, [](const auto& job) { return job->stage == Stage::GivenUp; });
    return news;
}

/// Whether the job had not begun. With the lock.
bool PrintQueue::giveUp(Job& job) {
    if (job.stage != Stage::Asking) return false;
    job.stage = Stage::GivenUp;
    return true;
}

void PrintQueue::finish() {
    std::unique_lock guard(desk_->lock);
    desk_->changed.wait_for(guard, lastWait, [this] {
        return std::all_of(jobs_.begin(), jobs_.end(),
                           [](const auto& job) { return job->stage == Stage::Ended; });
    });
    for (const auto& job : jobs_) giveUp(*job);
}

} // namespace quarvel
