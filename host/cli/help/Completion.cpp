#include "host/cli/help/Completion.h"

#include <CLI/CLI.hpp>
#include <functional>

#include "host/base/TextColumns.h"
#include "host/cli/help/CommandLineView.h"
#include "host/cli/help/OptionValues.h"

namespace host::cli {

namespace {

/// In single quotes for a shell.
std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

/// A list of words for "compgen", which parts them at line ends: a word may hold blanks.
std::string ListOf(const std::vector<std::string>& words) {
  std::string list;
  for (const auto& word : words) list += (list.empty() ? "" : "\\n") + word;
  return "$'" + list + "'";
}

/// Calls `take` with each command and its path: "run", "archive add".
void Walk(const CLI::App& command, const std::string& path,
          const std::function<void(const CLI::App&, const std::string&)>& take) {
  for (const auto* below : CommandsOf(command)) {
    const auto name = path + (path.empty() ? "" : " ") + below->get_name();
    take(*below, name);
    Walk(*below, name, take);
  }
}

/// What "compgen" is asked for a value of the option.
std::string BashValuesOf(const CLI::Option& option) {
  if (NamesDocument(option)) return "_orvik_bench_documents";
  if (NamesElement(option)) return "_orvik_bench_elements";
  const auto words = WordsFor(option);
  std::string asked = NamesFolder(option) ? "-d " : NamesFile(option) ? "-f " : "";
  if (!words.empty() || asked.empty()) asked += "-W " + ListOf(words) + " ";
  return "COMPREPLY=( $(compgen " + asked + "-- \"$current\") )";
}

std::string BashOptions(const CLI::App& command, const std::string& path) {
  std::string cases;
  for (const auto* at = &command; at; at = at->get_parent()) {
    for (const auto* option : OptionsOf(*at)) {
      if (!TakesValue(*option)) continue;
      std::string pattern;
      for (const auto& spelling : SpellingsOf(*option))
        pattern += (pattern.empty() ? "" : "|") + Quoted(path + ":" + spelling);
      cases += "    " + pattern + ") " + BashValuesOf(*option) + "; return ;;\n";
    }
  }
  return cases;
}

/// The options of the command that take several values, as patterns of a "case".
std::string BashSeveral(const CLI::App& command, const std::string& path) {
  std::string patterns;
  for (const auto* option : OptionsOf(command)) {
    if (option->get_expected_max() <= 1 || !option->get_allow_extra_args()) continue;
    for (const auto& spelling : SpellingsOf(*option))
      patterns += "      " + Quoted(path + ":" + spelling) + ") previous=$word ;;\n";
  }
  return patterns;
}

/// What is offered where no option is expected: commands, what the first argument may be, or files.
std::string BashArguments(const CLI::App& command, const std::string& path) {
  const auto oneOf = [](const std::vector<std::string>& words) {
    return "COMPREPLY=( $(compgen -W " + ListOf(words) + " -- \"$current\") )";
  };
  const auto names = CommandNamesOf(command);
  const auto positionals = PositionalsOf(command);
  const auto* first = positionals.empty() ? nullptr : positionals.front();
  const auto offer = !names.empty()                       ? oneOf(names)
                     : first && NamesCommand(*first)      ? oneOf(CommandNamesOf(*command.get_parent()))
                     : first && NamesDocument(*first)     ? BashValuesOf(*first)
                     : first && !WordsFor(*first).empty() ? BashValuesOf(*first)
                                                          : "COMPREPLY=( $(compgen -f -- \"$current\") )";
  return "    " + Quoted(path) + ") " + offer + " ;;\n";
}

/// Documents, and the folders on the way to them; and the elements of the document that the line names. Where
/// bash only lists what can be given, the elements have their names.
std::string BashFunctions() {
  return "_orvik_bench_documents() {\n"
         "  COMPREPLY=( $(compgen -f -X '!*.orvik' -- \"$current\") $(compgen -d -- \"$current\") )\n"
         "}\n"
         "_orvik_bench_elements() {\n"
         "  local word document= number name\n"
         "  for word in \"${COMP_WORDS[@]}\"; do\n"
         "    word=${word//[\\\\\\\"\\']/}\n"
         "    [[ $word == '~/'* ]] && word=$HOME/${word#'~/'}\n"
         "    [[ -z $document && $word == *.orvik ]] && document=$word\n"
         "  done\n"
         "  [[ -n $document ]] || return\n"
         "  while IFS=$'\\t' read -r number name; do\n"
         "    [[ $number == \"$current\"* ]] || continue\n"
         "    [[ ${COMP_TYPE:-} == 63 ]] && number=\"$number  ($name)\"\n"
         "    COMPREPLY+=( \"$number\" )\n"
         "  done < <(\"${COMP_WORDS[0]}\" element-numbers \"$document\" 2>/dev/null)\n"
         "  compopt -o nosort 2>/dev/null\n"
         "}\n";
}

}  // namespace

std::string BashCompletion(const CLI::App& program) {
  std::string paths;
  auto options = "    '') offered=" + ListOf(SpellingsAt(program)) + " ;;\n";
  auto values = BashOptions(program, "");
  auto arguments = BashArguments(program, "");
  std::string several;
  Walk(program, "", [&](const CLI::App& command, const std::string& path) {
    paths += "      " + Quoted(" " + path) + ") chosen=" + Quoted(path) + " ;;\n";
    options += "    " + Quoted(path) + ") offered=" + ListOf(SpellingsAt(command)) + " ;;\n";
    values += BashOptions(command, path);
    arguments += BashArguments(command, path);
    several += BashSeveral(command, path);
  });
  const auto& name = program.get_name();
  // Do not name a variable "path" or "options": zsh uses them for its search path and settings.
  return "# Completion of " + name +
         " for bash: source it, or put it into the folder of your completions.\n" + BashFunctions() +
         "_orvik_bench() {\n"
         "  local IFS=$'\\n' current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  local chosen= word place offered\n"
         "  # --option=value is three words\n"
         "  if [[ $current == = ]]; then\n"
         "    current=\n"
         "  elif [[ $previous == = && COMP_CWORD -ge 2 ]]; then\n"
         "    previous=${COMP_WORDS[COMP_CWORD-2]}\n"
         "  fi\n"
         "  for (( place = 1; place < COMP_CWORD; place++ )); do\n"
         "    word=${COMP_WORDS[place]}\n"
         "    case \"${chosen:+ $chosen} $word\" in\n" +
         paths +
         "    esac\n"
         "  done\n"
         "  # A further value of an option that takes several\n"
         "  for (( place = COMP_CWORD - 1; place > 0; place-- )); do\n"
         "    word=${COMP_WORDS[place]}\n"
         "    [[ $word == -* ]] || continue\n"
         "    case \"$chosen:$word\" in\n" +
         several +
         "    esac\n"
         "    break\n"
         "  done\n"
         "  case \"$chosen:$previous\" in\n" +
         values +
         "  esac\n"
         "  if [[ $current == -* ]]; then\n"
         "    case \"$chosen\" in\n" +
         options +
         "    esac\n"
         "    COMPREPLY=( $(compgen -W \"$offered\" -- \"$current\") )\n"
         "    return\n"
         "  fi\n"
         "  case \"$chosen\" in\n" +
         arguments +
         "  esac\n"
         "}\n"
         "complete -o filenames -F _orvik_bench " +
         name + "\n";
}

std::string ZshCompletion(const CLI::App& program) {
  return "# Completion of " + program.get_name() +
         " for zsh: source it.\n"
         "autoload -U +X compinit && compinit\n"
         "autoload -U +X bashcompinit && bashcompinit\n" +
         BashCompletion(program);
}

namespace {

constexpr char kFishDocuments[] = " -a '(__orvik_bench_documents)'";

/// Documents, and the folders on the way to them; and the elements of the document that the line names, with
/// their names beside the numbers.
std::string FishFunctions(const std::string& program) {
  return "function __orvik_bench_documents\n"
         "  set -l token (commandline -ct)\n"
         "  for name in $token*.orvik $token*/\n"
         "    echo $name\n"
         "  end\n"
         "end\n"
         "function __orvik_bench_elements\n"
         "  for word in (commandline -opc)\n"
         "    if string match -q -- '*.orvik' $word\n"
         "      " +
         program +
         " element-numbers $word 2>/dev/null\n"
         "      return\n"
         "    end\n"
         "  end\n"
         "end\n";
}

}  // namespace

std::string FishCompletion(const CLI::App& program) {
  const auto begin = "complete -c " + program.get_name();
  const auto options = [&](const CLI::App& command, const std::string& condition) {
    std::string lines;
    for (const auto* option : OptionsOf(command)) {
      const auto words = WordsFor(*option);
      lines += begin + condition;
      for (const auto& name : option->get_snames()) lines += " -s " + name;
      for (const auto& name : option->get_lnames()) lines += " -l " + name;
      if (TakesValue(*option)) lines += NamesFile(*option) || NamesFolder(*option) ? " -rF" : " -x";
      if (NamesDocument(*option)) lines += kFishDocuments;
      if (NamesElement(*option)) lines += " -a '(__orvik_bench_elements)'";
      if (!words.empty()) lines += " -a " + Quoted(Joined(words, " "));
      lines += " -d " + Quoted(option->get_description()) + "\n";
    }
    return lines;
  };
  auto text = "# Completion of " + program.get_name() + " for fish.\n" + FishFunctions(program.get_name()) +
              options(program, "");
  Walk(program, "", [&](const CLI::App& command, const std::string& path) {
    const auto blank = path.rfind(' ');
    const auto above = blank == std::string::npos ? std::string() : path.substr(0, blank);
    const auto condition =
        above.empty() ? std::string("__fish_use_subcommand") : "__fish_seen_subcommand_from " + above;
    text += begin + " -f -n " + Quoted(condition) + " -a " + command.get_name() + " -d " +
            Quoted(command.get_description()) + "\n" +
            options(command, " -n " + Quoted("__fish_seen_subcommand_from " + command.get_name()));
    const auto positionals = PositionalsOf(command);
    if (!positionals.empty() && NamesDocument(*positionals.front()))
      text += begin + " -f -n " + Quoted("__fish_seen_subcommand_from " + command.get_name()) +
              kFishDocuments + "\n";
  });
  return text;
}

}  // namespace host::cli
