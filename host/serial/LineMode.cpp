#include "host/serial/LineMode.h"

#include <termios.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "host/base/SystemError.h"
#include "host/base/Tr.h"

namespace host::serial {

namespace {

struct Rate {
  int bitsPerSecond;
  speed_t code;
};

constexpr std::array<Rate, 24> kRates{
    {{50, B50},           {75, B75},           {110, B110},         {134, B134},        {150, B150},
     {200, B200},         {300, B300},         {600, B600},         {1200, B1200},      {1800, B1800},
     {2400, B2400},       {4800, B4800},       {9600, B9600},       {19200, B19200},    {38400, B38400},
     {57600, B57600},     {115200, B115200},   {230400, B230400},   {460800, B460800},  {921600, B921600},
     {1000000, B1000000}, {2000000, B2000000}, {3000000, B3000000}, {4000000, B4000000}}};

constexpr tcflag_t kDataBits[] = {CS5, CS6, CS7, CS8};
constexpr std::size_t kFewestDataBits = 5;

// In the order of `Parity`.
constexpr tcflag_t kParities[] = {0, PARENB, PARENB | PARODD, PARENB | PARODD | CMSPAR, PARENB | CMSPAR};
constexpr tcflag_t kParityFlags = PARENB | PARODD | CMSPAR;

}  // namespace

std::string SetLineMode(int descriptor, const LineSettings& settings, bool pseudo) {
  const auto rate = std::find_if(kRates.begin(), kRates.end(),
                                 [&](const Rate& known) { return known.bitsPerSecond == settings.rate; });
  if (rate == kRates.end()) return Tr("the rate %%1 is not supported", {std::to_string(settings.rate)});
  // The hardware sends 1.5 stop bits after five data bits, and 2 after more.
  if ((settings.stopBits == StopBits::kOneAndAHalf) != (settings.dataBits == 5) &&
      settings.stopBits != StopBits::kOne)
    return Tr("1.5 stop bits need 5 data bits, and 2 stop bits need more");

  termios mode{};
  if (tcgetattr(descriptor, &mode) != 0) return Tr("line settings cannot be read: %%1", {SystemError(errno)});
  cfmakeraw(&mode);
  mode.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY | IGNPAR | PARMRK | IGNBRK | BRKINT);
  if (settings.parity != Parity::kNone) mode.c_iflag |= INPCK;
  mode.c_cflag &= ~(kParityFlags | CSIZE | CSTOPB | CRTSCTS);
  mode.c_cflag |= CLOCAL | CREAD | kDataBits[static_cast<std::size_t>(settings.dataBits) - kFewestDataBits] |
                  kParities[static_cast<std::size_t>(settings.parity)];
  if (settings.stopBits != StopBits::kOne) mode.c_cflag |= CSTOPB;
  mode.c_cc[VMIN] = 1;
  mode.c_cc[VTIME] = 0;
  cfsetispeed(&mode, rate->code);
  cfsetospeed(&mode, rate->code);

  // A pseudo-terminal drops the parity bit and fails with EINVAL if that was the only change.
  if (tcsetattr(descriptor, TCSANOW, &mode) != 0 && !(pseudo && errno == EINVAL))
    return Tr("line settings cannot be set: %%1", {SystemError(errno)});
  termios taken{};
  if (tcgetattr(descriptor, &taken) != 0)
    return Tr("line settings cannot be read: %%1", {SystemError(errno)});
  const tcflag_t counted = CSIZE | CSTOPB | (pseudo ? 0 : kParityFlags);
  if ((taken.c_cflag & counted) != (mode.c_cflag & counted) || cfgetospeed(&taken) != rate->code)
    return Tr("the device does not support this rate, parity, data bits and stop bits");
  return {};
}

}  // namespace host::serial
