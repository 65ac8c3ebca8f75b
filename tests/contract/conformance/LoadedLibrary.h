#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IClassLibrary.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/document/Host.h"
#include "host/document/PlugInLibrary.h"
#include "host/serial/CommApplication.h"
#include "tests/contract/conformance/Subject.h"
#include "tests/support/SimulatedLine.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/WireLines.h"
#include "toolkit/headless/Application.h"

namespace conformance {

/// A plug-in library as it is loaded in production, on the real host: the headless toolkit on the virtual
/// clock, a state folder of its own, and a simulated tester behind the serial port.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(Subject subject);
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  /// Closes the library.
  ~LoadedLibrary();

  const Subject& Tested() const { return subject_; }
  host::document::Host& Host() { return *host_; }
  toolkit::headless::Application& Application() { return *application_; }
  orvik::IClassLibrary& Classes() { return *library_->Classes(); }
  std::string PlugInClass() const { return library_->PlugInClass(); }

  /// The plug-in object, initialised.
  const std::shared_ptr<orvik::IPlugIn>& PlugIn() const { return plugIn_; }
  /// A new element of a test, by default the subject's own.
  std::shared_ptr<orvik::ITestElement> NewTest(std::int32_t testId = 0) const;
  /// A new object of one of the library's or the host's classes, in the view that is needed.
  template <class Interface>
  std::shared_ptr<Interface> New(const std::string& classId) {
    return orvik::As<Interface>(host_->CreateObject(classId));
  }
  /// A node of a document of its own.
  std::shared_ptr<orvik::IXmlNode> NewNode(const std::string& name = "Checked");
  /// The root of a parsed text.
  std::shared_ptr<orvik::IXmlNode> Parsed(const std::string& xml);

  /// The tester at the other end of the line.
  support::SimulatedLine& Line() { return line_; }
  support::WireLines& Wire() { return wire_; }
  /// Takes the tester's port away.
  void TakePortAway() { ports_->Unassign(subject_.plugInId); }

  /// The lines of the host's error log.
  std::vector<std::string> ErrorLines() const;

 private:
  Subject subject_;
  support::TemporaryFolder folder_;
  std::shared_ptr<toolkit::headless::Application> application_;
  std::shared_ptr<host::document::Host> host_;
  support::SimulatedLine line_;
  std::shared_ptr<host::serial::PortManager> ports_;
  support::WireLines wire_;
  std::unique_ptr<host::document::PlugInLibrary> library_;
  std::shared_ptr<orvik::IPlugIn> plugIn_;
};

}  // namespace conformance
