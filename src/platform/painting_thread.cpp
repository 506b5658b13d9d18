#include "platform/painting_thread.h"

#include <QSemaphore>
#include <QThreadPool>
#include <memory>

namespace quarvel {
namespace {

constexpr unsigned stackBytes = 512U * 1024; // ten times what fills need
constexpr int never = -1;
constexpr int longestStartMilliseconds = 5000;

} // namespace

bool keepPaintingThread() {
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(never);
    pool.setStackSize(stackBytes);
    const auto running = std::make_shared<QSemaphore>();
    pool.start([running] { running->release(); });
    return running->tryAcquire(1, longestStartMilliseconds);
}

} // namespace quarvel
