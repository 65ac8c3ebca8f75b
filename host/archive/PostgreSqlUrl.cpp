#include "host/archive/PostgreSqlUrl.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>

#include "host/archive/ArchiveError.h"
#include "host/archive/PqLibrary.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

constexpr std::string_view kSchemes[] = {"postgresql://", "postgres://"};

/// Omits the client library's message: it quotes the invalid part, which may be the password.
[[noreturn]] void Refuse() {
  throw ArchiveError(
      ArchiveError::Kind::kBadInput,
      Tr("the URL of the archive is invalid; write postgresql://USER@HOST:PORT/DATABASE, "
         "with %40 for \"@\", %3A for \":\", %2F for \"/\" and %25 for \"%\" inside its parts"));
}

/// A second "@" belongs to a password: the rest of it would be taken for the host, and shown.
bool HasStrayAt(const std::string& url) {
  const auto begin = url.find("://") + 3;
  const auto authority = std::string_view(url).substr(begin, url.find_first_of("/?", begin) - begin);
  const auto rest = std::string_view(url).substr(begin);
  const bool early = std::count(authority.begin(), authority.end(), '@') > 1;
  // A "/" in a password ends the authority too early; the "@" is then in what looks like the name.
  const auto path = rest.substr(std::min(rest.size(), authority.size()));
  return early || path.substr(0, path.find('?')).find('@') != std::string_view::npos;
}

std::map<std::string, std::string> PartsOf(const std::string& url) {
  const auto& pq = PqLibrary::Get();
  char* reason = nullptr;
  const std::unique_ptr<PQconninfoOption, decltype(pq.conninfoFree)> options(
      pq.conninfoParse(url.c_str(), &reason), pq.conninfoFree);
  if (reason) pq.freemem(reason);
  if (!options) Refuse();
  std::map<std::string, std::string> parts;
  for (const auto* option = options.get(); option->keyword; ++option)
    if (option->val) parts[option->keyword] = option->val;
  // "postgresql://USER:PASSWORD" without a host parses as a host and its port.
  if (parts["port"].find_first_not_of("0123456789,") != std::string::npos) Refuse();
  return parts;
}

}  // namespace

bool IsPostgreSqlUrl(const std::string& location) {
  return std::any_of(std::begin(kSchemes), std::end(kSchemes),
                     [&](std::string_view scheme) { return location.starts_with(scheme); });
}

std::string ShownUrl(const std::string& url) {
  if (HasStrayAt(url)) Refuse();
  auto parts = PartsOf(url);
  auto host = parts["host"].empty() ? parts["hostaddr"] : parts["host"];
  std::string shown = "postgresql://";
  if (!parts["user"].empty()) shown += parts["user"] + "@";
  const bool isFolder = host.starts_with("/");  // of a socket
  if (!isFolder) shown += host;
  if (!parts["port"].empty()) shown += ":" + parts["port"];
  shown += "/" + parts["dbname"];
  if (isFolder) shown += "?host=" + host;
  return shown;
}

}  // namespace host::archive
