#include "qt/control_view.h"

#include <array>

#include "qt/captions.h"
#include "qt/combo_view.h"
#include "qt/grid_view.h"
#include "qt/simple_views.h"
#include "qt/tab_view.h"
#include "qt/text_view.h"
#include "qt/units.h"

namespace plexel {

namespace {

using Maker = std::unique_ptr<ControlView> (*)(Control&, QWidget&, UserActs&);

template <typename View, typename Model>
std::unique_ptr<ControlView> Make(Control& control, QWidget& parent, UserActs& acts) {
  return std::make_unique<View>(static_cast<Model&>(control), parent, acts);
}

struct KindView {
  ControlKind kind;
  Maker make;
};

constexpr std::array makers = {
    KindView{ControlKind::CommandButton, Make<ButtonView, CommandButton>},
    KindView{ControlKind::OptionButton, Make<OptionView, OptionButton>},
    KindView{ControlKind::ComboBox, Make<ComboView, ComboBox>},
    KindView{ControlKind::TextBox, MakeTextView},
    KindView{ControlKind::Label, Make<LabelView, Label>},
    KindView{ControlKind::Picture, Make<PictureView, PictureBox>},
    KindView{ControlKind::Frame, Make<FrameView, Frame>},
    KindView{ControlKind::TabStrip, Make<TabView, TabStrip>},
    KindView{ControlKind::Grid, Make<GridView, Grid>},
    KindView{ControlKind::StatusBar, Make<StatusView, StatusBar>},
    KindView{ControlKind::Shape, Make<ShapeView, Shape>},
};

}  // namespace

void ControlView::Sync() {
  QWidget& widget = Outer();
  const QRect place = PixelRect(control_);
  if (widget.geometry() != place) widget.setGeometry(place);
  widget.setEnabled(control_.Enabled());
  widget.setVisible(control_.Visible());
  const QString toolTip = control_.ToolTipText().empty() ? QString() : ToolTipOf(ToQt(control_.ToolTipText()));
  if (widget.toolTip() != toolTip) widget.setToolTip(toolTip);
  SyncMore();
}

std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent, UserActs& acts) {
  for (const KindView& one : makers) {
    if (one.kind != control.Kind()) continue;
    std::unique_ptr<ControlView> view = one.make(control, parent, acts);
    for (QWidget* widget : {&view->Outer(), &view->FocusWidget(), &view->MouseWidget()}) {
      widget->setFocusPolicy(Qt::NoFocus);
    }
    view->Outer().setObjectName(ToQt(control.FullName()));
    return view;
  }
  return nullptr;
}

}  // namespace plexel
