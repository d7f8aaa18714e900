// A host program on the desktop: a window with three elements, the events that they raise, and a project file that is
// loaded and saved. With two file names it loads the one, saves the other and ends.
#include <element/ctlPlexelBaseElement.h>
#include <files/file_error.h>
#include <files/project_file.h>
#include <qt/element_widget.h>
#include <qt/qt_component.h>

#include <QApplication>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QVBoxLayout>
#include <vector>

namespace {

using plexel::ElementWidget;

/// One element of the panel.
struct Place {
  const char* name;
  ElementWidget::ElementKind kind;
  int width, height;  // pixels
};
constexpr Place places[] = {
    {"S1", ElementWidget::Rect, 92, 40}, {"F1", ElementWidget::RectLed, 56, 56}, {"L1", ElementWidget::Led, 16, 16}};

class Window : public QMainWindow {
 public:
  Window() {
    auto* const content = new QWidget(this);
    auto* const column = new QVBoxLayout(content);
    auto* const row = new QHBoxLayout;
    column->addLayout(row);
    column->addWidget(log_);
    log_->setReadOnly(true);
    log_->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(content);
    for (const Place& place : places) row->addWidget(NewElement(place));
    row->addStretch();
    QToolBar* const tools = addToolBar("Project");
    tools->addAction("Open", this, [this] { Try(QFileDialog::getOpenFileName(this), &Window::Load); });
    tools->addAction("Save as", this, [this] { Try(QFileDialog::getSaveFileName(this), &Window::Save); });
  }

  void Load(const QString& file) {
    const plexel::Project project = plexel::ReadProject(file.toStdString());
    for (const plexel::ProjectElement& stored : project.elements) {
      auto* const widget = findChild<ElementWidget*>(QString::fromStdString(stored.place));
      if (widget == nullptr) continue;
      const ElementWidget::ElementKind kind = widget->ElementType();
      widget->ReadProperties(stored.bag);
      widget->ElementType(kind);  // a bag leaves the kind of an LED out
      auto record = widget->Element().TactisBaseElementScanCodeBuffer();
      plexel::PutCodes(stored.codes, record);  // the bytes stand beside the bag
      widget->Element().TactisBaseElementScanCodeBuffer(record);
    }
    Tell("loaded");
  }

  void Save(const QString& file) {
    plexel::Project project;
    project.panel = "Example";
    for (const ElementWidget* const widget : elements_) {
      plexel::ProjectElement& stored = project.elements.emplace_back();
      stored.place = widget->objectName().toStdString();
      widget->WriteProperties(stored.bag);
      stored.codes = plexel::CodesOf(widget->Element().TactisBaseElementScanCodeBuffer());
    }
    plexel::WriteProject(file.toStdString(), project);
    Tell("saved");
  }

  const ElementWidget& First() const { return *elements_.front(); }
  QString Told() const { return log_->toPlainText(); }

 private:
  QWidget* NewElement(const Place& place) {
    auto* const widget = new ElementWidget(this);
    widget->setObjectName(place.name);
    widget->Legend(place.name);
    widget->ElementType(place.kind);
    widget->ZoomFactor(100);
    widget->SizeX(place.width);
    widget->SizeY(place.height);
    const auto tell = [this, name = QString(place.name)](const QString& what) { Tell(name + ": " + what); };
    connect(widget, &ElementWidget::DirectInputStatusChanged, this,
            [tell](bool on) { tell(on ? "records" : "recorded"); });
    connect(widget, &ElementWidget::SendKeyDefinition, this, [tell](const plexel::KeyDefinition& sent) {
      tell("sends " + QString::fromStdString(sent.strLayer1Press));
    });
    connect(widget, &ElementWidget::MouseClicked, this,
            [tell](int button) { tell("button " + QString::number(button)); });
    connect(widget, &ElementWidget::MouseDblClicked, this, [tell] { tell("double click"); });
    connect(widget, &ElementWidget::ProjectModified, this, [tell] { tell("modified"); });
    elements_.push_back(widget);
    return widget;
  }

  void Tell(const QString& line) { log_->appendPlainText(line); }

  void Try(const QString& file, void (Window::*act)(const QString&)) {
    try {
      if (!file.isEmpty()) (this->*act)(file);
    } catch (const plexel::FileError& error) {
      QMessageBox::warning(this, windowTitle(), error.what());
    }
  }

  std::vector<ElementWidget*> elements_;
  QPlainTextEdit* const log_ = new QPlainTextEdit(this);
};

}  // namespace

int main(int count, char** words) {
  QApplication application(count, words);
  const plexel::QtComponent component;  // ahead of the first element
  Window window;
  window.show();
  const QStringList files = application.arguments().mid(1);
  if (files.size() != 2) return application.exec();
  window.Load(files[0]);
  window.Save(files[1]);
  qInfo("S1 sends %s\n%s", qUtf8Printable(window.First().PressKeyDefLayer1()), qUtf8Printable(window.Told()));
  return 0;
}
