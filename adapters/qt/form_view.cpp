#include "qt/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>

#include "platform/failure.h"
#include "qt/captions.h"
#include "qt/fonts.h"
#include "qt/input_events.h"
#include "qt/units.h"
#include "qt/window_place.h"

namespace plexel {

namespace {

/// A dialog whose close box and Escape key are the form's.
class FormWindow : public QDialog {
 public:
  FormWindow(QWidget* owner, std::function<void()> closing) : QDialog(owner), closing_(std::move(closing)) {}

  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    closing_();
  }

 private:
  std::function<void()> closing_;
};

constexpr QColor AlertColour(0xFF, 0xE0, 0x82);

/// Whether the user could see any of the form.
bool OnAnyScreen(const Form& form) {
  const QRect place = PixelRect(form.Left(), form.Top(), form.Width(), form.Height());
  const QList<QScreen*> screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(),
                     [&place](const QScreen* screen) { return screen->availableGeometry().intersects(place); });
}

}  // namespace

FormView::FormView(Form& form, QWidget* owner, FormDesk& desk) : form_(form), desk_(desk) {
  window_ = std::make_unique<FormWindow>(owner, [this] { CarryOnForm([](Hand& hand) { hand.Close(); }); });
  window_->setFont(DialogFont());
  window_->setWindowModality(Qt::ApplicationModal);
  window_->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint);
  window_->setObjectName(ToQt(form.Name()));
  window_->installEventFilter(this);
  if (owner != nullptr) {
    // The toolkit would delete the window with its owner. What stands over it ends ahead of it.
    connect(owner, &QObject::destroyed, this, [this] {
      window_->setParent(nullptr, window_->windowFlags());
      for (QDialog* const over : window_->findChildren<QDialog*>()) over->reject();
      desk_.OwnerGone(*this);
    });
  }
  MakeViews();
}

FormView::~FormView() {
  window_->removeEventFilter(this);
  for (const auto& [widget, view] : byWidget_) const_cast<QObject*>(widget)->removeEventFilter(this);
}

void FormView::MakeViews() {
  for (Control* control : form_.Controls()) MakeViewOf(*control);
}

void FormView::MakeViewOf(Control& control) {
  if (viewOf_.contains(&control)) return;
  Control* const container = control.Container();
  if (container != nullptr) MakeViewOf(*container);
  ControlView* const around = ViewOf(container);
  QWidget& parent = around != nullptr ? around->Inner(control.Page()) : *window_;
  std::unique_ptr<ControlView> view = MakeControlView(control, parent, *this);
  if (!view) return;
  viewOf_[&control] = view.get();
  for (QWidget* widget : {&view->Outer(), &view->FocusWidget(), &view->MouseWidget()}) {
    if (byWidget_.emplace(widget, view.get()).second) widget->installEventFilter(this);
  }
  views_.push_back(std::move(view));
}

ControlView* FormView::ViewOf(const Control* control) const {
  const auto found = viewOf_.find(control);
  return found == viewOf_.end() ? nullptr : found->second;
}

void FormView::Show() {
  if (!form_.Placed() || !OnAnyScreen(form_)) PlaceOverOwner();
  subject_ = desk_.SubjectOf(form_);
  Sync();
  StepAside();
  SyncWindow();
  window_->show();
  window_->activateWindow();
}

void FormView::PlaceOverOwner() {
  const QWidget* const owner = window_->parentWidget();
  const QRect around = owner != nullptr ? owner->frameGeometry() : window_->screen()->availableGeometry();
  const QPoint corner = around.center() - QPoint(ToPixels(form_.Width()), ToPixels(form_.Height())) / 2;
  Hand(form_).Move(ToTwips(std::max(0, corner.x())), ToTwips(std::max(0, corner.y())));
}

void FormView::StepAside() {
  if (subject_.place.isEmpty()) return;
  const QSize frame(ToPixels(form_.Width() - form_.ClientWidth()), ToPixels(form_.Height() - form_.ClientHeight()));
  const QRect window(QPoint(ToPixels(form_.Left()), ToPixels(form_.Top())), window_->size() + frame);
  const QScreen* const screen = QGuiApplication::screenAt(subject_.place.center());
  if (screen != nullptr) aside_ = WayBeside(window, subject_.place, screen->availableGeometry());
}

void FormView::Hide() {
  if (menu_) menu_->close();
  window_->hide();
}

void FormView::Sync() {
  for (const std::unique_ptr<ControlView>& view : views_) view->Sync();
  SyncNote();
  SyncWindow();
  SyncFocus();
  SyncMenu();
}

void FormView::SyncNote() {
  const FormNote note = desk_.NoteOf(form_);
  if (note == noted_) return;
  noted_ = note;
  if (note_ == nullptr) {
    constexpr int Side = 10, Above = 4, Below = 6;
    note_ = new QLabel(window_.get());
    note_->setObjectName("FormNote");
    note_->setTextFormat(Qt::RichText);
    note_->setWordWrap(true);
    note_->setContentsMargins(Side, Above, Side, Below);
    note_->setAutoFillBackground(true);
    note_->show();
  }
  QPalette palette = window_->palette();
  if (note.alert) {
    palette.setColor(QPalette::Window, AlertColour);
    palette.setColor(QPalette::WindowText, Qt::black);
  }
  note_->setPalette(palette);
  note_->setText(note.text);
}

