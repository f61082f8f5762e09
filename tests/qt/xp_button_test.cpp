#include "qt/xp_button.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include "qt/balloon_tip.h"
#include "qt_test.h"

namespace {

using qt::XPButton;

class XPButtonTest : public testing::Test {
 protected:
  XPButtonTest() {
    button.setText("确认");
    button.resize(100, 40);
    button.show();
  }
  static QPixmap picture(int width, int height) {
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    return pixmap;
  }
  void mouse(QEvent::Type type, QPoint at, Qt::MouseButton which, Qt::MouseButtons held) {
    QMouseEvent event(type, at, button.mapToGlobal(at), which, held, Qt::NoModifier);
    QApplication::sendEvent(&button, &event);
  }
  XPButton button;
  QSignalSpy clicks{&button, &XPButton::Click};
};

const QPoint inside(50, 20), outside(500, 20);

TEST_F(XPButtonTest, statesFollowTheMouse) {
  struct Move {
    QEvent::Type type;
    QPoint at;
    Qt::MouseButton button;
    Qt::MouseButtons held;
    XPButton::State state;
    int clicks;
  };
  const Move moves[] = {
      {QEvent::MouseMove, inside, Qt::NoButton, Qt::NoButton, XPButton::Over, 0},
      {QEvent::MouseButtonPress, inside, Qt::RightButton, Qt::RightButton, XPButton::Over, 0},
      {QEvent::MouseButtonRelease, inside, Qt::RightButton, Qt::NoButton, XPButton::Normal, 0},
      {QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton, XPButton::Pressed, 0},
      {QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton, XPButton::Normal, 1},
      {QEvent::MouseMove, inside, Qt::NoButton, Qt::NoButton, XPButton::Over, 1},
      {QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton, XPButton::Pressed, 1},
      {QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton, XPButton::Normal, 1},
      {QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton, XPButton::Normal, 1},
  };
  int step = 0;
  for (const Move& move : moves) {
    SCOPED_TRACE(step++);
    mouse(move.type, move.at, move.button, move.held);
    EXPECT_EQ(button.state(), move.state);
    EXPECT_EQ(clicks.count(), move.clicks);
  }
}

TEST_F(XPButtonTest, tellsOfTheMouseWithButtonAndPlace) {
  QSignalSpy down(&button, &XPButton::MouseDown), up(&button, &XPButton::MouseUp);
  QTest::mouseClick(&button, Qt::RightButton, Qt::ShiftModifier, QPoint(7, 9));
  EXPECT_EQ(down.value(0), (QList<QVariant>{2, 1, 7, 9}));
  EXPECT_EQ(up.count(), 1);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(XPButtonTest, enterClicksAtOnceAndADisabledButtonDoesNothing) {
  QTest::keyPress(&button, Qt::Key_Return);
  EXPECT_EQ(clicks.count(), 1);
  button.setEnabled(false);
  EXPECT_EQ(button.state(), XPButton::Disabled);
  QTest::keyClick(&button, Qt::Key_Return);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(XPButtonTest, captionAndPictureArePlacedTogether) {
  const auto middle = [](const QRect& rect) { return (rect.left() + rect.right() + 1) / 2; };
  button.setPicture(picture(16, 16));
  auto at = button.places();
  EXPECT_LT(at.picture.right(), at.caption.left());
  EXPECT_NEAR((at.picture.left() + at.caption.right() + 1) / 2, 50, 1);
  EXPECT_NEAR(at.picture.center().y(), 20, 1);

  button.setPictureStyle(XPButton::PictureAbove);
  at = button.places();
  EXPECT_EQ(at.picture.bottom() + 1, at.caption.top());
  EXPECT_NEAR(middle(at.picture), 50, 1);
  EXPECT_NEAR(middle(at.caption), 50, 1);
  EXPECT_NEAR((at.picture.top() + at.caption.bottom() + 1) / 2, 20, 1);

  button.setPictureStyle(7);
  EXPECT_TRUE(button.places().caption.isEmpty());
  button.setText("");
  EXPECT_NEAR(middle(button.places().picture), 50, 1);
  button.setPicture({});
  button.setText("确认");
  EXPECT_NEAR(middle(button.places().caption), 50, 1);
}

TEST_F(XPButtonTest, theBorderIsTheSameAtAnySizeAndTheStatesDiffer) {
  button.setText("");
  const auto corner = [&](QSize size) {
    button.resize(size);
    return button.grab(QRect(0, 0, 3, 3)).toImage();
  };
  EXPECT_EQ(corner({60, 30}), corner({400, 200}));
  std::vector<QImage> faces{button.grab().toImage()};
  mouse(QEvent::MouseMove, inside, Qt::NoButton, Qt::NoButton);
  faces.push_back(button.grab().toImage());
  mouse(QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
  faces.push_back(button.grab().toImage());
  button.setEnabled(false);
  faces.push_back(button.grab().toImage());
  for (std::size_t i = 0; i < faces.size(); ++i)
    for (std::size_t j = i + 1; j < faces.size(); ++j) EXPECT_NE(faces[i], faces[j]) << i << " " << j;
}

TEST_F(XPButtonTest, theTipIsAYellowBalloonThatWraps) {
  EXPECT_EQ(button.balloon(), nullptr);
  button.setMyToolTip(QString("点击后保存本页的全部资料").repeated(5));
  ASSERT_NE(button.balloon(), nullptr);
  EXPECT_LT(button.balloon()->width(), 330);
  const QImage image = button.balloon()->grab().toImage();
  EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 5), QColor(255, 255, 0));
  button.setMyToolTip("");
  EXPECT_EQ(button.balloon(), nullptr);
}

}  // namespace
