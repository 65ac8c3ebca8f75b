#include "tester/SerialLoop.h"

#include <poll.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>

#include "tester/Errors.h"

namespace sim {

namespace {

Instant Now() {
  return std::chrono::duration_cast<Instant>(std::chrono::steady_clock::now().time_since_epoch());
}

timespec Until(Instant due) {
  const auto rest = std::max(due - Now(), Instant::zero());
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(rest);
  return {static_cast<time_t>(seconds.count()), static_cast<long>((rest - seconds).count() * 1000)};
}

}  // namespace

SerialLoop::SerialLoop(Tester& tester, int terminal, int stop, Trace* trace)
    : tester_(tester), terminal_(terminal), stop_(stop), trace_(trace) {
  if (trace_)
    tester_.OnLine([this](std::string_view bytes, bool dropped) { Note(dropped ? "lost" : "recv", bytes); });
  tester_.OnNote([this](std::string_view note) { Note("note", note); });
}

SerialLoop::~SerialLoop() {
  tester_.OnLine(nullptr);
  tester_.OnNote(nullptr);
}

SerialLoop::End SerialLoop::Run() {
  while (true) {
    SendDue();
    WriteUnsent();
    if (tester_.HungUp()) {
      Note("note", "hung up");
      return End::HungUp;
    }
    Wait();
    if (stopRequested_) return End::Stopped;
    ReadArrived();
  }
}

void SerialLoop::SendDue() {
  while (const auto output = tester_.TakeDue(Now())) {
    if (!output->bytes.empty()) Send(output->bytes);
    if (output->hangUp) backAfter_ = output->backAfter;
  }
}

void SerialLoop::Send(const std::string& bytes) {
  std::string_view shown = bytes;
  if (shown.size() >= kLineEnd.size() && shown.substr(shown.size() - kLineEnd.size()) == kLineEnd) {
    shown.remove_suffix(kLineEnd.size());
  }
  if (unsent_.size() + bytes.size() > kMaxUnsent) {
    Note("note", "no client reads; the next reply is lost");
    Note("lost", shown);
    return;
  }
  Note("sent", shown);
  unsent_ += bytes;
}

void SerialLoop::WriteUnsent() {
  while (!unsent_.empty()) {
    const ssize_t count = write(terminal_, unsent_.data(), unsent_.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno == EAGAIN) return;  // full; poll reports when there is space
    if (count < 0) throw SystemFailure("the pseudo-terminal could not be written", errno);
    unsent_.erase(0, static_cast<std::size_t>(count));
  }
}

void SerialLoop::Wait() {
  std::array<pollfd, 2> watched{};
  watched[0] = {stop_, POLLIN, 0};
  watched[1] = {terminal_, static_cast<short>(unsent_.empty() ? POLLIN : POLLIN | POLLOUT), 0};
  timespec timeout{};
  const auto due = tester_.NextDue();
  if (due) timeout = Until(*due);
  if (ppoll(watched.data(), watched.size(), due ? &timeout : nullptr, nullptr) < 0 && errno != EINTR) {
    throw SystemFailure("waiting for the pseudo-terminal failed", errno);
  }
  stopRequested_ = watched[0].revents != 0;
  if ((watched[1].revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) {
    throw SystemFailure("the pseudo-terminal is gone", EIO);
  }
}

void SerialLoop::ReadArrived() {
  std::array<char, 4096> buffer{};
  const ssize_t count = read(terminal_, buffer.data(), buffer.size());
  if (count > 0) {
    tester_.Receive({buffer.data(), static_cast<std::size_t>(count)}, Now());
  } else if (count < 0 && errno != EAGAIN && errno != EINTR) {
    throw SystemFailure("the pseudo-terminal could not be read", errno);
  }
}

void SerialLoop::Note(std::string_view direction, std::string_view bytes) {
  if (trace_) trace_->Write(direction, bytes);
}

}  // namespace sim
