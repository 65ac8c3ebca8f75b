#include "host/app/CatalogueFile.h"

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/app/InputError.h"
#include "host/services/Files.h"
#include "host/services/XmlDocument.h"

namespace bench {

std::string ReadCatalogue(const std::filesystem::path& file) {
  std::string text;
  try {
    text = ReadFile(file);
  } catch (const orvik::HostError& error) {
    throw InputError("catalogue: " + error.Description());
  }
  XmlDocument xml;
  orvik::IXmlDocument& document = xml;
  if (!document.LoadFromString(text))
    throw InputError("catalogue " + file.string() + ": " + document.LastError() + "; correct the file");
  if (!document.FindElement("TemplateData"))
    throw InputError("catalogue " + file.string() +
                     ": has no element \"TemplateData\"; name a catalogue of tests with --catalogue");
  return text;
}

}  // namespace bench
