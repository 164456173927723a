// The gallery, as somebody who looks at the controls uses it.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <set>
#include <string>

#include "examples/gallery/GalleryWindow.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix/companion/Companion.h"
#include "tools/ControlScenes.h"

namespace tactix::tests {
namespace {

class GalleryTest : public testing::Test {
 protected:
  GalleryTest() {
    companion::Install();
    window_ = std::make_unique<gallery::GalleryWindow>();
    window_->show();
    QApplication::processEvents();
  }

  template <class W>
  W& Part(const QString& name) const {
    W* const found = window_->findChild<W*>(name);
    if (!found) throw std::out_of_range(name.toStdString());
    return *found;
  }
  QListWidget& Scenes() const { return Part<QListWidget>(QStringLiteral("scenes")); }
  QString Log() const { return Part<QPlainTextEdit>(QStringLiteral("log")).toPlainText(); }

  void Choose(const char* scene) {
    const QList<QListWidgetItem*> found = Scenes().findItems(QLatin1String(scene), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << scene;
    Scenes().setCurrentItem(found[0]);
    QApplication::processEvents();
  }

  std::unique_ptr<gallery::GalleryWindow> window_;
};

TEST_F(GalleryTest, ShowsEverySceneWithAllPropertiesOfItsControl) {
  ASSERT_EQ(Scenes().count(), static_cast<int>(tools::ControlScenes().size()));
  const std::set<std::string> all = {
#define CONTROL(name) "tactix::qt::" #name,
#include "tests/support/Controls.inc"
#undef CONTROL
  };
  std::set<std::string> classes;
  for (int row = 0; row < Scenes().count(); ++row) {
    SCOPED_TRACE(Scenes().item(row)->text().toStdString());
    Scenes().setCurrentRow(row);
    QApplication::processEvents();
    ASSERT_TRUE(window_->Shown());
    EXPECT_TRUE(window_->Shown()->isVisible());
    const QMetaObject& meta = *window_->Shown()->metaObject();
    classes.insert(meta.className());
    for (int i = qt::ControlWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
      const QString name = QString::fromLatin1(meta.property(i).name());
      EXPECT_EQ(Part<QWidget>(name).accessibleName(), name);
    }
  }
  EXPECT_EQ(classes, all);
}

TEST_F(GalleryTest, AnEditedPropertyIsTheControls) {
  Choose("Spin counter left");
  const auto* const counter = qobject_cast<qt::SpinCounter*>(window_->Shown());
  ASSERT_TRUE(counter);
  auto& limit = Part<QSpinBox>(QStringLiteral("MaximumLimit"));
  EXPECT_EQ(limit.value(), 999);
  limit.setFocus();
  limit.selectAll();
  QTest::keyClicks(&limit, QStringLiteral("50"));
  QTest::keyClick(&limit, Qt::Key_Return);
  EXPECT_EQ(counter->MaximumLimit(), 50);
  EXPECT_EQ(Log().split(QLatin1Char('\n')), QStringList({QStringLiteral("propertyChanged(\"MaximumLimit\")"),
                                                         QStringLiteral("MaximumLimitChanged(50)")}));
  // What the control refuses, its property does not read.
  limit.setValue(5000);
  EXPECT_EQ(limit.value(), 50);
}

TEST_F(GalleryTest, AnEnumerationIsChosenByName) {
  Choose("Spin counter left");
  auto& box = Part<QComboBox>(QStringLiteral("ControlHandedness"));
  EXPECT_EQ(box.currentText(), QStringLiteral("LeftHandSpinCounter"));
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(qobject_cast<qt::SpinCounter*>(window_->Shown())->ControlHandedness(),
            qt::SpinCounter::RighHandSpinCounter);
}

TEST_F(GalleryTest, EventsAreLoggedAsTheyComeAndTheirEffectsShown) {
  Choose("Spin counter left");
  auto* const counter = qobject_cast<qt::SpinCounter*>(window_->Shown());
  ASSERT_TRUE(counter);
  counter->control().Children.SpinButton.SpinUp();
  counter->control().Children.SpinButton.SpinUp();
  EXPECT_EQ(
      Log().split(QLatin1Char('\n')),
      QStringList({QStringLiteral("propertyChanged(\"CounterValue\")"), QStringLiteral("CounterValueChanged(8)"),
                   QStringLiteral("CounterValueHasChanged(8)"), QStringLiteral("propertyChanged(\"CounterValue\")"),
                   QStringLiteral("CounterValueChanged(9)"), QStringLiteral("CounterValueHasChanged(9)")}));
  QApplication::processEvents();
  EXPECT_EQ(Part<QSpinBox>(QStringLiteral("CounterValue")).value(), 9);
}

TEST_F(GalleryTest, AnErrorIsLogged) {
  Choose("Spin counter left");
  Part<QSpinBox>(QStringLiteral("CounterValue")).setValue(70000);
  EXPECT_TRUE(Log().startsWith(QStringLiteral("unhandledError("))) << Log().toStdString();
  EXPECT_EQ(Part<QSpinBox>(QStringLiteral("CounterValue")).value(), 7);
}

TEST_F(GalleryTest, AnotherSceneStartsAnEmptyLog) {
  Choose("Spin counter left");
  qobject_cast<qt::SpinCounter*>(window_->Shown())->setCounterValue(3);
  ASSERT_NE(Log(), QString());
  Choose("Strategy list");
  EXPECT_EQ(Log(), QString());
}

}  // namespace
}  // namespace tactix::tests