void FormView::SyncWindow() {
  QString caption = ToQt(form_.Caption());
  if (!subject_.name.isEmpty()) caption += " \u2013 " + subject_.name;
  if (window_->windowTitle() != caption) window_->setWindowTitle(caption);
  const QSize client(ToPixels(form_.ClientWidth()), ToPixels(form_.ClientHeight()));
  QSize whole = client;
  if (note_ != nullptr) {
    // The strip never shrinks, so that the window does not jump while the user works in it.
    const int height = std::max(note_->height(), note_->heightForWidth(client.width()));
    note_->setGeometry(0, client.height(), client.width(), height);
    whole.rheight() += height;
  }
  if (window_->size() != whole || window_->minimumSize() != whole) window_->setFixedSize(whole);
  const QPoint place = QPoint(ToPixels(form_.Left()), ToPixels(form_.Top())) + aside_;
  if (place == placed_ && window_->testAttribute(Qt::WA_Moved)) return;
  placed_ = place;
  window_->move(place);
}

void FormView::SyncFocus() {
  // A control on a page that is not in front has no widget that could get keys: the window gets them in its place.
  const ControlView* const view = ViewOf(form_.Focus());
  const bool inFront = view != nullptr && view->FocusWidget().isVisibleTo(window_.get());
  QWidget& wanted = inFront ? view->FocusWidget() : *window_;
  if (window_->focusWidget() != &wanted) wanted.setFocus(Qt::OtherFocusReason);
}

void FormView::SyncMenu() {
  if (form_.OpenPopup() == nullptr && menu_) menu_->close();
}

void FormView::OpenMenu(MenuItem& menu, bool placed, float x, float y) {
  auto* const shown = new QMenu(window_.get());
  shown->setAttribute(Qt::WA_DeleteOnClose);
  for (MenuItem* entry : menu.Entries()) {
    if (!entry->Visible()) continue;
    if (entry->Separator()) {
      shown->addSeparator();
      continue;
    }
    QAction* const action = shown->addAction(WithLetter(entry->Caption()));
    action->setEnabled(entry->Enabled());
    connect(action, &QAction::triggered, this,
            [this, entry] { CarryOnForm([entry](Hand& hand) { hand.Menu(*entry); }); });
  }
  // The choice, if there is one, comes behind the hiding.
  connect(shown, &QMenu::aboutToHide, this, [this] {
    QMetaObject::invokeMethod(
        this,
        [this, hidden = menu_] {
          if (hidden == menu_ || !menu_) CarryOnForm([](Hand& hand) { hand.DismissMenu(); });
        },
        Qt::QueuedConnection);
  });
  menu_ = shown;
  shown->popup(placed ? window_->mapToGlobal(QPoint(ToPixels(x), ToPixels(y))) : QCursor::pos());
}

void FormView::Contain(const std::function<void()>& act) {
  try {
    act();
  } catch (const Failure& failure) {
    desk_.Report(failure.what());
  } catch (...) {
    desk_.Abandon(std::current_exception());
  }
}

void FormView::Guarded(const std::function<void()>& act) {
  Contain(act);
  desk_.SyncAll();
}

void FormView::Carry(const Control& control, const Act& act) {
  if (control.Usable()) CarryOnForm(act);
}

void FormView::CarryOnForm(const Act& act) {
  if (!form_.IsShown()) return;
  Guarded([&] {
    Hand hand(form_);
    act(hand);
  });
}

bool FormView::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();
      return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return KeyArrives(receiver, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: {
      const auto view = byWidget_.find(receiver);
      return view != byWidget_.end() && MouseArrives(*view->second, static_cast<QMouseEvent&>(*event));
    }
    case QEvent::Move:
      if (receiver == window_.get()) WindowMoved();
      return false;
    case QEvent::WindowActivate:
      if (receiver == window_.get()) {
        // The model moves the focus, by keys too, which the toolkit does not know: without this it shows no focus.
        window_->setAttribute(Qt::WA_KeyboardFocusChange);
        desk_.Activated(*this);
      }
      return false;
    case QEvent::WindowDeactivate:
      if (receiver == window_.get()) desk_.Deactivated(*this);
      return false;
    default:
      return false;
  }
}

bool FormView::MouseArrives(ControlView& view, QMouseEvent& event) {
  if (view.TakesMouseItself()) return false;
  Control& control = view.Model();
  const auto x = ToTwips(event.position().x()), y = ToTwips(event.position().y());
  const std::int16_t button = ButtonOf(event.button()), shift = ShiftOf(event.modifiers());
  if (event.type() == QEvent::MouseButtonRelease) {
    const bool clicked = pressed_ == &control && view.MouseWidget().rect().contains(event.position().toPoint());
    pressed_ = nullptr;
    if (clicked && event.button() == Qt::LeftButton && !view.ClicksItself()) {
      Carry(control, [&](Hand& hand) { hand.Click(control); });
    }
    return false;
  }
  if (event.type() == QEvent::MouseButtonDblClick && event.button() == Qt::LeftButton && control.OnDblClick) {
    Carry(control, [&](Hand& hand) { hand.DblClick(control); });
    return true;
  }
  pressed_ = &control;
  Carry(control, [&](Hand& hand) { hand.MouseDown(control, button, shift, x, y); });
  return false;
}

void FormView::WindowMoved() {
  const QPoint place = window_->pos();
  if (!window_->isVisible() || place == placed_) return;
  placed_ = place;
  aside_ = QPoint();
  CarryOnForm([place](Hand& hand) { hand.Move(ToTwips(place.x()), ToTwips(place.y())); });
}

}  // namespace plexel
