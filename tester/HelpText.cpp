#include "tester/Options.h"

#ifndef KELD_SIM_VERSION
#error "KELD_SIM_VERSION is to be set by the build"
#endif

namespace sim {

std::string HelpText() {
  std::string profiles;
  for (const BuiltInProfile& profile : BuiltInProfiles()) {
    std::string name(profile.name);
    name.resize(15, ' ');
    profiles += "  " + name + std::string(profile.purpose) + "\n";
  }
  return "keld-sim: a simulated KELD electrical-safety tester on a pseudo-terminal\n"
         "\n"
         "Usage: keld-sim --link PATH [options]\n"
         "\n"
         "A program that drives a tester opens PATH as its serial port. keld-sim answers there as a tester\n"
         "does that measures the equipment of a profile, until it is ended with Ctrl-C or SIGTERM.\n"
         "\n"
         "Options:\n"
         "  --link PATH          where the symbolic link to the pseudo-terminal is to stand; only a link "
         "that an\n"
         "                       earlier tester left there is replaced; removed at the end\n"
         "  --profile FILE|NAME  the equipment under test: a built-in profile (below) or a profile file\n"
         "                       (write ./NAME for a file that is called like a built-in one);\n"
         "                       default " +
         std::string(kDefaultProfile) +
         "\n"
         "  --faults FILE        go wrong as the fault script says\n"
         "  --serial S           serial number instead of the profile's\n"
         "  --time-scale X       divide measuring times and delays by X (0.001 to 1000000000); the program "
         "that\n"
         "                       drives the tester must divide its time-outs likewise\n"
         "  --trace FILE         add a line to FILE for each line received and sent\n"
         "  --exit-with-parent   end when the program that started keld-sim ends\n"
         "  --help, -h           show this text\n"
         "  --version            show the version\n"
         "\n"
         "Built-in profiles:\n" +
         profiles +
         "\n"
         "A profile file, key = value, says what the tester reads for each test, and for each lead:\n"
         "  based-on = sound-class-1\n"
         "  410 = 0.285 Ohm\n"
         "  630 = 9999 µA overload 1200 ms\n"
         "  910/3 = 47 µA\n"
         "  lacks = 1220, 1245\n"
         "\n"
         "A fault script, at COMMAND [NTH] FAULT, spoils replies:\n"
         "  at GRES 1 delay 2500\n"
         "  at STST 2 drop\n"
         "  at ANY 7 hang-up\n"
         "The faults are delay MS, drop, wrong-mnemonic, error N, hang-up, double, truncate N, garble, reply "
         "TEXT.\n"
         "\n"
         "Examples:\n"
         "  keld-sim --link /tmp/tester\n"
         "  keld-sim --link /tmp/tester --profile broken-earth --time-scale 20 --trace tester.trace\n"
         "  keld-sim --link /tmp/tester --profile ./ventilator.profile --serial 0417 --faults late.faults\n"
         "Then, in a second terminal:\n"
         "  exec 3<>/tmp/tester; printf 'IREM\\r\\n' >&3; head -n 1 <&3\n"
         "\n"
         "Exit status: 0 ended as asked, or hung up by a fault; 3 bad option, profile, fault script or "
         "link;\n"
         "4 the system refused something (the message says what).\n";
}

std::string VersionText() { return "keld-sim " KELD_SIM_VERSION "\n"; }

}  // namespace sim
