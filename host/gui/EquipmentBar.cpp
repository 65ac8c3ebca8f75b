#include "host/gui/EquipmentBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "host/base/Tr.h"
#include "host/gui/PlainTextValidator.h"
#include "host/qt/Conversions.h"

namespace host::gui {

EquipmentBar::EquipmentBar(std::function<void()> edited, QWidget* parent) : QWidget(parent) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, const std::string& label) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setValidator(new PlainTextValidator(box));
    auto* text = new QLabel(qt::ToQt(label), this);
    text->setBuddy(box);
    box->setAccessibleName(text->text().remove('&'));
    layout->addWidget(text);
    layout->addWidget(box, 1);
    connect(box, &QLineEdit::textEdited, this, edited);
    // A scanner ends with Return: the next scan belongs into the next field.
    connect(box, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    return box;
  };
  asset_ = add("asset", Tr("Asset number"));
  serial_ = add("serial", Tr("Serial number"));
  maker_ = add("maker", Tr("Maker"));
  model_ = add("model", Tr("Model"));
}

void EquipmentBar::Show(const document::Document::Equipment& equipment) {
  asset_->setText(qt::ToQt(equipment.asset));
  serial_->setText(qt::ToQt(equipment.serial));
  maker_->setText(qt::ToQt(equipment.maker));
  model_->setText(qt::ToQt(equipment.model));
}

void EquipmentBar::FocusOnAsset() {
  asset_->setFocus(Qt::OtherFocusReason);
  asset_->selectAll();
}

document::Document::Equipment EquipmentBar::Entered() const {
  return {asset_->text().toStdString(), serial_->text().toStdString(), maker_->text().toStdString(),
          model_->text().toStdString()};
}

}  // namespace host::gui
