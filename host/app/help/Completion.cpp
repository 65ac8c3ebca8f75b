#include "host/app/help/Completion.h"

#include <algorithm>
#include <functional>

#include "host/app/help/CommandLineView.h"

namespace bench {

namespace {

/// What the value of an option may be, told by the name of its type.
struct Values {
  bool files = false;
  bool folders = false;
  std::string words;  ///< separated by blanks
};

Values ValuesOf(const CLI::Option& option) {
  const auto type = option.get_type_name();
  if (type == "DIR" || type == "FOLDER") return {false, true, {}};
  if (type.find('|') != std::string::npos) {
    auto words = type;
    std::replace(words.begin(), words.end(), '|', ' ');
    return {false, false, words};
  }
  const bool file = type == "FILE" || type == "OUT" || type == "LOG" || type == "DEVICE" ||
                    type == "[PROFILE]" || type.ends_with(".svg") || option.get_name(true).ends_with("FILE");
  return {file, false, {}};
}

/// In single quotes for a shell.
std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::string WordsOf(const CLI::App& command) {
  std::string words;
  for (const auto* below : CommandsOf(command)) words += " " + below->get_name();
  return words.empty() ? words : words.substr(1);
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

std::string SpellingsOfAll(const CLI::App& command) {
  std::string words;
  for (const auto* option : OptionsOf(command)) {
    for (const auto& spelling : SpellingsOf(*option)) words += " " + spelling;
  }
  return words;
}

std::string BashValues(const CLI::App& command, const std::string& path) {
  std::string cases;
  for (const auto* option : OptionsOf(command)) {
    if (!TakesValue(*option)) continue;
    const auto values = ValuesOf(*option);
    std::string pattern;
    for (const auto& spelling : SpellingsOf(*option))
      pattern += (pattern.empty() ? "" : "|") + Quoted(path + ":" + spelling);
    const auto with = values.folders          ? std::string("-d")
                      : values.files          ? std::string("-f")
                      : !values.words.empty() ? "-W " + Quoted(values.words)
                                              : std::string("-W ''");
    cases += "    " + pattern + ") COMPREPLY=( $(compgen " + with + " -- \"$current\") ); return ;;\n";
  }
  return cases;
}

}  // namespace

std::string BashCompletion(const CLI::App& program) {
  std::string paths, words, values = BashValues(program, "");
  Walk(program, "", [&](const CLI::App& command, const std::string& path) {
    paths += "      " + Quoted(" " + path) + ") path=" + Quoted(path) + " ;;\n";
    words += "    " + Quoted(path) +
             ") options=" + Quoted(SpellingsOfAll(command) + SpellingsOfAll(program)) +
             " commands=" + Quoted(WordsOf(command)) + " ;;\n";
    values += BashValues(command, path) + BashValues(program, path);
  });
  const auto& name = program.get_name();
  return "# Completion of " + name +
         " for bash: source it, or put it into the folder of your completions.\n" +
         "_orvik_bench() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  local path= word place options commands\n"
         "  for (( place = 1; place < COMP_CWORD; place++ )); do\n"
         "    word=${COMP_WORDS[place]}\n"
         "    case \"${path:+ $path} $word\" in\n" +
         paths +
         "    esac\n"
         "  done\n"
         "  case \"$path:$previous\" in\n" +
         values +
         "  esac\n"
         "  case \"$path\" in\n"
         "    '') options=" +
         Quoted(SpellingsOfAll(program)) + " commands=" + Quoted(WordsOf(program)) + " ;;\n" + words +
         "  esac\n"
         "  if [[ $current == -* ]]; then\n"
         "    COMPREPLY=( $(compgen -W \"$options\" -- \"$current\") )\n"
         "  elif [[ -n $commands ]]; then\n"
         "    COMPREPLY=( $(compgen -W \"$commands\" -- \"$current\") )\n"
         "  else\n"
         "    COMPREPLY=( $(compgen -f -- \"$current\") )\n"
         "  fi\n"
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
      const auto values = ValuesOf(*option);
      lines += begin + condition;
      for (const auto& name : option->get_snames()) lines += " -s " + name;
      for (const auto& name : option->get_lnames()) lines += " -l " + name;
      if (TakesValue(*option)) lines += values.files || values.folders ? " -rF" : " -x";
      if (!values.words.empty()) lines += " -a " + Quoted(values.words);
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
