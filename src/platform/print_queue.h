#pragma once

#include "printing/default_printer.h"

#include <QImage>
#include <QString>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quarvel {

/// Pages on their way to the printer, one after the other. A thread stands in for the caller while the
/// printing service is slow; there is one at most, nobody waits for it, and what it touches is its own as
/// much as the queue's, so that it may be stuck for good in a service that does not answer.
///
/// No page is printed after its user was told that it is not: pages that the service has not begun to take
/// within the patience are given up for good.
class PrintQueue {
public:
    using Print = std::function<PrintOutcome(const QImage&, const QString&, const std::function<bool()>&)>;
    using Done = std::function<void(PrintOutcome)>;
    struct Page {
        QImage picture;
        QString title;
    };
    /// How long a service may take to answer, and again to take a page, before the user is told.
    static constexpr std::chrono::milliseconds usualPatience{10'000};

    /// `print` is called on the thread.
    explicit PrintQueue(Print print, std::chrono::milliseconds patience = usualPatience);
    ~PrintQueue(); ///< finishes
    PrintQueue(const PrintQueue&) = delete;
    PrintQueue& operator=(const PrintQueue&) = delete;

    /// `done` is called from the event loop, when no box or menu is open. Of pages that are given up together
    /// only the last one's is: it is told once that the service does not answer.
    void add(const Page& page, Done done);

    /// Gives the pages that are on their way half a second more, and gives up what is not begun by then.
    void finish();

private:
    struct Job;
    struct Desk;
    struct News {
        Done done;
        PrintOutcome outcome;
    };

    void look();
    [[nodiscard]] std::optional<News> nextNews();
    static bool giveUp(Job& job);

    std::shared_ptr<Desk> desk_;
    std::chrono::milliseconds patience_;
    std::vector<std::shared_ptr<Job>> jobs_; ///< those of which the user has not heard yet
    QTimer looking_;
};

} // namespace quarvel
