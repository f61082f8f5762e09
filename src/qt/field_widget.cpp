#include <QDate>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <algorithm>

#include "base/pinyin.h"
#include "qt/drop_edit.h"
#include "qt/icon.h"
#include "qt/member_widgets.h"
#include "qt/narrowed_list.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

using kit::Entry;

constexpr int usualWidth = 10, dateWidth = 7, leastShown = 3, memoLines = 3;  // characters; lines
constexpr double prominentScale = 1.5;
constexpr int shownMargins = 4;

// A text that can be selected for copying, but not changed. One too long for its place ends with a mark and is told in
// full by its tip.
class ShownEdit : public QLineEdit {
 public:
  explicit ShownEdit(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setProperty("shown", true);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override {
    const int words = fontMetrics().horizontalAdvance(text()) + 10;
    return {std::max(words, charactersWide(fontMetrics(), leastShown)), fontMetrics().height() + shownMargins};
  }
  QSize minimumSizeHint() const override {
    return {charactersWide(fontMetrics(), leastShown), fontMetrics().height() + shownMargins};
  }
  std::string tip;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (hasSelectedText() || !tooLong()) return QLineEdit::paintEvent(event);
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(room(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room().width()));
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) setToolTip(!tip.empty() ? toQt(tip) : tooLong() ? text() : QString());
    return QLineEdit::event(event);
  }

 private:
  QRect room() const { return rect().adjusted(4, 0, -4, 0); }
  bool tooLong() const { return fontMetrics().horizontalAdvance(text()) > room().width() + 1; }
};

