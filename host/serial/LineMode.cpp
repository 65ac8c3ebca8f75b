#include "host/serial/LineMode.h"

#include <termios.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "host/services/SystemError.h"
#include "host/services/Tr.h"

namespace bench {

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

tcflag_t DataBitsFlag(int dataBits) {
  switch (dataBits) {
    case 5:
      return CS5;
    case 6:
      return CS6;
    case 7:
      return CS7;
    default:
      return CS8;
  }
}

tcflag_t ParityFlags(Parity parity) {
  switch (parity) {
    case Parity::kEven:
      return PARENB;
    case Parity::kOdd:
      return PARENB | PARODD;
    case Parity::kMark:
      return PARENB | PARODD | CMSPAR;
    case Parity::kSpace:
      return PARENB | CMSPAR;
    case Parity::kNone:
      break;
  }
  return 0;
}

constexpr tcflag_t kParityFlags = PARENB | PARODD | CMSPAR;

}  // namespace

std::string SetLineMode(int descriptor, const LineSettings& settings, bool pseudo) {
  const auto rate = std::find_if(kRates.begin(), kRates.end(),
                                 [&](const Rate& known) { return known.bitsPerSecond == settings.rate; });
  if (rate == kRates.end()) return Tr("does not know the rate %%1", {std::to_string(settings.rate)});
  // The hardware gives five data bits one and a half stop bits, and the others two.
  if ((settings.stopBits == StopBits::kOneAndAHalf) != (settings.dataBits == 5) &&
      settings.stopBits != StopBits::kOne)
    return Tr("1.5 stop bits go with 5 data bits, and 2 stop bits with more");

  termios mode{};
  if (tcgetattr(descriptor, &mode) != 0) return Tr("does not tell its settings: %%1", {SystemError(errno)});
  cfmakeraw(&mode);
  mode.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY | IGNPAR | PARMRK | IGNBRK | BRKINT);
  if (settings.parity != Parity::kNone) mode.c_iflag |= INPCK;
  mode.c_cflag &= ~(kParityFlags | CSIZE | CSTOPB | CRTSCTS);
  mode.c_cflag |= CLOCAL | CREAD | DataBitsFlag(settings.dataBits) | ParityFlags(settings.parity);
  if (settings.stopBits != StopBits::kOne) mode.c_cflag |= CSTOPB;
  mode.c_cc[VMIN] = 1;
  mode.c_cc[VTIME] = 0;
  cfsetispeed(&mode, rate->code);
  cfsetospeed(&mode, rate->code);

  // A pseudo-terminal answers EINVAL when the parity bit, which it drops, was the only thing to change.
  if (tcsetattr(descriptor, TCSANOW, &mode) != 0 && !(pseudo && errno == EINVAL))
    return Tr("does not take the settings: %%1", {SystemError(errno)});
  termios taken{};
  if (tcgetattr(descriptor, &taken) != 0) return Tr("does not tell its settings: %%1", {SystemError(errno)});
  const tcflag_t counted = CSIZE | CSTOPB | (pseudo ? 0 : kParityFlags);
  if ((taken.c_cflag & counted) != (mode.c_cflag & counted) || cfgetospeed(&taken) != rate->code)
    return Tr("does not take the rate, parity, data bits and stop bits asked for");
  return {};
}

}  // namespace bench
