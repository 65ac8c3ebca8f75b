#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include "OrvikTypeLib/IMessage.h"
#include "OrvikTypeLib/IPort.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "host/serial/PortManager.h"
#include "tests/support/Process.h"
#include "tests/support/PseudoTerminal.h"
#include "toolkit/headless/Application.h"

namespace benchmarks {

namespace {

constexpr int kTrips = 2000;
/// Each way is measured so often by turns, and the best median counts: other load only slows one down.
constexpr int kRounds = 5;
constexpr double kMicroseconds = 1e6;
constexpr std::chrono::seconds kPatience{10};
constexpr std::string_view kCommand = "STST,410,0\r\n";
constexpr std::string_view kReply = "stst,410,0\r\n";

/// Answers every line on the near end of the pair at once, until the pair is hung up.
class EchoResponder {
 public:
  explicit EchoResponder(int descriptor) : thread_([this, descriptor] { Answer(descriptor); }) {}
  EchoResponder(const EchoResponder&) = delete;
  EchoResponder& operator=(const EchoResponder&) = delete;
  ~EchoResponder() {
    const char end = 0;
    // Nobody but the thread reads the pipe, and it is empty: the byte always fits.
    if (write(stop_[1], &end, 1) == 1) thread_.join();
    for (const int descriptor : stop_) close(descriptor);
  }

 private:
  static std::array<int, 2> Pipe() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe to be had");
    return ends;
  }

  void Answer(int descriptor) const {
    std::size_t received = 0;
    for (;;) {
      std::array<pollfd, 2> readable{pollfd{descriptor, POLLIN, 0}, pollfd{stop_[0], POLLIN, 0}};
      if (poll(readable.data(), readable.size(), -1) < 0 || readable[1].revents != 0) return;
      char buffer[256];
      const auto count = read(descriptor, buffer, sizeof buffer);
      if (count <= 0) return;
      received += static_cast<std::size_t>(count);
      for (; received >= kCommand.size(); received -= kCommand.size()) {
        if (write(descriptor, kReply.data(), kReply.size()) < 0) return;
      }
    }
  }

  const std::array<int, 2> stop_ = Pipe();
  std::thread thread_;
};

double MedianMicroseconds(const std::function<void()>& trip) {
  constexpr int kWarmUp = 200;
  for (int i = 0; i < kWarmUp; ++i) trip();
  std::vector<double> times;
  for (int i = 0; i < kTrips; ++i) {
    const auto start = std::chrono::steady_clock::now();
    trip();
    times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() *
                    kMicroseconds);
  }
  return Median(times);
}

/// The least that any program needs for it: write, wait, read.
double Bare(const std::string& device) {
  const host::UniqueFd opened(open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  return MedianMicroseconds([&] {
    if (write(opened.Get(), kCommand.data(), kCommand.size()) < 0)
      throw std::runtime_error("the pseudo-terminal takes no bytes");
    for (std::size_t received = 0; received < kReply.size();) {
      pollfd readable{opened.Get(), POLLIN, 0};
      char buffer[256];
      if (poll(&readable, 1, 10'000) <= 0) throw std::runtime_error("the echo has fallen silent");
      const auto count = read(opened.Get(), buffer, sizeof buffer);
      if (count <= 0) throw std::runtime_error("the echo has gone");
      received += static_cast<std::size_t>(count);
    }
  });
}

double OnOurPort(const std::string& device) {
  const auto application = std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kReal);
  const auto manager =
      std::make_shared<host::serial::PortManager>(application, host::serial::DeviceOpener(application));
  manager->Assign("KELD(IN)", device);
  orvik::IPortManager& ports = *manager;
  const auto port = ports.OpenPort(ports.FindPort("KELD(IN)"), "9600,O,8,1");
  const orvik::Variant parameters = std::vector<std::string>{"410", "0"};
  const auto median = MedianMicroseconds([&] {
    port->Send(port->CreateMessage("STST", parameters));
    const auto deadline = application->Now() + kPatience;
    while (port->ReceivedCount() == 0) {
      if (application->Now() > deadline) throw std::runtime_error("the echo has fallen silent");
      application->WaitMessages(deadline);
    }
    if (port->TakeMessage()->Mnemonic() != "stst") throw std::runtime_error("the echo came back wrong");
  });
  port->Close();
  return median;
}

/// The system's Python, which has the packages.
constexpr char kPython[] = "/usr/bin/python3";
constexpr int kNoPyVisa = 3;

double WithPyVisa(const std::string& device) {
  const auto ended =
      support::Run(kPython, {BENCHMARKS_PATH "/pyvisa_query.py", device, std::to_string(kTrips)});
  if (ended.status == kNoPyVisa)
    throw std::runtime_error(
        "the yardstick is missing; as root: apt-get install python3-pyvisa python3-pyvisa-py python3-serial");
  if (ended.status != 0) throw std::runtime_error("pyvisa_query.py: " + ended.error);
  return std::stod(ended.out);
}

}  // namespace

Figure MeasureRoundTrip(const Context&) {
  support::PseudoTerminal pair;
  const EchoResponder echo(pair.Near());
  const auto [bare, ours] = LeastOfEach(
      kRounds, [&] { return Bare(pair.Path()); }, [&] { return OnOurPort(pair.Path()); });
  return {ours - bare, "us", bare, "bare write, poll and read on the same pair, in us", 60, Bound::kAtMost};
}

// Both are compared beyond the bare trip, so that the echo does not blur the share.
Figure MeasureRoundTripShare(const Context&) {
  support::PseudoTerminal pair;
  const EchoResponder echo(pair.Near());
  const auto [bare, ours, python] = LeastOfEach(
      kRounds, [&] { return Bare(pair.Path()); }, [&] { return OnOurPort(pair.Path()); },
      [&] { return WithPyVisa(pair.Path()); });
  return {(ours - bare) / (python - bare),
          "of a query",
          python - bare,
          "a PyVISA query on the same pair, beyond the bare trip, in us",
          1.0 / 3,
          Bound::kAtMost};
}

}  // namespace benchmarks
