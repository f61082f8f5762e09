#include "shell/console.h"

namespace shell {

using namespace kit;

// The parts in the order in which the hand-made console view takes them: the panel that slides in, the four frames of
// the work area, the three overviews that cover it.
Layout Formzct::layout() {
  return {
      .root = custom("console",
                     {group(classes.frame, {classes.tree, classes.students, classes.opensFeeWindow}),
                      group(card.frame, card.layout()), group(payments.frame, {payments.list, payments.bar}),
                      group(arrears.frame, {arrears.list, arrears.bar, buttons({arrears.due, arrears.back})}),
                      group(sharing.frame, {sharing.list}), group(students_overview.frame, students_overview.layout()),
                      group(payments_overview.frame, payments_overview.layout()),
                      group(arrears_overview.frame, arrears_overview.layout()), class_strip}),
      .maximised = true,
      .menus = bar(),
      .toolbar = toolbar(),
      .status = {&ready, &user, &third}};
}

}  // namespace shell
