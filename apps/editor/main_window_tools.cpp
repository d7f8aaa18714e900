#include "editor/main_window.h"

#include <QAction>
#include <QComboBox>
#include <QToolBar>
#include <algorithm>
#include <array>

#include "editor/element_text.h"
#include "qt/pictures.h"

namespace plexel {

namespace {

/// What is done most, in the order of the tool bar.
struct Tool {
  Text text;
  const char* picture;
  bool endsGroup;
};
constexpr std::array tools = {Tool{Text::New, "new", false},        Tool{Text::Open, "open", false},
                              Tool{Text::Save, "save", true},       Tool{Text::Undo, "undo", false},
                              Tool{Text::Redo, "redo", true},       Tool{Text::Copy, "copy", false},
                              Tool{Text::Paste, "paste", true},     Tool{Text::Configure, "configure", true},
                              Tool{Text::Try, "try", true},         Tool{Text::ZoomOut, "zoom-out", false},
                              Tool{Text::ZoomIn, "zoom-in", false}, Tool{Text::ZoomFit, "zoom-fit", true}};
constexpr QSize IconSize(22, 22);

}  // namespace

QAction* MainWindow::ActionOf(Text text) const {
  const auto named = std::find_if(named_.begin(), named_.end(), [text](const Named& one) { return one.text == text; });
  return named == named_.end() ? nullptr : named->action;
}

void MainWindow::MakeToolBar() {
  tools_->setObjectName("tools");
  tools_->setIconSize(IconSize);
  for (const Tool& tool : tools) {
    QAction* const action = ActionOf(tool.text);
    action->setIcon(PictureIcon(tool.picture, IconSize));
    action->setIconVisibleInMenu(false);
    tools_->addAction(action);
    if (tool.endsGroup) tools_->addSeparator();
  }
  layerBox_ = new QComboBox;
  layerBox_->setObjectName("Layer");
  layerBox_->setFocusPolicy(Qt::NoFocus);
  for (std::int32_t layer = AllLayersShown; layer <= LayerCount; ++layer) layerBox_->addItem(QString());
  layerBox_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(layerBox_, &QComboBox::activated, this, [this](int layer) { ShowLayer(layer); });
  tools_->addWidget(layerBox_);
}

void MainWindow::RetranslateTools() {
  for (const Tool& tool : tools) {
    QAction* const action = ActionOf(tool.text);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    const QString words = Say(tool.text).remove('&').remove("...");
    action->setToolTip(keys.isEmpty() ? words : words + " (" + keys + ')');
  }
}

}  // namespace plexel
