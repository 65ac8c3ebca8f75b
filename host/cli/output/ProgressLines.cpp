#include "host/cli/output/ProgressLines.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <ostream>

#include "host/base/TextCells.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/cli/output/Colour.h"
#include "host/cli/output/DocumentLines.h"
#include "host/judge/ReasonText.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Latin1.h"

namespace host::cli {

namespace {

constexpr std::chrono::milliseconds kRedraw{250};

/// The text cut to one line of the terminal: a second line could not be erased.
std::string Fitting(const std::string& text) {
  winsize size{};
  const bool known =
      ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 || ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0;
  const std::size_t width = known && size.ws_col > 1 ? size.ws_col - 1U : 79;
  return CutToCells(text, width);
}

}  // namespace

ProgressLines::ProgressLines(std::ostream& out, int descriptor, std::shared_ptr<toolkit::loop::ILoop> loop,
                             double timeScale)
    : out_(out),
      terminal_(isatty(descriptor) == 1),
      coloured_(ColoursWanted(descriptor)),
      loop_(std::move(loop)),
      timeScale_(timeScale),
      // Four times a second on the wall clock, however fast the clock of the run is.
      interval_(static_cast<std::int64_t>(static_cast<double>(orvik::platform::Time(kRedraw).count()) *
                                          timeScale)) {
  if (terminal_) Redraw();
}

ProgressLines::~ProgressLines() { Over(); }

void ProgressLines::Over() {
  loop_->Forget(next_);
  Erase();
}

void ProgressLines::Reached(std::size_t place, std::size_t count) {
  estimate_.Reach(place);
  place_ = "[" + std::to_string(place) + "/" + std::to_string(count) + "] ";
}

void ProgressLines::Started(const judge::JudgedElement& element) {
  element_ = std::to_string(element.testId) + " " + host::VisibleText(element.name);
  Print(place_ + element_);
}

void ProgressLines::Finished(const judge::JudgedElement& element) {
  Print("      " + LineOf(element, coloured_));
}

void ProgressLines::Wire(const serial::WireRecord& record) {
  exchange_.Take(record);
  estimate_.Take(record);
  if (record.kind == serial::WireRecord::Kind::kFailed)
    Print("      " + Tr("the line to the tester has failed"));
  if (record.kind != serial::WireRecord::Kind::kSent) return;
  if (terminal_) return Redraw();
  Print("      " + Tr("%%1, attempt %%2 of %%3", {exchange_.Command(), std::to_string(exchange_.Attempt()),
                                                  std::to_string(plugins::keld::kMaxAttempts)}));
}

void ProgressLines::Prompted(const std::string& text) {
  Print("      " + host::VisibleText(text, host::LineEnds::kKept));
}

void ProgressLines::Doubted(std::int32_t, const document::Reason& doubt) {
  Print("      " + Tr("doubt: %%1", {host::VisibleText(judge::ReasonText(doubt))}));
}

void ProgressLines::Remark(const std::string& text) { Print(text); }

void ProgressLines::Print(const std::string& line) {
  Erase();
  out_ << line << std::endl;
}

void ProgressLines::Redraw() {
  loop_->Forget(next_);
  const auto text = exchange_.Text(loop_->Now());
  Erase();
  if (!text.empty()) {
    const auto left = estimate_.Text(loop_->Now(), timeScale_);
    out_ << Fitting(place_ + text + (left.empty() ? "" : " | " + left) + " | " + element_) << std::flush;
    drawn_ = true;
  }
  next_ = loop_->CallAt(loop_->Now() + interval_, [this] { Redraw(); });
}

void ProgressLines::Erase() {
  if (!drawn_) return;
  out_ << "\r\033[K" << std::flush;
  drawn_ = false;
}

}  // namespace host::cli
