// The office: the Desk made of its real pieces, and the run of the program on it.
#pragma once

#include <exception>
#include <string>

#include "app/data_folder.h"
#include "qt/computer.h"
#include "qt/navigator.h"
#include "qt/person.h"
#include "qt/printing/qt_printer.h"
#include "qt/progress.h"
#include "sheets/xlsx_sheets.h"

namespace app {

class Office {
 public:
  explicit Office(const DataFolder& folder);
  int run();  // from the splash to the last window; a QApplication must exist
  bool folderWanted() const { return session_.folder_wanted; }  // the person leaves this folder for another one
  void tell(const std::exception_ptr& fault);                   // one that came past every screen
  qt::QtNavigator& windows() { return navigator_; }

 private:
  store::Store store_;
  kit::Session session_;
  qt::QtPerson person_;
  qt::QtNavigator navigator_;
  qt::QtClock clock_;
  qt::QtPrinter printer_;
  sheets::XlsxSheets sheets_;
  qt::QtDesktop desktop_;
  qt::QtProgress progress_;
  kit::Desk desk_{session_, store_, person_, navigator_, clock_, printer_, sheets_, desktop_, progress_};
};

}  // namespace app
