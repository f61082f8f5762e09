// A desk whose edit screens are opened at a row of a statement, as the setup's grids do.
#pragma once

#include "support/test_desk.h"

namespace support {

struct EditDesk : TestDesk {
  store::RecordSet edited{store};

  template <class S> std::unique_ptr<S> at(kit::Mode mode, const store::Sql& sql, int row = 0) {
    edited.open(sql);
    edited.first();
    for (int i = 0; i < row; ++i) edited.next();
    session.EditMode = mode;
    session.edited = &edited;
    return opened<S>(*this);
  }
  template <class S> std::unique_ptr<S> adding() {
    session.EditMode = kit::Mode::Add;
    session.edited = nullptr;
    return opened<S>(*this);
  }
  void told(const std::string& text) { person.expect(kit::Box::Information, text, "信息提示"); }
  void refused(const std::string& text) { person.expect(kit::Box::Stop, text, "错误提示"); }
  // Each case is a text for each field and the message that the confirm button then gives.
  void refuses(kit::Action& confirm, const std::vector<kit::Field*>& fields,
               const std::vector<std::vector<std::string>>& cases) {
    for (const auto& texts : cases) {
      for (std::size_t i = 0; i < fields.size(); ++i) fields[i]->set(texts[i]);
      refused(texts.back());
      confirm.press();
    }
  }
};

inline std::string times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

}  // namespace support
