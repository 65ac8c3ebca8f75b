#include "host/qt/Screen.h"

#include <QWidget>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/qt/Presenter.h"
#include "host/qt/WidgetMirror.h"
#include "toolkit/headless/Application.h"
#include "toolkit/headless/Form.h"

namespace host::qt {

Screen::Screen(std::shared_ptr<toolkit::headless::Application> application, Measure measure)
    : mirror_(std::make_unique<WidgetMirror>(std::move(application), measure)) {}

Screen::~Screen() = default;

QWidget* Screen::Embed(const std::shared_ptr<orvik::platform::IForm>& form, QWidget* parent) {
  const auto embedded = std::dynamic_pointer_cast<toolkit::headless::Form>(form);
  if (!embedded || !parent)
    toolkit::headless::Fail(orvik::HostError::kInvalidArgument,
                            "only a form of the application can be embedded, and only in a window");
  return mirror_->Embed(*embedded, parent);
}

QWidget* Screen::WidgetOf(const orvik::platform::IControl& control) const {
  const Presenter* presenter = mirror_->Find(control.Handle());
  return presenter ? presenter->Widget() : nullptr;
}

void Screen::SetHostWindow(QWidget* window) { mirror_->SetHostWindow(window); }

void Screen::SetErrorHandler(std::function<void(const std::string&)> handler) {
  mirror_->SetErrorHandler(std::move(handler));
}

bool Screen::Update() { return mirror_->Update(); }

void Screen::Exec() { mirror_->Exec(); }

void Screen::Quit() { mirror_->Quit(); }

}  // namespace host::qt
