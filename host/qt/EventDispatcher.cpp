#include "host/qt/EventDispatcher.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <utility>

namespace host::qt {
namespace {

int LoopLevel() { return QThread::currentThread()->loopLevel(); }

/// Starts a single-shot timer. Rounded up: an early timeout would cost a second sleep.
void StartOnce(QTimer& timer, std::chrono::nanoseconds after) {
  if (after == std::chrono::nanoseconds::max()) return timer.stop();
  const std::chrono::nanoseconds longest = std::chrono::hours(1);
  timer.start(std::chrono::ceil<std::chrono::milliseconds>(std::min(after, longest)));
}

}  // namespace

EventDispatcher::EventDispatcher(std::function<std::chrono::nanoseconds()> untilWork,
                                 std::function<void()> serve)
    : untilWork_(std::move(untilWork)), serve_(std::move(serve)) {
  for (QTimer* timer : {&workTimer_, &deadlineTimer_}) {
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, timer, [this] { Ready(); });
  }
}

EventDispatcher::~EventDispatcher() = default;

void EventDispatcher::Watch(const std::vector<int>& descriptors) {
  std::erase_if(notifiers_, [&](const auto& entry) {
    return std::find(descriptors.begin(), descriptors.end(), entry.first) == descriptors.end();
  });
  for (const int descriptor : descriptors) {
    auto& notifier = notifiers_[descriptor];
    if (notifier) continue;
    notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    // Deferred to the timer, since the handler may delete this notifier.
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { LookAgain(); });
  }
}

void EventDispatcher::WorkAdded() { StartWorkTimer(); }

void EventDispatcher::LookAgain() { workTimer_.start(0); }

void EventDispatcher::StartWorkTimer() { StartOnce(workTimer_, untilWork_()); }

void EventDispatcher::Sleep(std::chrono::nanoseconds longest) {
  const auto outerLevel = std::exchange(level_, LoopLevel());
  ready_ = false;
  StartWorkTimer();
  if (longest > std::chrono::nanoseconds::zero()) {
    StartOnce(deadlineTimer_, longest);
    while (!ready_ && !FailedAbove()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    deadlineTimer_.stop();
  } else {
    QCoreApplication::processEvents();
  }
  level_ = outerLevel;
  // An outer sleep checks again too: its work may have been done here.
  ready_ = true;
  StartWorkTimer();
  if (FailedAbove()) std::rethrow_exception(std::exchange(error_, nullptr));
}

void EventDispatcher::Ready() {
  if (level_ && LoopLevel() <= *level_)
    ready_ = true;
  else
    Serve();
}

void EventDispatcher::Serve() {
  ++foreign_;
  try {
    serve_();
  } catch (...) {
    // Exceptions must not pass through Qt's loop.
    if (!error_) {
      error_ = std::current_exception();
      errorDepth_ = foreign_;
    }
  }
  --foreign_;
  StartWorkTimer();
}

}  // namespace host::qt
