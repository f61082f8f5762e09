#include "app/screens.h"

#include "arrears/arrears_delete.h"
#include "arrears/arrears_edit.h"
#include "arrears/arrears_entry.h"
#include "arrears/arrears_query.h"
#include "arrears/due_progress.h"
#include "arrears/due_settings.h"
#include "collection/batch_window.h"
#include "collection/fee_window.h"
#include "collection/fee_window_wait.h"
#include "collection/payment_edit.h"
#include "collection/payment_query.h"
#include "collection/receipt_form.h"
#include "collection/receipt_notes.h"
#include "collection/receipt_print.h"
#include "collection/submission.h"
#include "feesetup/class_edit.h"
#include "feesetup/class_standard_change.h"
#include "feesetup/class_standards.h"
#include "feesetup/desk_settings.h"
#include "feesetup/enrolment_form_edit.h"
#include "feesetup/fee_item_edit.h"
#include "feesetup/form_standards.h"
#include "feesetup/major_edit.h"
#include "feesetup/setup.h"
#include "feesetup/standard_delete.h"
#include "reports/income_statement.h"
#include "reports/print_options.h"
#include "shell/about.h"
#include "shell/console.h"
#include "shell/loading.h"
#include "shell/login.h"
#include "shell/payment_summary.h"
#include "shell/splash.h"
#include "staff/teacher_edit.h"
#include "staff/teacher_list.h"
#include "staff/teacher_query.h"
#include "students/class_transfer_window.h"
#include "students/student_edit.h"
#include "students/student_query.h"
#include "students/student_view.h"
#include "students/suspension_edit.h"
#include "students/suspension_list.h"
#include "students/suspension_query.h"
#include "upkeep/clearing.h"
#include "upkeep/first_run.h"
#include "upkeep/password_change.h"
#include "upkeep/school_name.h"
#include "upkeep/user_edit.h"
#include "upkeep/user_list.h"
#include "upkeep/user_rights.h"

namespace app {
namespace {

template <class S> Entry screen(const char* name) {
  return {name,
          [](kit::Desk& desk, const Opening& with) {
            if constexpr (std::is_constructible_v<S, kit::Desk&, kit::Editing>)
              return std::make_unique<S>(desk, with.editing);
            else if constexpr (std::is_constructible_v<S, kit::Desk&, collection::FeeWindowFor>)
              return std::make_unique<S>(desk, collection::FeeWindowFor{with.xh});
            else if constexpr (std::is_constructible_v<S, kit::Desk&, collection::ReceiptPrint>)
              return std::make_unique<S>(desk, collection::ReceiptPrint{.print_fpbh = with.fpbh, .print_xh = with.xh});
            else if constexpr (std::is_constructible_v<S, kit::Desk&, arrears::ArrearsFor>)
              return std::make_unique<S>(desk, arrears::ArrearsFor{.current_xh = with.xh});
            else if constexpr (std::is_constructible_v<S, kit::Desk&, std::int64_t>)
              return std::make_unique<S>(desk, with.editing.row);
            else if constexpr (std::is_constructible_v<S, kit::Desk&, std::string>)
              return std::make_unique<S>(desk, with.xh);
            else return std::make_unique<S>(desk);
          },
          std::is_constructible_v<S, kit::Desk&, kit::Editing>};
}

}  // namespace

const std::vector<Entry>& screens() {
  static const std::vector<Entry> all = {
      screen<shell::Form1>("Form1"),
      screen<shell::Formcsh5>("Formcsh5"),
      screen<shell::Formcsh1>("Formcsh1"),
      screen<shell::Formcsh2>("Formcsh2"),
      screen<shell::Formzct>("Formzct"),
      screen<shell::Formzct1>("Formzct1"),
      screen<upkeep::Formyhxx4>("Formyhxx4"),
      screen<upkeep::Formyhxx>("Formyhxx"),
      screen<upkeep::Formyhxx1>("Formyhxx1"),
      screen<upkeep::Formyhxx2>("Formyhxx2"),
      screen<upkeep::Formyhxx3>("Formyhxx3"),
      screen<upkeep::Formxxmc>("Formxxmc"),
      screen<students::Formzctxs>("Formzctxs"),
      screen<students::Formzctxsll>("Formzctxsll"),
      screen<students::Formzctxscx>("Formzctxscx"),
      screen<students::Formzctxscx1>("Formzctxscx1"),
      screen<students::Formtb>("Formtb"),
      screen<feesetup::Formsz>("Formsz"),
      screen<feesetup::Formszqt>("Formszqt"),
      screen<feesetup::Formszzymc>("Formszzymc"),
      screen<feesetup::Formszbjzl>("Formszbjzl"),
      screen<feesetup::Formszsfxm>("Formszsfxm"),
      screen<feesetup::Formszsfbz>("Formszsfbz"),
      screen<feesetup::Formszsfbz1>("Formszsfbz1"),
      screen<feesetup::Formszsfbz2>("Formszsfbz2"),
      screen<feesetup::Formszrxxs>("Formszrxxs"),
      screen<feesetup::Formszsfbz3>("Formszsfbz3"),
      screen<feesetup::Formszsfbz4>("Formszsfbz4"),
      screen<arrears::Formqfcl>("Formqfcl"),
      screen<arrears::Formqfcl1>("Formqfcl1"),
      screen<arrears::Formqfcl11>("Formqfcl11"),
      screen<arrears::Formqf>("Formqf"),
      screen<arrears::Formqfcl5>("Formqfcl5"),
      screen<collection::Formzctsf1>("Formzctsf1"),
      screen<collection::Formzctsf3>("Formzctsf3"),
      screen<collection::Formzctsf31>("Formzctsf31"),
      screen<arrears::Formqfcl2>("Formqfcl2"),
      screen<arrears::Formqfcl3>("Formqfcl3"),
      screen<collection::Formzctsf4>("Formzctsf4"),
      screen<collection::Formzctsf6>("Formzctsf6"),
      screen<collection::Formzctsf8>("Formzctsf8"),
      screen<collection::Formzctsf5>("Formzctsf5"),
      screen<collection::Formzctsf2>("Formzctsf2"),
      screen<collection::Formzctsf7>("Formzctsf7"),
      screen<collection::Formzctsf9>("Formzctsf9"),
      screen<reports::Formzctxsdy>("Formzctxsdy"),
      screen<reports::Formzctjfjldy>("Formzctjfjldy"),
      screen<reports::Formzctqfjldy>("Formzctqfjldy"),
      screen<reports::Formkh>("Formkh"),
      screen<reports::Formkh1>("Formkh1"),
      screen<upkeep::Formcsh3>("Formcsh3"),
      screen<upkeep::Formcsh4>("Formcsh4"),
      screen<students::Formxxfk3>("Formxxfk3"),
      screen<students::Formxxfk>("Formxxfk"),
      screen<students::Formxxfk1>("Formxxfk1"),
      screen<students::Formxxfk2>("Formxxfk2"),
      screen<staff::Formjs3>("Formjs3"),
      screen<staff::Formjs>("Formjs"),
      screen<staff::Formjs1>("Formjs1"),
      screen<staff::Formjs2>("Formjs2"),
  };
  return all;
}

}  // namespace app
