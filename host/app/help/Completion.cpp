#include "host/app/help/Completion.h"

#include <functional>

#include "host/app/TextColumns.h"
#include "host/app/help/CommandLineView.h"
#include "host/app/help/OptionValues.h"

namespace bench {

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

/// What is offered where no option stands: commands, the words of the first argument, or files.
std::string BashArguments(const CLI::App& command, const std::string& path) {
  const auto names = CommandNamesOf(command);
  const auto positionals = PositionalsOf(command);
  const auto offer = !names.empty() ? "COMPREPLY=( $(compgen -W " + ListOf(names) + " -- \"$current\") )"
                     : !positionals.empty() && !WordsFor(*positionals.front()).empty()
                         ? BashValuesOf(*positionals.front())
                         : "COMPREPLY=( $(compgen -f -- \"$current\") )";
  return "    " + Quoted(path) + ") " + offer + " ;;\n";
}

}  // namespace

std::string BashCompletion(const CLI::App& program) {
  std::string paths;
  auto options = "    '') options=" + ListOf(SpellingsAt(program)) + " ;;\n";
  auto values = BashOptions(program, "");
  auto arguments = BashArguments(program, "");
  Walk(program, "", [&](const CLI::App& command, const std::string& path) {
    paths += "      " + Quoted(" " + path) + ") path=" + Quoted(path) + " ;;\n";
    options += "    " + Quoted(path) + ") options=" + ListOf(SpellingsAt(command)) + " ;;\n";
    values += BashOptions(command, path);
    arguments += BashArguments(command, path);
  });
  const auto& name = program.get_name();
  return "# Completion of " + name +
         " for bash: source it, or put it into the folder of your completions.\n" +
         "_orvik_bench() {\n"
         "  local IFS=$'\\n' current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  local path= word place options\n"
         "  # --option=value is three words\n"
         "  if [[ $current == = ]]; then\n"
         "    current=\n"
         "  elif [[ $previous == = && COMP_CWORD -ge 2 ]]; then\n"
         "    previous=${COMP_WORDS[COMP_CWORD-2]}\n"
         "  fi\n"
         "  for (( place = 1; place < COMP_CWORD; place++ )); do\n"
         "    word=${COMP_WORDS[place]}\n"
         "    case \"${path:+ $path} $word\" in\n" +
         paths +
         "    esac\n"
         "  done\n"
         "  case \"$path:$previous\" in\n" +
         values +
         "  esac\n"
         "  if [[ $current == -* ]]; then\n"
         "    case \"$path\" in\n" +
         options +
         "    esac\n"
         "    COMPREPLY=( $(compgen -W \"$options\" -- \"$current\") )\n"
         "    return\n"
         "  fi\n"
         "  case \"$path\" in\n" +
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
      if (!words.empty()) lines += " -a " + Quoted(Joined(words, " "));
      lines += " -d " + Quoted(option->get_description()) + "\n";
    }
    return lines;
  };
  auto text = "# Completion of " + program.get_name() + " for fish.\n" + options(program, "");
  Walk(program, "", [&](const CLI::App& command, const std::string& path) {
    const auto blank = path.rfind(' ');
    const auto above = blank == std::string::npos ? std::string() : path.substr(0, blank);
    const auto condition =
        above.empty() ? std::string("__fish_use_subcommand") : "__fish_seen_subcommand_from " + above;
    text += begin + " -f -n " + Quoted(condition) + " -a " + command.get_name() + " -d " +
            Quoted(command.get_description()) + "\n" +
            options(command, " -n " + Quoted("__fish_seen_subcommand_from " + command.get_name()));
  });
  return text;
}

}  // namespace bench
