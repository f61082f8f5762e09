#include "qt/printing/print_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>
#include <QWheelEvent>

#include "qt/text.h"

namespace qt {
namespace {

constexpr double farthest = 30, step = 0.5;  // millimetres by which a document is moved
constexpr int mostCopies = 99;

QSettings& memory() {
  static QSettings settings(QSettings::IniFormat, QSettings::UserScope, "fee-office", "printing");
  return settings;
}

QString kindKey(platform::Kind kind) {
  switch (kind) {
    case platform::Kind::Receipt: return "receipt/";
    case platform::Kind::Voucher: return "voucher/";
    case platform::Kind::Report: break;
  }
  return "report/";
}

QString paperName(const printing::Paper& paper) {
  static const struct {
    const char* name;
    printing::Size size;
  } known[] = {{"A3", {297, 420}},    {"A4", {210, 297}},     {"A5", {148, 210}},     {"A6", {105, 148}},
               {"B4", {250, 353}},    {"B5", {176, 250}},     {"JIS B5", {182, 257}}, {"16 开", {184, 260}},
               {"32 开", {130, 184}}, {"Letter", {216, 279}}, {"Legal", {216, 356}}};
  const QString size = sizeText(paper.size);
  for (const auto& one : known)
    if (qAbs(one.size.width - paper.size.width) < 1 && qAbs(one.size.height - paper.size.height) < 1)
      return one.name + QString("（%1）").arg(size);
  return size;
}

}  // namespace

QString sizeText(printing::Size size) {
  const auto plain = [](double millimetres) { return QString::number(qRound(millimetres * 10) / 10.0); };
  return plain(size.width) + " × " + plain(size.height) + " 毫米";
}

template <class Field>
Field* PrintSettings::add(QHBoxLayout& row, const QString& caption, const char* name, Field* field) {
  if (!caption.isEmpty()) {
    auto* label = new QLabel(caption);
    label->setProperty("role", "label");
    label->setBuddy(field);
    row.addWidget(label);
  }
  field->setObjectName(name);
  field->setFocusPolicy(Qt::StrongFocus);
  field->installEventFilter(this);
  row.addWidget(field);
  row.addSpacing(8);
  return field;
}

QDoubleSpinBox* PrintSettings::offset(const QString& tip) {
  auto* field = new QDoubleSpinBox;
  field->setRange(-farthest, farthest);
  field->setDecimals(1);
  field->setSingleStep(step);
  field->setSuffix(" 毫米");
  field->setToolTip(tip);
  return field;
}

PrintSettings::PrintSettings(const platform::Drawing& drawing, QWidget* parent)
    : QWidget(parent), drawing_(drawing), queues_(printing::queues()) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  printer_ = add(*row, "打印机", "printer", new QComboBox);
  paper_ = add(*row, "纸张", "paper", new QComboBox);
  pages_ = add(*row, "页数", "pages", new QLineEdit);
  copies_ = add(*row, "份数", "copies", new QSpinBox);
  bothSides_ = add(*row, {}, "bothSides", new QCheckBox("双面"));
  right_ = add(*row, "右移", "right", offset("整张往右移动多少毫米，负数往左"));
  down_ = add(*row, "下移", "down", offset("整张往下移动多少毫米，负数往上"));
  row->addStretch(1);
  for (QComboBox* box : {printer_, paper_}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(box == paper_ ? 24 : 18);
  }
  pages_->setPlaceholderText("全部");
  pages_->setToolTip("空着打印全部；只打印几页，例如 2,5-6");
  pages_->setFixedWidth(90);
  copies_->setRange(1, mostCopies);
  for (QWidget* field : std::initializer_list<QWidget*>{printer_, paper_, copies_, right_, down_})
    field->setMinimumHeight(pages_->sizeHint().height());

