#include "presenter/core/request_queue.h"

namespace quarvel {

RequestQueue::RequestQueue(RequestPerformer& performer) : performer_(performer) {
    begin_.setSingleShot(true);
    QObject::connect(&begin_, &QTimer::timeout, &begin_, [this] { goOn(); });
}

void RequestQueue::add(const Request& request) {
    waiting_.push_back(request);
    if (!performing_) begin_.start(0);
}

void RequestQueue::finished() {
    performing_ = false;
    begin_.start(0);
}

void RequestQueue::goOn() {
    while (!performing_ && !waiting_.empty()) {
        const Request request = std::move(waiting_.front());
        waiting_.pop_front();
        performing_ = performer_.perform(request) == RequestPerformer::Outcome::Begun;
    }
}

} // namespace quarvel
