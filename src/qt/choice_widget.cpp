#include <QBoxLayout>
#include <QRadioButton>
#include <numeric>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {
namespace {
constexpr std::size_t longestRow = 72;  // bytes of text: about two dozen Chinese characters
}

QWidget* choiceWidget(kit::Choice& choice, Renderer& renderer) {
  const auto& options = choice.options();
  const std::size_t length =
      std::accumulate(options.begin(), options.end(), std::size_t{0},
                      [](std::size_t sum, const std::string& option) { return sum + option.size(); });
  auto* holder = new QWidget;
  auto* box =
      std::make_unique<QBoxLayout>(length <= longestRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, holder)
          .release();
  box->setContentsMargins(0, 0, 0, 0);
  if (length > longestRow) box->setSpacing(3);
  renderer.bind(choice, holder);
  std::vector<QRadioButton*> buttons;
  for (const std::string& option : options) {
    auto* button = buttons.emplace_back(new QRadioButton(toQt(option), holder));
    box->addWidget(button);
    renderer.listen(choice, button);
  }
  box->addStretch(1);
  const auto show = [buttons, &choice] {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
      const bool on = static_cast<int>(i) == choice.chosen();
      if (buttons[i]->isChecked() == on) continue;
      // The last one of an exclusive set would not let itself be cleared.
      buttons[i]->setAutoExclusive(false);
      buttons[i]->setChecked(on);
      buttons[i]->setAutoExclusive(true);
    }
  };
  renderer.follow(choice, show);
  for (std::size_t i = 0; i < buttons.size(); ++i)
    QObject::connect(buttons[i], &QRadioButton::clicked, &renderer, [&choice, show, i] {
      if (choice.reachable()) choice.choose(static_cast<int>(i));
      show();
    });
  return holder;
}

}  // namespace qt
