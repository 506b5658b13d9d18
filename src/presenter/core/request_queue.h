#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>

namespace quarvel {

/// Something that a character was asked for.
struct Request {
    enum class Kind { Show, Play, Speak, Hide };
    Kind kind = Kind::Show;
    QString text{}; ///< the animation's name, or what is to be spoken

    bool operator==(const Request&) const = default;
};

/// Who carries requests out, one at a time.
class RequestPerformer {
public:
    enum class Outcome {
        Begun, ///< it takes its time; finished() of the queue ends it
        Over   ///< done already, or not to be done
    };

    RequestPerformer() = default;
    RequestPerformer(const RequestPerformer&) = delete;
    RequestPerformer& operator=(const RequestPerformer&) = delete;

    [[nodiscard]] virtual Outcome perform(const Request& request) = 0;

protected:
    ~RequestPerformer() = default;
};

/// Requests that wait for those before them.
class RequestQueue {
public:
    explicit RequestQueue(RequestPerformer& performer);

    /// Queues a request and returns at once: it is begun from the event loop at the earliest.
    void add(const Request& request);
    /// The request that was begun is over.
    void finished();

private:
    void goOn();

    RequestPerformer& performer_;
    std::deque<Request> waiting_;
    bool performing_ = false;
    QTimer begin_; ///< goes on from the event loop, so that no request is begun inside another
};

} // namespace quarvel
