#include "host/bench/CatalogueFile.h"

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/base/Files.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/xml/XmlDocument.h"

namespace host::bench {

std::string ReadCatalogue(const std::filesystem::path& file) {
  std::string text;
  try {
    text = ReadFile(file);
  } catch (const orvik::HostError& error) {
    throw InputError(Tr("catalogue: %%1", {error.Description()}));
  }
  xml::XmlDocument xml;
  orvik::IXmlDocument& document = xml;
  if (!document.LoadFromString(text))
    throw InputError(Tr("catalogue %%1: %%2; correct the file", {file.string(), document.LastError()}));
  if (!document.FindElement("TemplateData"))
    throw InputError(
        Tr("catalogue %%1: has no element \"TemplateData\"; name a catalogue of tests with --catalogue",
           {file.string()}));
  return text;
}

}  // namespace host::bench
