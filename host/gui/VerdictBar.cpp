#include "host/gui/VerdictBar.h"

#include <QHBoxLayout>
#include <QLabel>

#include "host/base/Tr.h"
#include "host/gui/Signs.h"
#include "host/qt/Conversions.h"
#include "host/report/ReportParts.h"

namespace host::gui {

namespace {

constexpr int kSignSize = 28;
constexpr double kWordSize = 1.5;  ///< of the usual letters

}  // namespace

VerdictBar::VerdictBar(QWidget* parent)
    : QFrame(parent),
      mark_(new QLabel(this)),
      sign_(new QLabel(this)),
      word_(new QLabel(this)),
      sentence_(new QLabel(this)) {
  setObjectName("verdict");
  mark_->setObjectName("simulated");
  word_->setObjectName("verdictWord");
  sentence_->setObjectName("verdictSentence");
  auto font = word_->font();
  font.setPointSizeF(font.pointSizeF() * kWordSize);
  font.setBold(true);
  word_->setFont(font);
  mark_->setFont(font);
  // Text of a document must not be taken for markup.
  word_->setTextFormat(Qt::PlainText);
  sentence_->setTextFormat(Qt::PlainText);
  sentence_->setWordWrap(true);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(12, 6, 12, 6);
  layout->addWidget(mark_);
  layout->addWidget(sign_);
  layout->addWidget(word_);
  layout->addSpacing(12);
  layout->addWidget(sentence_, 1);
  Clear();
}

void VerdictBar::Show(const report::Verdict& verdict, bool simulated) {
  const auto colour = ColourName(verdict.standing);
  sign_->setPixmap(SignIcon(verdict.standing).pixmap(kSignSize, kSignSize));
  sign_->setVisible(true);
  word_->setText(qt::ToQt(verdict.word));
  const auto mark = simulated ? report::parts::SimulatedMark() : report::PageMark{};
  const auto sentence = simulated ? mark.text + "\n" + verdict.sentence : verdict.sentence;
  mark_->setText(qt::ToQt(mark.word));
  mark_->setVisible(simulated);
  sentence_->setText(qt::ToQt(sentence));
  setAccessibleName(qt::ToQt(Tr("Verdict of the document: %%1, %%2", {verdict.word, sentence})));
  setStyleSheet(QString("#verdict { background: white; border: 2px solid %1; border-radius: 4px; }"
                        "#verdictWord { color: %1; } #verdictSentence { color: #1c2330; }"
                        "#simulated { color: white; background: black; padding: 2px 8px; }")
                    .arg(colour));
}

void VerdictBar::Clear() {
  mark_->setVisible(false);
  sign_->setVisible(false);
  word_->clear();
  sentence_->setText(qt::ToQt(Tr("No document is open.")));
  setAccessibleName(sentence_->text());
  setStyleSheet("#verdict { border: 1px solid palette(mid); border-radius: 4px; }");
}

}  // namespace host::gui
