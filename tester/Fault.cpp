#include "tester/Fault.h"

#include <algorithm>

#include "tester/LineReader.h"
#include "tester/Text.h"
#include "tester/TextFile.h"

namespace sim {

namespace {

using Argument = FaultForm::Argument;
using Time = FaultForm::Time;

const FaultForm& FormOf(FaultKind kind) {
  const auto& forms = FaultForms();
  return *std::find_if(forms.begin(), forms.end(), [&](const FaultForm& form) { return form.kind == kind; });
}

/// "delay MS, drop, ... or unplug MS"
std::string KnownFaults() {
  std::string list;
  for (const FaultForm& form : FaultForms()) {
    if (!list.empty()) list += &form == &FaultForms().back() ? " or " : ", ";
    list += form.syntax;
  }
  return list;
}

int HighestOf(Argument argument) {
  return argument == Argument::Bytes ? static_cast<int>(LineReader::kMaxLine) : kHighestErrorNumber;
}

/// Cuts a number off the front of `text`.
int TakeNumber(std::string_view& text, int highest, std::string_view word, const std::string& name,
               int line) {
  const std::string_view written = TakeWord(text);
  const auto value = ParseNumber(written, highest);
  if (!value) {
    FailAt(name, line,
           Quoted(word) + " needs a whole number from 0 to " + std::to_string(highest) + " and has " +
               Quoted(written));
  }
  return *value;
}

}  // namespace

const std::vector<FaultForm>& FaultForms() {
  static const std::vector<FaultForm> forms = {
      {"delay", FaultKind::Delay, Argument::None, Time::Required, "delay MS",
       "comes MS milliseconds later (divided by the time-scale); other replies overtake it"},
      {"drop", FaultKind::Drop, Argument::None, Time::None, "drop", "does not come"},
      {"double", FaultKind::Double, Argument::None, Time::None, "double", "comes twice"},
      {"truncate", FaultKind::Truncate, Argument::Bytes, Time::None, "truncate N",
       "ends after N bytes, without its line end"},
      {"shorten", FaultKind::Shorten, Argument::Bytes, Time::None, "shorten N",
       "ends after N bytes, with its line end"},
      {"stall", FaultKind::Stall, Argument::Bytes, Time::Optional, "stall N [MS]",
       "stops after N bytes and continues MS later; without MS never"},
      {"garble", FaultKind::Garble, Argument::None, Time::None, "garble",
       "has a control byte in its middle, so that the receiver drops it"},
      {"noise", FaultKind::Noise, Argument::None, Time::Optional, "noise [MS]",
       "has a line of bytes that are no message before it; with MS that long after it"},
      {"wrong-mnemonic", FaultKind::WrongMnemonic, Argument::None, Time::None, "wrong-mnemonic",
       "comes under the mnemonic xxxx"},
      {"error", FaultKind::Error, Argument::ErrorNumber, Time::None, "error N", "is ERRM,N"},
      {"reply", FaultKind::Reply, Argument::Text, Time::None, "reply TEXT", "is the line TEXT"},
      {"forget", FaultKind::Forget, Argument::None, Time::None, "forget",
       "comes, but the tester has left remote mode then, as one that was switched off and on"},
      {"hang-up", FaultKind::HangUp, Argument::None, Time::None, "hang-up",
       "does not come, and the cable is pulled for good: the link is removed and keld-sim ends"},
      {"unplug", FaultKind::Unplug, Argument::None, Time::Required, "unplug MS",
       "does not come, and the cable is pulled; MS later a new pseudo-terminal is at the link, and the "
       "tester is as it was"},
  };
  return forms;
}

Fault ParseFault(std::string_view text, const std::string& name, int line) {
  const std::string_view word = TakeWord(text);
  const auto& forms = FaultForms();
  const auto form =
      std::find_if(forms.begin(), forms.end(), [&](const FaultForm& known) { return known.word == word; });
  if (form == forms.end()) FailAt(name, line, Quoted(word) + " is not a fault; use " + KnownFaults());

  Fault fault{form->kind, 0, {}, {}};
  if (form->argument == Argument::Text) {
    if (text.empty())
      FailAt(name, line, "'reply' needs the line to send instead, such as: reply gres,410,0,9,0,Ohm");
    fault.text = Utf8ToLatin1(text).value();
    if (fault.text.size() > kLongestReplyText)
      FailAt(name, line,
             "the line after 'reply' is too long; give at most " + std::to_string(kLongestReplyText) +
                 " characters");
    return fault;
  }
  if (form->argument != Argument::None)
    fault.number = TakeNumber(text, HighestOf(form->argument), word, name, line);
  if (form->time == Time::Required || (form->time == Time::Optional && !text.empty()))
    fault.ms = TakeNumber(text, kLongestFaultTime, word, name, line);
  if (!text.empty()) FailAt(name, line, Quoted(text) + " is too much after " + Quoted(word) + "; remove it");
  return fault;
}

std::string FaultText(const Fault& fault) {
  const FaultForm& form = FormOf(fault.kind);
  std::string text(form.word);
  if (form.argument == Argument::Text) return text + " " + Latin1ToUtf8(fault.text);
  if (form.argument != Argument::None) text += " " + std::to_string(fault.number);
  if (fault.ms) text += " " + std::to_string(*fault.ms);
  return text;
}

}  // namespace sim
