#include "host/gui/DesktopProgram.h"

#include <unistd.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>
#include <cstdlib>
#include <iostream>

#include "host/base/Tr.h"
#include "host/bench/DesktopModule.h"
#include "host/bench/ExitStatus.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"
#include "host/bench/TesterConnection.h"
#include "host/gui/MainWindow.h"
#include "host/qt/Conversions.h"
#include "host/qt/Screen.h"
#include "host/run/StopSignals.h"

namespace host::gui {

namespace {

std::string NoDisplayText() {
  return Tr(
      "gui: there is no screen to show the window on; start it in a graphical session, or set DISPLAY or "
      "WAYLAND_DISPLAY. The other commands need none: \"orvik-bench --help\" shows them");
}

void RequireDisplay() {
  for (const auto* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return;
  }
  throw bench::IncompleteError(NoDisplayText());
}

/// Qt aborts the program when the named screen does not answer. Prints the reason instead.
void ExitOnFatal(QtMsgType type, const QMessageLogContext&, const QString& message) {
  static std::string before;
  if (type != QtFatalMsg) {
    before = message.toStdString() + "\n";
    return;
  }
  std::cerr << "orvik-bench: " << NoDisplayText() << "\n" << before << message.toStdString() << std::endl;
  _exit(static_cast<int>(bench::ExitStatus::kIncomplete));
}

/// Qt's objects while the program runs.
class QtProgram {
 public:
  explicit QtProgram(const std::string& language)
      : before_(qInstallMessageHandler(ExitOnFatal)), qt_(count_, words_) {
    qInstallMessageHandler(before_);
    // Numbers in documents and on the wire are the same everywhere.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("orvik-bench");
    QApplication::setQuitOnLastWindowClosed(false);
    if (translator_.load(QLocale(qt::ToQt(language.empty() ? "en" : language)), "qtbase", "_",
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
      QApplication::installTranslator(&translator_);
  }
  QtProgram(const QtProgram&) = delete;
  QtProgram& operator=(const QtProgram&) = delete;

 private:
  QtMessageHandler before_;
  int count_ = 1;
  char name_[12] = "orvik-bench";
  char* words_[2] = {name_, nullptr};
  QApplication qt_;
  QTranslator translator_;
};

}  // namespace

bool RunDesktop(const bench::DesktopOptions& options) {
  ChooseLanguage(options.language, {bench::files::Translations()});
  bench::RequireTimeScale(options.timeScale);
  RequireDisplay();
  const QtProgram qt(options.language);
  const bench::GlobalOptions global{options.state, options.catalogue, options.language};
  bench::Workbench workbench(global, options.timeScale);
  qt::Screen screen(workbench.Application());
  MainWindow window(workbench, global, [&screen] { screen.Quit(); });
  screen.SetHostWindow(&window);
  screen.SetErrorHandler([&window](const std::string& error) { window.ShowErrorLater(error); });
  const run::StopSignals signals(*workbench.Application(), [&window](int) { window.EndByRequest(); });
  if (!options.file.empty()) window.Open(options.file);
  window.show();
  screen.Exec();
  return !window.LeftOver();
}

}  // namespace host::gui
