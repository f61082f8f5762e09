#include "students/student_view.h"

#include <utility>

#include "kit/rows.h"
#include "students/student_records.h"

namespace students {

using kit::Format;

Formzctxsll::Formzctxsll(kit::Desk& all, std::int64_t row) : Screen(all, "Formzctxsll", "学生学籍资料浏览"), row_(row) {
  back.onPress([this] {
    if (mayClose()) close();
  });
}

void Formzctxsll::load() {
  bz.enable(kit::standsStill(desk.store, "xs", row_));
  if (!bz.enabled()) return;
  store::RecordSet row = kit::rowAt(desk.store, "xs", row_);
  const std::vector<std::pair<kit::Field*, Format>> shown = {
      {&xh, Format::Text},       {&xm, Format::Text},       {&xb, Format::Text},    {&bjmc, Format::Text},
      {&csrq, Format::LongDate}, {&rxrq, Format::LongDate}, {&sfzhm, Format::Text}, {&zzmm, Format::Text},
      {&lxdh, Format::Text},     {&sjhm, Format::Text},     {&rxxs, Format::Text},  {&yzbm, Format::Text},
      {&jtzz, Format::Text},     {&mz, Format::Text},       {&eml, Format::Text},   {&zymc, Format::Text},
      {&byxx, Format::Text},     {&yhkh, Format::Text}};
  for (const auto& [field, format] : shown) field->set(kit::formatted(row.get(field->name), format));
  sfbz.set(row.get("sfbz").money().fixed2());
  xp.set(fromBytes(row.get("xp").bytes()));
  storedNotes_ = row.get("bz").trimmed();
  bz.set(std::string(notesIndent) + storedNotes_);
  bz.focus();
}

bool Formzctxsll::mayClose() {
  // The window stays open once, so that the notes can be copied or tried again.
  if (!attempt([this] { saveNotes(); }) && !std::exchange(refused_, true)) return false;
  return true;
}

void Formzctxsll::saveNotes() {
  if (bz.trimmed() == storedNotes_) return;
  store::Unit unit(desk.store);
  if (!kit::standsStill(desk.store, "xs", row_))
    throw store::StoreError(store::Fault::RowGone, "该生学籍资料已不存在，备注未能保存。");
  store::RecordSet row = kit::rowAt(desk.store, "xs", row_);
  if (row.get("bz").trimmed() != storedNotes_) throw kit::changedMeanwhile("备注");
  kit::writeRow(row, {{"bz", bz.trimmed()}});
  unit.finish();
  storedNotes_ = bz.trimmed();
}

}  // namespace students
