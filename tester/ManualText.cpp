#include "tester/BuiltInProfiles.h"
#include "tester/Fault.h"
#include "tester/Manual.h"

namespace sim {

namespace {

using Block = Manual::Block;
using Section = Manual::Section;

Block Paragraph(std::string text) { return {std::move(text), {}, {}}; }
Block Example(std::vector<std::string> lines) { return {{}, std::move(lines), {}}; }
Block List(std::vector<Manual::Entry> entries) { return {{}, {}, std::move(entries)}; }

Section Description() {
  return {
      "Description",
      {Paragraph("A program that drives a tester opens PATH as its serial port. keld-sim answers there as "
                 "a tester does that measures the equipment of a profile, until it is ended with Ctrl-C, "
                 "SIGTERM or SIGHUP. It prints one line when a client may open the port. Clients may "
                 "come and go. On request it makes the faults of a script, random ones, or those "
                 "of a tester in a wire log.")}};
}

Section OptionsSection() {
  return {
      "Options",
      {List({
          {"--link PATH",
           "path of the symbolic link to the pseudo-terminal; only a link that an earlier tester "
           "left there is replaced, and not while that one runs (exit status 3); removed at the end"},
          {"--profile FILE|NAME",
           "the equipment under test: a built-in profile or a profile file (write ./NAME for a file that is "
           "called like a built-in one); default " +
               std::string(kDefaultProfile)},
          {"--faults FILE", "make the faults of the script"},
          {"--fault-seed N",
           "make random faults; the same N makes the same faults (0 to 18446744073709551615)"},
          {"--fault-rate R",
           "with --fault-seed: the share of the replies that is spoiled, above 0 and up to 1; "
           "default 0.1"},
          {"--replay FILE", "answer as the tester did in the wire log that orvik-bench wrote"},
          {"--serial S", "serial number instead of the profile's"},
          {"--time-scale X",
           "divide measuring times and delays by X (0.001 to 1000000000); the program that drives the tester "
           "must divide its time-outs likewise"},
          {"--trace FILE",
           "add a line to FILE for each line received and sent: time (UTC), recv, sent, lost or note, text"},
          {"--exit-with-parent", "end when the program that started keld-sim ends"},
          {"--help, -h", "show this text"},
          {"--help-man", "print it as a manual page for man"},
          {"--version", "show the version"},
      })}};
}

Section Profiles() {
  std::vector<Manual::Entry> names;
  for (const BuiltInProfile& profile : BuiltInProfiles())
    names.push_back({std::string(profile.name), std::string(profile.purpose)});
  return {
      "Profiles",
      {Paragraph("The built-in ones:"), List(std::move(names)),
       Paragraph("A profile file, key = value, says what the tester reads for each test, and for each "
                 "lead:"),
       Example({"based-on = sound-class-1", "410 = 0.285 Ohm", "630 = 9999 µA overload 1200 ms",
                "910/3 = 47 µA", "lacks = 1220, 1245"}),
       Paragraph("Further keys: name, type, serial, firmware, and time (the measuring time of this file's "
                 "readings, such as 700 ms).")}};
}

Section FaultScripts() {
  std::vector<Manual::Entry> forms;
  for (const FaultForm& form : FaultForms())
    forms.push_back({std::string(form.syntax), std::string(form.meaning)});
  return {
      "Fault scripts",
      {Paragraph("Each line, at COMMAND [NTH] FAULT, spoils the reply to a command. COMMAND is one as sent, "
                 "or ANY; NTH counts its occurrences since the start, from 1; without it every one is hit. "
                 "Faults at the same reply work in their order. The tester itself obeys the command "
                 "even if its reply is spoiled."),
       Example({"at GRES 1 delay 2500", "at STST 2 drop", "at ANY 7 hang-up"}),
       Paragraph("What the reply does:"), List(std::move(forms))}};
}

Section RandomFaults() {
  return {
      "Random faults",
      {Paragraph("With --fault-seed each reply is spoiled with the probability of --fault-rate, by any "
                 "fault but reply and hang-up. What becomes of the n-th command depends on seed, rate and n "
                 "alone. The first line printed repeats seed and rate; each fault is printed as the line "
                 "of a fault script that does the same, so that one of them can be had again alone:"),
       Example({"keld-sim: fault: at ANY 7 delay 2300"})}};
}

Section ReplaySection() {
  return {
      "Replay",
      {Paragraph(
          "With --replay the log's commands are followed in order: to each command the same lines "
          "come, dropped ones too, as long after it as they did then (divided by the time-scale; the log of "
          "a run with --time-scale has shortened times already: replay it without, and run with "
          "the same). "
          "Where the port failed the cable is pulled; it is plugged in again a second later when "
          "the log goes on. A command that the log does not hold at this point is answered as the "
          "simulated tester does, and said on standard error; IREM, which begins a session, goes on "
          "at the log's next session. What is begun and never ended by a line end does not stand in "
          "a log, and does not come again.")}};
}

Section Examples() {
  return {
      "Examples",
      {Example(
           {"keld-sim --link /tmp/tester",
            "keld-sim --link /tmp/tester --profile broken-earth --time-scale 20 --trace tester.trace",
            "keld-sim --link /tmp/tester --profile ./ventilator.profile --serial 0417 --faults late.faults",
            "keld-sim --link /tmp/tester --fault-seed 42 --fault-rate 0.3",
            "keld-sim --link /tmp/tester --replay ventilator.orvik.wire.log"}),
       Paragraph("Then, in a second terminal:"),
       Example({"orvik-bench run ventilator.orvik --port /tmp/tester",
                "exec 3<>/tmp/tester; printf 'IREM\\r\\n' >&3; head -n 1 <&3"})}};
}

Section ExitStatus() {
  return {
      "Exit status",
      {List({{"0", "ended as asked, or hung up by a fault"},
             {"3",
              "bad option, profile, fault script, wire log or link; the message names the option, or file "
              "and line, and says what to do"},
             {"4", "the system refused something; the message says what"}})}};
}

}  // namespace

Manual TheManual() {
  return {"a simulated KELD electrical-safety tester on a pseudo-terminal",
          "keld-sim --link PATH [options]",
          {Description(), OptionsSection(), Profiles(), FaultScripts(), RandomFaults(), ReplaySection(),
           Examples(), ExitStatus()}};
}

}  // namespace sim
