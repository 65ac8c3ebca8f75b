#include "host/base/LanguageService.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "platform/IPanel.h"
#include "platform/ITreeView.h"

namespace host {
namespace {

constexpr char kHostModule[] = "orvik";
constexpr char kSeparator[] = "::";

/// Length of the number before "::"; npos when the text has not that form.
std::size_t NumberLength(std::string_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  const auto length = static_cast<std::size_t>(end - text.begin());
  return text.substr(length).starts_with(kSeparator) ? length : std::string_view::npos;
}

/// The languages to look for, the general one first so that the special one overwrites it.
std::vector<std::string> Candidates(const std::string& language) {
  const auto name = language.substr(0, language.find('.', 1));
  const bool valid = std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '@';
  });
  if (!valid)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.LanguageService",
                           Tr("\"%%1\" is no language; give a name such as \"da\" or \"pt_BR\"", {language}));
  if (name.empty() || name == "C" || name == "POSIX") return {};
  std::vector<std::string> candidates{name.substr(0, name.find_first_of("_-@"))};
  if (candidates.front() != name) candidates.push_back(name);
  return candidates;
}

}  // namespace

bool IsLanguageString(std::string_view text) { return NumberLength(text) != std::string_view::npos; }

std::string WithValues(std::string_view text, const std::vector<std::string>& values) {
  if (values.empty()) return std::string(text);
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool placeholder =
        text.substr(i).starts_with("%%") && i + 2 < text.size() && text[i + 2] >= '1' && text[i + 2] <= '9';
    const auto index = placeholder ? static_cast<std::size_t>(text[i + 2] - '1') : values.size();
    if (index < values.size()) {
      result += values[index];
      i += 2;
    } else {
      result += text[i];
    }
  }
  return result;
}

std::vector<TranslationFile> TranslationFiles(const std::string& language,
                                              const std::vector<std::filesystem::path>& folders) {
  std::vector<TranslationFile> files;
  for (const auto& candidate : Candidates(language)) {
    const auto ending = "." + candidate + ".po";
    for (const auto& folder : folders) {
      std::error_code error;
      for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const auto name = entry.path().filename().string();
        if (name.ends_with(ending))
          files.push_back({name.substr(0, name.size() - ending.size()), entry.path()});
      }
    }
  }
  return files;
}

LanguageService::LanguageService(const std::string& language,
                                 const std::vector<std::filesystem::path>& folders) {
  for (const auto& file : TranslationFiles(language, folders)) {
    if (file.module == kProgramModule) continue;  // its texts have no numbers
    auto& known = modules_[file.module];
    for (auto& [number, text] : ReadTranslations(ReadFile(file.path), file.path.string()))
      known[number] = text;
  }
}

const std::string* LanguageService::Find(const std::string& module, std::string_view number) const {
  const auto value = WholeNumber(number);
  if (!value) return nullptr;
  for (const auto& name : {module, std::string(kHostModule)}) {
    const auto texts = modules_.find(name);
    if (texts == modules_.end()) continue;
    const auto text = texts->second.find(*value);
    if (text != texts->second.end()) return &text->second;
  }
  return nullptr;
}

std::string LanguageService::ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                                        const std::vector<std::string>& asValues) const {
  const auto length = NumberLength(sText);
  if (length == std::string_view::npos) return WithValues(sText, asValues);
  const auto* translation =
      modules_.empty() ? nullptr : Find(sModule, std::string_view(sText).substr(0, length));
  return WithValues(translation ? *translation : std::string_view(sText).substr(length + 2), asValues);
}

void LanguageService::ILanguageService_TranslateControls(
    const std::string& sModule, std::shared_ptr<orvik::platform::IPanel> Controls) const {
  const auto translate = [&](orvik::platform::IControl& control) {
    const auto caption = control.Caption();
    if (IsLanguageString(caption)) control.SetCaption(Translate(caption, sModule, {}));
  };
  translate(orvik::Required(Controls));
  for (const auto& control : Controls->Controls()) {
    translate(*control);
    const auto tree = std::dynamic_pointer_cast<orvik::platform::ITreeView>(control);
    if (!tree) continue;
    for (const auto& key : tree->NodeKeys()) {
      const auto caption = tree->NodeCaption(key);
      if (IsLanguageString(caption)) tree->SetNodeCaption(key, Translate(caption, sModule, {}));
    }
  }
}

}  // namespace host
