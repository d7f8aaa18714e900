#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QDialog>
#include <QFile>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUiLoader>
#include <functional>
#include <memory>

// A program that knows the elements by their form file and the plug-in alone: it is built without the component.

namespace {

class FormFile : public ::testing::Test {
 protected:
  FormFile() {
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(PLEXEL_PLUGINS);
    known = loader.availableWidgets();
    QFile file(PLEXEL_FORM);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    form.reset(loader.load(&file));
    if (!form) throw std::runtime_error(loader.errorString().toStdString());
    start = form->findChild<QWidget*>("start");
    stop = form->findChild<QWidget*>("stop");
    if (start == nullptr || stop == nullptr) throw std::runtime_error("an element is missing");
    form->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }

  static QString EnumerationOf(const QObject& object, const char* name) {
    const QMetaProperty property = object.metaObject()->property(object.metaObject()->indexOfProperty(name));
    return property.enumerator().valueToKey(property.read(&object).toInt());
  }
  /// Closes the dialog that opens next and keeps what it was.
  void CloseNextDialog() {
    QTimer::singleShot(0, &context, [this] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      title = dialog->windowTitle();
      owner = dialog->parentWidget();
      dialog->close();
    });
  }

  QStringList known;
  std::unique_ptr<QWidget> form;
  QWidget *start = nullptr, *stop = nullptr, *owner = nullptr;
  QString title;
  QObject context;
};

TEST_F(FormFile, ThePlugInBringsTheElement) {
  EXPECT_TRUE(known.contains("plexel::ElementWidget"));
  EXPECT_STREQ(start->metaObject()->className(), "plexel::ElementWidget");
  EXPECT_STREQ(stop->metaObject()->className(), "plexel::ElementWidget");
}

TEST_F(FormFile, TheElementsHaveThePropertiesOfTheFile) {
  EXPECT_EQ(start->property("FocusWidth"), 2);
  EXPECT_EQ(start->property("FocusColor").value<QColor>(), QColor(0, 0, 255));
  EXPECT_EQ(EnumerationOf(*start, "ElementType"), "RectLed");
  EXPECT_EQ(EnumerationOf(*start, "LEDTypeLayer1"), "LedNotEnabled");
  EXPECT_EQ(EnumerationOf(*start, "LEDTypeLayer2"), "AlarmLed");
  EXPECT_EQ(start->property("PressKeyDefLayer1").toString(), QString("[F1\u2039\u203A]"));
  EXPECT_TRUE(start->property("ShowDefined").toBool());
  EXPECT_EQ(start->property("HardwareNumberKey7"), -1);
  EXPECT_EQ(start->size(), QSize(56, 54));
  EXPECT_EQ(EnumerationOf(*stop, "ElementType"), "Oval");
  EXPECT_EQ(stop->size(), QSize(81, 81));
}

TEST_F(FormFile, KeysAndMouseRaiseTheSignals) {
  QSignalSpy keys(start, SIGNAL(SendKeyDefinition(plexel::KeyDefinition)));
  QSignalSpy clicks(start, SIGNAL(MouseClicked(int, int, float, float)));
  ASSERT_TRUE(keys.isValid());
  ASSERT_TRUE(clicks.isValid());
  stop->setFocus();
  QTest::mouseClick(start, Qt::LeftButton, Qt::NoModifier, QPoint(2, 3));
  EXPECT_EQ(keys.count(), 1);
  ASSERT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks[0], QVariantList({1, 0, 30.0F, 45.0F}));
  EXPECT_TRUE(start->property("FocusVisible").toBool());
  QTest::keyClick(start, Qt::Key_Tab);
  EXPECT_TRUE(stop->property("FocusVisible").toBool());
  EXPECT_FALSE(start->property("FocusVisible").toBool());
}

TEST_F(FormFile, ReturnOpensADialogAndTheElementGoesOnBehindIt) {
  start->setFocus();
  QSignalSpy keys(start, SIGNAL(SendKeyDefinition(plexel::KeyDefinition)));
  CloseNextDialog();
  QTest::keyClick(start, Qt::Key_Return);
  EXPECT_FALSE(title.isEmpty());
  EXPECT_EQ(owner, form.get());
  EXPECT_EQ(keys.count(), 1);
}

TEST_F(FormFile, AConnectionOfTheFileOpensTheOtherElementsProperties) {
  CloseNextDialog();
  QTest::mouseDClick(start, Qt::LeftButton);
  EXPECT_FALSE(title.isEmpty());
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir files;
  qputenv("XDG_CONFIG_HOME", files.path().toLocal8Bit());
  qputenv("PLEXEL_DATA", PLEXEL_TEST_DATA);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
