#include <QCheckBox>
#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {
namespace {

// A tick that was given a width keeps to it: a caption too long for its place ends with a mark and is told in full by
// its tip.
class TickBox : public QCheckBox {
 public:
  QSize sizeHint() const override {
    const QSize own = QCheckBox::sizeHint();
    return minimumWidth() > 0 ? QSize(minimumWidth(), own.height()) : own;
  }
  std::string tip;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownText(option);
    painter.drawControl(QStyle::CE_CheckBox, option);
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) {
      QStyleOptionButton option;
      initStyleOption(&option);
      setToolTip(!tip.empty() ? toQt(tip) : shownText(option) != text() ? text() : QString());
    }
    return QCheckBox::event(event);
  }

 private:
  QString shownText(const QStyleOptionButton& option) const {
    const int room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    return fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
  }
};

}  // namespace

QWidget* checkWidget(kit::Check& check, Renderer& renderer) {
  auto* box = new TickBox;
  renderer.bind(check, box);
  renderer.listen(check, box);
  const auto show = [box, &check] {
    box->setText(toQt(check.caption()));
    box->setChecked(check.on());
    box->tip = check.tip();
  };
  renderer.follow(check, show);
  QObject::connect(box, &QCheckBox::clicked, &renderer, [box, &check, show] {
    if (check.reachable() && box->isChecked() != check.on()) check.toggle();
    show();
  });
  return box;
}

}  // namespace qt
