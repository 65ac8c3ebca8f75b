#include "host/cli/help/ManPage.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <sstream>

#include "host/cli/help/CommandLineView.h"

namespace host::cli {

namespace {

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// A line of text, escaped so that it cannot be read as a roff request.
std::string Line(const std::string& text) {
  const bool request = !text.empty() && (text[0] == '.' || text[0] == '\'');
  return (request ? "\\&" : "") + Escaped(text) + "\n";
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fR"; }
std::string Italic(const std::string& text) { return "\\fI" + Escaped(text) + "\\fR"; }

std::string UpperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); });
  return text;
}

std::string HeadingOf(const std::string& page, const std::string& version) {
  return ".TH " + UpperCase(page) + " 1 \"\" \"" + version + "\" \"User Commands\"\n";
}

/// Text with its own line breaks: the examples and remarks below a help text.
std::string Laid(const std::string& text) {
  std::string laid = ".nf\n";
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) laid += line.empty() ? "\n" : Line(line);
  return laid + ".fi\n";
}

std::string SynopsisOf(const CLI::App& command, const std::string& typed) {
  std::string synopsis = ".SH SYNOPSIS\n" + Bold(typed);
  for (const auto* option : PositionalsOf(command))
    synopsis += " " + Italic(option->get_name(true)) + (option->get_expected_max() > 1 ? "..." : "");
  if (!CommandsOf(command).empty()) synopsis += " " + Italic("COMMAND");
  return synopsis + " [" + Italic("OPTION") + "]...\n";
}

std::string EntryOf(const CLI::Option& option) {
  std::string names;
  for (const auto& spelling : SpellingsOf(option)) names += (names.empty() ? "" : ", ") + Bold(spelling);
  if (TakesValue(option)) names += " " + Italic(option.get_type_name());
  return ".TP\n" + names + "\n" + Line(option.get_description());
}

std::string OptionsSection(const CLI::App& command) {
  std::string section;
  for (const auto* option : PositionalsOf(command))
    section += ".TP\n" + Italic(option->get_name(true)) + "\n" + Line(option->get_description());
  for (const auto* option : OptionsOf(command)) section += EntryOf(*option);
  return section.empty() ? section : ".SH OPTIONS\n" + section;
}

std::string NotesOf(const CLI::App& command) {
  const auto notes = command.get_footer();
  return notes.empty() ? notes : ".SH NOTES AND EXAMPLES\n" + Laid(notes);
}

std::string NameSection(const std::string& page, const std::string& purpose) {
  // The purpose without its full stop, as "whatis" has it.
  const auto end = purpose.find_last_not_of('.');
  return ".SH NAME\n" + Escaped(page) + " \\- " + Escaped(purpose.substr(0, end + 1)) + "\n";
}

ManPage CommandPage(const CLI::App& program, const CLI::App& command) {
  const auto page = program.get_name() + "-" + command.get_name();
  std::string text = HeadingOf(page, program.version()) + NameSection(page, command.get_description()) +
                     SynopsisOf(command, program.get_name() + " " + command.get_name());
  for (const auto* below : CommandsOf(command)) {
    text += SynopsisOf(*below, program.get_name() + " " + command.get_name() + " " + below->get_name())
                .substr(std::string(".SH SYNOPSIS\n").size())
                .insert(0, ".br\n");
  }
  text += OptionsSection(command);
  for (const auto& line : InheritedOptions(command)) text += ".PP\n" + Line(line);
  for (const auto* below : CommandsOf(command)) {
    text += ".SH " + UpperCase(below->get_name()) + "\n" + Line(below->get_description());
    for (const auto* option : PositionalsOf(*below))
      text += ".TP\n" + Italic(option->get_name(true)) + "\n" + Line(option->get_description());
    for (const auto* option : OptionsOf(*below)) text += EntryOf(*option);
    if (const auto notes = below->get_footer(); !notes.empty()) text += ".PP\n" + Laid(notes);
  }
  text += NotesOf(command) + ".SH SEE ALSO\n.BR " + Escaped(program.get_name()) + " (1)\n";
  return {page + ".1", text};
}

ManPage ProgramPage(const CLI::App& program) {
  const auto& page = program.get_name();
  std::string text = HeadingOf(page, program.version()) + NameSection(page, program.get_description()) +
                     SynopsisOf(program, page) + ".SH COMMANDS\n";
  for (const auto* command : CommandsOf(program))
    text += ".TP\n" + Bold(command->get_name()) + "\n" + Line(command->get_description());
  text += OptionsSection(program) + NotesOf(program) + ".SH SEE ALSO\n";
  std::string others;
  for (const auto* command : CommandsOf(program))
    others += ".BR " + Escaped(page + "-" + command->get_name()) + " (1),\n";
  return {page + ".1", text + others + ".BR keld\\-sim (1)\n"};
}

}  // namespace

std::vector<ManPage> ManPages(const CLI::App& program) {
  std::vector<ManPage> pages{ProgramPage(program)};
  for (const auto* command : CommandsOf(program)) pages.push_back(CommandPage(program, *command));
  return pages;
}

}  // namespace host::cli
