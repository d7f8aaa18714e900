#include "editor/virtual_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "editor/texts.h"
#include "editor/trial_dock.h"
#include "keyboard/set2_keys.h"
#include "project/key_code_names.h"
#include "qt/panel_painter.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// The picture of a panel alone.
class PlainPicture : public QWidget {
 public:
  PlainPicture(const Panel& panel, double scale) : panel_(panel), scale_(scale) {
    setFixedSize((QSizeF(panel.width, panel.height) * scale).toSize());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale_, scale_);
    for (const PanelPart& part : panel_.parts) DrawPart(painter, part);
  }

 private:
  const Panel& panel_;
  double scale_;
};

/// The zoom of the document, or less for a panel that would fill the screen.
double ScaleFor(const PanelDocument& document, const QSize& screen) {
  constexpr double MostOfScreen = 0.9;
  const Panel& panel = document.ThePanel();
  return std::min({document.Zoom() / 100.0, MostOfScreen * screen.width() / panel.width,
                   MostOfScreen * screen.height() / panel.height});
}

}  // namespace

VirtualPanel::VirtualPanel(const PanelDocument& document, std::int32_t layer,
                           std::function<void(int evdev, bool down)> send)
    : document_(document), send_(std::move(send)) {
  setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowTitleHint |
                 Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint | Qt::CustomizeWindowHint);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_X11DoNotAcceptFocus);
  setAttribute(Qt::WA_QuitOnClose, false);
  const double scale = ScaleFor(document_, screen()->availableSize());
  auto* picture = new PlainPicture(document_.ThePanel(), scale);
  layer_ = new TrialLayer(trial_, picture, {[] { return QPoint(); }, [scale] { return scale; }});
  layer_->setFocusPolicy(Qt::NoFocus);
  layer_->onEvent = [this](const Trial::Event& event) { Carry(event); };
  trial_.ChooseLayer(layer);

  state_ = new QLabel;
  down_ = new QLabel;
  down_->setStyleSheet(QString("color: %1; font-weight: bold").arg(TrialLayer::LeftDownColour.name()));
  words_ = new QLabel;
  words_->setWordWrap(true);
  for (QLabel* const label : {state_, down_, words_}) label->setTextFormat(Qt::PlainText);
  letGo_ = new QPushButton;
  letGo_->setFocusPolicy(Qt::NoFocus);
  connect(letGo_, &QPushButton::clicked, this, [this] { LetGoOfAll(); });
  auto* line = new QHBoxLayout;
  line->setContentsMargins(8, 4, 8, 0);
  line->addWidget(state_);
  line->addSpacing(12);
  line->addWidget(down_, 1);
  line->addWidget(letGo_);
  words_->setContentsMargins(8, 0, 8, 6);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(picture);
  layout->addLayout(line);
  layout->addWidget(words_);
  layer_->Show(&document_);
  Retranslate();
}

void VirtualPanel::Retranslate() {
  setWindowTitle(Say(Text::VirtualTitle).arg(ToQt(document_.ThePanel().title)));
  letGo_->setText(Say(Text::TrialLetGo));
  ShowState();
}

void VirtualPanel::Carry(const Trial::Event& event) {
  notCarried_.clear();
  for (const KeyReport& report : event.reports) {
    if (report.deed == KeyDeed::Panel) {
      notCarried_.append(Say(Text::VirtualCommand).arg(PanelFunctionText(report.code)));
      continue;
    }
    const std::optional<int> key = report.deed == KeyDeed::Unknown ? std::nullopt : KeyOfSet2(report.code);
    if (key) {
      send_(*key, report.deed != KeyDeed::Up);
    } else {
      notCarried_.append(Say(Text::VirtualNoKey).arg(ToQt(CodeText(report.code))));
    }
  }
  notCarried_.removeDuplicates();
  ShowState();
}

void VirtualPanel::LetGoOfAll() {
  layer_->Forget();
  Carry(*trial_.LetGoOfAll());
  layer_->update();
}

void VirtualPanel::ShowState() {
  state_->setText(Say(Text::TrialLayer).arg(trial_.Layer()));
  const std::vector<KeyCode> left = trial_.LeftDown();
  down_->setText(left.empty() ? QString() : Say(Text::TrialStays).arg(KeyList(left)));
  letGo_->setEnabled(!trial_.Down().empty() || trial_.AnyHeld());
  if (lost_) {
    words_->setText(Say(Text::VirtualLost));
  } else if (!notCarried_.isEmpty()) {
    words_->setText(notCarried_.join(' '));
  } else {
    const bool besidesX = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    words_->setText(Say(Text::VirtualHint) + (besidesX ? ' ' + Say(Text::VirtualXOnly) : QString()));
  }
}

void VirtualPanel::Lost() {
  lost_ = true;
  layer_->setEnabled(false);
  ShowState();
}

QString VirtualPanel::Words() const { return words_->text(); }

void VirtualPanel::closeEvent(QCloseEvent* event) {
  LetGoOfAll();
  QWidget::closeEvent(event);
  if (onClose) onClose();
}

}  // namespace plexel