void colour(QWidget& widget, const kit::Field& field) {
  const QVariant wanted = field.colour() ? QVariant(toQt(*field.colour())) : QVariant();
  if (widget.property("colour") == wanted) return;
  widget.setProperty("colour", wanted);
  QPalette palette;
  if (field.colour())
    for (const auto group : {QPalette::Active, QPalette::Inactive})
      for (const auto role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(group, role, toQt(*field.colour()));
  widget.setPalette(palette);
}

void enlarge(QWidget& widget, const kit::Field& field) {
  if (!field.prominent) return;
  QFont font = widget.font();
  font.setPointSizeF(font.pointSizeF() * prominentScale);
  font.setBold(true);
  widget.setFont(font);
}

// The edit shows what the field holds; typing goes to the field, which may change the very text that is being typed.
void keepInStep(QLineEdit& edit, kit::Field& field, Renderer& renderer) {
  renderer.bind(field, &edit);
  renderer.listen(field, &edit);
  const auto show = [&edit, &field] {
    const QString text = toQt(field.text());
    if (edit.text() != text) {
      const QSignalBlocker quiet(edit);
      const int place = edit.cursorPosition();
      const bool typing = edit.hasFocus() && !edit.isReadOnly();
      edit.setText(text);
      edit.setCursorPosition(typing ? std::min(place, static_cast<int>(text.size())) : 0);
    }
    edit.setAlignment((field.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    colour(edit, field);
    if (edit.property("recedes").toBool() != field.recedes()) {
      edit.setProperty("recedes", field.recedes());
      edit.style()->polish(&edit);
    }
  };
  renderer.follow(field, show);
  QObject::connect(&edit, &QLineEdit::textEdited, &renderer, [&field, show](const QString& text) {
    if (field.reachable()) field.type(fromQt(text));
    show();
  });
}

QStringList choicesOf(const kit::Field& field) {
  QStringList choices;
  for (const std::string& choice : field.choices()) choices << toQt(choice);
  return choices;
}

void take(kit::Field& field, const QString& choice) {
  const std::string text = fromQt(choice);
  const auto& choices = field.choices();
  if (field.reachable() && std::find(choices.begin(), choices.end(), text) != choices.end()) field.take(text);
}

// A click into an empty edit opens the list below; while something is typed, it narrows to the entries that are meant
// by it. The focus stays in the edit, and what was typed counts as it stands unless an entry is chosen with the arrow
// keys or the mouse.
void narrowWhileTyping(DropEdit& edit, kit::Field& field, Renderer& renderer) {
  constexpr qsizetype mostOffered = 50;
  auto* list = new NarrowedList(edit, [&field](const QString& choice) { take(field, choice); });
  QObject::connect(&edit, &QLineEdit::textEdited, &renderer, [&field, list](const QString& typed) {
    if (typed.trimmed().isEmpty() || !field.reachable()) return list->hide();
    if (field.choices().empty() || typed.size() == 1) field.drop();  // a new word: others may have written meanwhile
    if (!field.reachable() || field.choices().empty()) return list->hide();
    std::vector<std::pair<std::string, QString>> meant;
    const std::string text = fromQt(typed);
    for (const std::string& choice : field.choices())
      if (base::meantBy(choice, text)) meant.emplace_back(field.names ? base::readingKey(choice) : "", toQt(choice));
    if (meant.size() == 1 && meant.front().second == typed) return list->hide();
    if (field.names) std::sort(meant.begin(), meant.end());
    QStringList entries;
    for (const auto& [key, choice] : meant)
      if (entries.size() < mostOffered) entries << choice;
    list->offer(entries);
  });
  QObject::connect(&edit, &DropEdit::emptyClicked, &renderer, [&field, list] {
    if (field.reachable()) field.drop();
    if (field.reachable() && !field.choices().empty()) list->offer(choicesOf(field));
  });
}

QWidget* dropField(kit::Field& field, Renderer& renderer) {
  auto* edit = new DropEdit("chevron-down", nullptr);
  edit->setReadOnly(field.entry == Entry::Choose);
  edit->opensByMouse = !field.handlesDoubleClick();
  keepInStep(*edit, field, renderer);
  if (field.entry == Entry::Pick) narrowWhileTyping(*edit, field, renderer);
  const auto fill = [&field] {
    if (field.reachable()) field.drop();
    return field.reachable() && !field.choices().empty();
  };
  QObject::connect(edit, &DropEdit::dropWanted, &renderer, [edit, &field, fill] {
    if (!fill() || !edit->isVisible()) return;
    dropChoices(*edit, choicesOf(field), [&](const QString& choice) { take(field, choice); });
  });
  QObject::connect(edit, &DropEdit::stepped, &renderer, [edit, &field, fill](int by) {
    if (field.choices().empty() && !fill()) return;
    const QStringList choices = choicesOf(field);
    const auto at = choices.indexOf(edit->text()) + by;
    if (at >= 0 && at < choices.size()) take(field, choices[at]);
  });
  QObject::connect(edit, &DropEdit::searched, &renderer, [edit, &field, fill](const QString& start) {
    if (field.choices().empty() && !fill()) return;
    // From the entry behind the present one, round: the same key again finds the next.
    const QStringList choices = choicesOf(field);
    const auto from = choices.indexOf(edit->text()) + 1;
    for (qsizetype i = 0; i < choices.size(); ++i) {
      const QString& choice = choices[(from + i) % choices.size()];
      if (choice.startsWith(start, Qt::CaseInsensitive)) return take(field, choice);
    }
  });
  return edit;
}

QWidget* dateField(kit::Field& field, Renderer& renderer) {
  auto* edit = new DropEdit("calendar-days", nullptr);
  edit->opensByMouse = !field.handlesDoubleClick();
  keepInStep(*edit, field, renderer);
  QObject::connect(edit, &DropEdit::dropWanted, &renderer, [edit, &field] {
    if (!field.reachable()) return;
    dropCalendar(*edit, QDate::currentDate().addDays(field.calendarFrom), [&](const QString& date) {
      if (field.reachable()) field.take(fromQt(date));
    });
  });
  return edit;
}

QWidget* memoField(kit::Field& field, Renderer& renderer) {
  auto* edit = new QPlainTextEdit;
  edit->setTabChangesFocus(true);
  renderer.bind(field, edit);
  renderer.listen(field, edit);
  const auto show = [edit, &field] {
    const QString text = toQt(field.text());
    if (edit->toPlainText() != text) {
      const QSignalBlocker quiet(edit);
      const int place = edit->textCursor().position();
      edit->setPlainText(text);
      QTextCursor cursor = edit->textCursor();
      cursor.setPosition(std::min(place, edit->document()->characterCount() - 1));
      edit->setTextCursor(cursor);
    }
    colour(*edit, field);
  };
  renderer.follow(field, show);
  QObject::connect(edit, &QPlainTextEdit::textChanged, &renderer, [edit, &field, show] {
    const std::string text = fromQt(edit->toPlainText());
    if (text == field.text()) return;
    if (field.reachable()) field.type(text);
    show();
  });
  edit->setMinimumHeight(edit->fontMetrics().lineSpacing() * memoLines + 16);
  return edit;
}

// Shows what was typed as long as its eye is pressed: nobody types while the dots are open.
void showDots(QLineEdit& edit) {
  edit.setEchoMode(QLineEdit::Password);
  QAction* const eye = edit.addAction(icon("eye"), QLineEdit::TrailingPosition);
  eye->setToolTip("按住显示密码");
  for (auto* button : edit.findChildren<QToolButton*>()) {
    QObject::connect(button, &QToolButton::pressed, &edit, [&edit] { edit.setEchoMode(QLineEdit::Normal); });
    QObject::connect(button, &QToolButton::released, &edit, [&edit] { edit.setEchoMode(QLineEdit::Password); });
  }
}

QWidget* lineField(kit::Field& field, Renderer& renderer) {
  auto* edit = new QLineEdit;
  if (field.entry == Entry::Password) showDots(*edit);
  keepInStep(*edit, field, renderer);
  return edit;
}

QWidget* shownField(kit::Field& field, Renderer& renderer) {
  auto* edit = new ShownEdit(nullptr);
  enlarge(*edit, field);
  keepInStep(*edit, field, renderer);
  renderer.follow(field, [edit, &field] {
    edit->tip = field.tip();
    edit->updateGeometry();
  });
  return edit;
}

}  // namespace

QWidget* fieldWidget(kit::Field& field, Renderer& renderer) {
  switch (field.entry) {
    case Entry::Memo: return memoField(field, renderer);
    case Entry::Shown: return shownField(field, renderer);
    case Entry::Pick:
    case Entry::Choose:
    case Entry::Date: {
      QWidget* edit = field.entry == Entry::Date ? dateField(field, renderer) : dropField(field, renderer);
      edit->setMinimumWidth(charactersWide(edit->fontMetrics(), field.entry == Entry::Date ? dateWidth : usualWidth));
      return edit;
    }
    case Entry::Text:
    case Entry::Password: break;
  }
  QWidget* edit = lineField(field, renderer);
  edit->setMinimumWidth(charactersWide(edit->fontMetrics(), usualWidth));
  return edit;
}

QWidget* shownText(kit::Field& field, Renderer& renderer, bool wraps) {
  auto* label = new QLabel;
  enlarge(*label, field);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(wraps);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  renderer.bind(field, label);
  renderer.listen(field, label);
  renderer.follow(field, [label, &field] {
    label->setText(toQt(field.text()));
    label->setAlignment((field.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    colour(*label, field);
  });
  return label;
}

}  // namespace qt
