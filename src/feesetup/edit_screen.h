// What the setup's short edit screens share: opened to add a row, or to change or delete the row that the grid stands
// on.
#pragma once

#include "feesetup/edited_row.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace feesetup {

class EditScreen : public kit::Screen {
 public:
  EditScreen(kit::Desk& desk, std::string name, std::string title);
  void load() override;
  kit::Layout layout() override;  // the entries as a form above the two buttons

  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 protected:
  struct Entry {
    kit::Field& field;
    std::string_view column;
    int width;  // in Chinese characters
  };
  virtual std::vector<Entry> entries() = 0;
  virtual std::vector<kit::Rule> rules() = 0;  // walked before anything is done, whatever the screen was opened for
  virtual void propose() {}                    // fills the fields of a row to be added
  virtual void remember() {}                   // notes what the row held, once it is shown
  virtual void add() = 0;
  virtual void modify() = 0;
  virtual void remove() = 0;

  store::RecordSet& row() { return editedRow(desk); }
  std::string now() { return desk.clock.now().plain(); }

 private:
  void act();
  kit::Mode mode_ = kit::Mode::Add;
};

}  // namespace feesetup
