#include "students/student_view.h"

#include <utility>

#include "students/student_records.h"

namespace students {

using kit::Format;

Formzctxsll::Formzctxsll(kit::Desk& all) : Screen(all, "Formzctxsll", "学生学籍资料浏览") {
  back.onPress([this] {
    if (mayClose()) close();
  });
}

void Formzctxsll::load() {
  store::RecordSet row = loadStudent(desk.store, desk.session.student_selection);
  bz.enable(!row.empty());
  if (row.empty()) return;
  const std::vector<std::pair<kit::Field*, Format>> shown = {
      {&xh, Format::Text},       {&xm, Format::Text},       {&xb, Format::Text},    {&bjmc, Format::Text},
      {&csrq, Format::LongDate}, {&rxrq, Format::LongDate}, {&sfzhm, Format::Text}, {&zzmm, Format::Text},
      {&lxdh, Format::Text},     {&sjhm, Format::Text},     {&rxxs, Format::Text},  {&yzbm, Format::Text},
      {&jtzz, Format::Text},     {&mz, Format::Text},       {&eml, Format::Text},   {&sfbz, Format::Money},
      {&zymc, Format::Text},     {&byxx, Format::Text},     {&yhkh, Format::Text}};
  for (const auto& [field, format] : shown) field->set(kit::formatted(row.get(field->name), format));
  xp.set(fromBytes(row.get("xp").bytes()));
  storedNotes_ = row.get("bz").trimmed();
  bz.set(std::string(notesIndent) + storedNotes_);
  bz.focus();
}

bool Formzctxsll::mayClose() {
  try {
    saveNotes();
  } catch (const store::StoreError& error) {
    stop(error.what(), "错误提示");
    // The window stays open once, so that the notes can be copied or tried again.
    if (!std::exchange(refused_, true)) return false;
  }
  desk.session.student_selection.clear();
  return true;
}

void Formzctxsll::saveNotes() {
  if (bz.trimmed() == storedNotes_) return;
  store::RecordSet row = loadStudent(desk.store, desk.session.student_selection);
  if (row.empty()) throw store::StoreError(store::Fault::RowGone, "该生学籍资料已不存在，备注未能保存。");
  row.set("bz", bz.trimmed());
  row.update();
  storedNotes_ = bz.trimmed();
}

}  // namespace students