  if (queues_.empty()) {
    printer_->addItem("没有找到打印机");
    setEnabled(false);
    return;
  }
  for (const printing::Queue& queue : queues_) {
    printer_->addItem(toQt(queue.title), toQt(queue.name));
    if (queue.usual) printer_->setCurrentIndex(printer_->count() - 1);
  }
  const int last = printer_->findData(memory().value(kindKey(drawing_.kind) + "printer"));
  if (last >= 0) printer_->setCurrentIndex(last);
  choosePrinter();
  connect(printer_, &QComboBox::currentIndexChanged, this, [this] {
    choosePrinter();
    changed();
  });
}

QString PrintSettings::key(const char* name) const {
  return kindKey(drawing_.kind) + printer_->currentData().toString() + "/" + name;
}

void PrintSettings::choosePrinter() {
  fillPapers();
  right_->setValue(memory().value(key("right")).toDouble());
  down_->setValue(memory().value(key("down")).toDouble());
}

void PrintSettings::addPaper(const printing::Paper& paper) {
  papers_.push_back(paper);
  paper_->addItem(paperName(paper), toQt(paper.media));
}

// The drawing's own paper is chosen unless another was printed on the last time, or the printer does not take it.
void PrintSettings::fillPapers() {
  const printing::Abilities able = printing::abilities(fromQt(printer_->currentData().toString()));
  const printing::Size own{drawing_.width, drawing_.height};
  paper_->clear();
  papers_.clear();
  const printing::Paper* named = able.named(own);
  if (!named && (able.takes(own) || able.papers.empty())) addPaper({printing::mediaOf(own), own});
  for (const printing::Paper& paper : able.papers) addPaper(paper);
  const int chosen = paper_->findData(memory().value(key("paper"))), usual = paper_->findData(toQt(able.usual));
  paper_->setCurrentIndex(chosen >= 0                       ? chosen
                          : named                           ? paper_->findData(toQt(named->media))
                          : sameSheet(papers_[0].size, own) ? 0
                                                            : qMax(0, usual));
  bothSides_->setVisible(able.bothSides);
  bothSides_->setChecked(able.bothSides && memory().value(key("bothSides")).toBool());
}

QString PrintSettings::trouble() const {
  if (queues_.empty()) return {};
  const printing::Queue& queue = queues_[static_cast<std::size_t>(printer_->currentIndex())];
  if (!queue.accepts) return "打印机“" + toQt(queue.title) + "”现在不接受打印任务。";
  if (queue.stopped) return "打印机“" + toQt(queue.title) + "”已暂停，任务会等到它恢复后再打印。";
  return {};
}

std::optional<std::vector<int>> PrintSettings::pages() const {
  return printing::pagesOf(fromQt(pages_->text()), static_cast<int>(drawing_.pages.size()));
}

void PrintSettings::correctPages() {
  pages_->setFocus();
  pages_->selectAll();
}

printing::Job PrintSettings::job(const printing::Placing& placing) const {
  return {.queue = fromQt(printer_->currentData().toString()),
          .title = drawing_.title,
          .media = fromQt(paper_->currentData().toString()),
          .copies = copies_->value(),
          .bothSides = bothSides_->isChecked(),
          .turned = placing.turned};
}

printing::Size PrintSettings::paper() const { return papers_[static_cast<std::size_t>(paper_->currentIndex())].size; }
QString PrintSettings::paperText() const { return paper_->currentText(); }
double PrintSettings::right() const { return right_->value(); }
double PrintSettings::down() const { return down_->value(); }

OtherPaper PrintSettings::otherPaper() const {
  if (memory().value(key("paper")) != paper_->currentData()) return OtherPaper::Ask;
  return static_cast<OtherPaper>(memory().value(key("otherPaper")).toInt());
}

void PrintSettings::remember(OtherPaper said) {
  memory().setValue(kindKey(drawing_.kind) + "printer", printer_->currentData());
  memory().setValue(key("paper"), paper_->currentData());
  memory().setValue(key("otherPaper"), static_cast<int>(said));
  memory().setValue(key("right"), right());
  memory().setValue(key("down"), down());
  memory().setValue(key("bothSides"), bothSides_->isChecked());
}

// The wheel over a field that is not being edited changes nothing unseen.
bool PrintSettings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace qt
