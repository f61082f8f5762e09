#include "kit/record_edit.h"

#include <algorithm>

#include "base/text.h"
#include "kit/rows.h"

namespace kit {
namespace {

constexpr const char* addedOne = "已添加 1 条记录";

std::string columnOf(const Field& field, std::string_view column) {
  return column.empty() ? field.name : std::string(column);
}

store::Value stored(const Field& field, Format format) {
  if (format == Format::Money || format == Format::Padded) {
    if (field.blank()) return base::Money();  // an emptied amount is no amount: a sum over it would find nothing
    return base::Money::leading(field.trimmed());
  }
  if (format == Format::Date || format == Format::LongDate) {
    const auto day = base::Date::parse(field.trimmed());
    return day ? store::Value(*day) : store::Value("");
  }
  return field.trimmed();
}

}  // namespace

RecordEdit::RecordEdit(Desk& all, std::string own, std::string words, const char* table, const Editing& editing)
    : Screen(all, std::move(own), std::move(words)),
      EditMode(editing.EditMode),
      ConsolePanel(editing.ConsolePanel),
      table_(table),
      mark_(editing.row) {
  confirm.onPress([this] { act(); });
  cancel.onPress([this] { close(); });
}

std::vector<RecordEdit::Bound> RecordEdit::bound() {
  std::vector<Bound> all;
  for (Member* member : members()) {
    if (member->kind != MemberKind::Field) continue;
    Field& field = static_cast<Field&>(*member);
    if (field.entry != Entry::Shown) all.push_back({field, 0});
  }
  return all;
}

void RecordEdit::load() {
  if (EditMode == Mode::Add) return propose();
  if (!standsStill(desk.store, table_, mark_)) {
    close();
    if (mark_ != 0) inform("选定的记录已被其他计算机删除，请重新选择！", "信息提示");
    return;
  }
  store::RecordSet set = row();
  show(set);
  shown(set);
  // What is to be deleted is shown, not edited: the guards ask for the row as it stands.
  if (EditMode != Mode::Delete) return;
  for (const Bound& one : bound()) one.field.enable(false);
  confirm.focus();
}

void RecordEdit::show(store::RecordSet& set) {
  former_.clear();
  for (const Bound& one : bound()) {
    one.field.set(formatted(set.get(columnOf(one.field, one.column)), one.format));
    former_.emplace_back(&one.field, one.field.trimmed());
  }
}

store::RecordSet RecordEdit::row() { return rowAt(desk.store, table_, mark_); }

std::string RecordEdit::former(const Field& field) const {
  const auto found = std::ranges::find(former_, &field, &std::pair<const Field*, std::string>::first);
  return found == former_.end() ? "" : found->second;
}

bool RecordEdit::changed(const Field& field) const { return EditMode == Mode::Add || field.trimmed() != former(field); }

void RecordEdit::mustStandAsShown(store::RecordSet& set, const Bound& one) {
  const std::string now = base::trim(formatted(set.get(columnOf(one.field, one.column)), one.format));
  if (now != former(one.field)) throw changedMeanwhile(base::trim(one.field.label()));
}

void RecordEdit::write(store::RecordSet& set) {
  for (const Bound& one : bound()) {
    if (!changed(one.field)) continue;
    if (EditMode == Mode::Modify) mustStandAsShown(set, one);
    set.set(columnOf(one.field, one.column), stored(one.field, one.format));
  }
}

void RecordEdit::act() {
  if (!holds(desk.person, rules())) return;
  switch (EditMode) {
    case Mode::Add: return add();
    case Mode::Modify: return modify();
    case Mode::Delete: return remove();
  }
}

bool RecordEdit::agreed(const std::vector<Question>& questions) {
  return std::ranges::all_of(questions,
                             [this](const Question& one) { return desk.person.ask(one.box, one.text, one.title); });
}

Rule RecordEdit::noQuote(Field& field) {
  return {&field, [this, &field] { return changed(field) && holdsQuote(field)(); }, quoteRefused, kit::wrongInput};
}

void RecordEdit::modify() {
  if (agreed(words().modify)) save();
}

void RecordEdit::remove() {
  if (agreed(words().remove)) save();
}

void RecordEdit::save() {
  const std::vector<Rule> guarded = guards();
  const Rule* refused = nullptr;
  {
    store::Unit unit(desk.store);
    store::RecordSet set = EditMode == Mode::Add ? rows(store::Sql::table(table_)) : row();
    refused = broken(guarded);
    if (!refused) {
      put(set);
      unit.finish();
    }
  }
  if (refused) return tell(desk.person, *refused);
  const Words say = words();
  if (EditMode == Mode::Add && say.staysForTheNext) return enterTheNext();
  if (EditMode == Mode::Modify) done(say.modified, say.modifiedTitle);
  else done(EditMode == Mode::Add ? say.added : say.removed);
}

void RecordEdit::put(store::RecordSet& set) {
  if (EditMode == Mode::Delete) {
    for (const Bound& one : bound()) mustStandAsShown(set, one);
    set.remove();
    return removing();
  }
  if (EditMode == Mode::Add) set.addNew();
  write(set);
  EditMode == Mode::Add ? adding(set) : modifying(set);
  set.update();
}

void RecordEdit::enterTheNext() {
  for (const Bound& one : bound()) one.field.clear();
  propose();
  desk.person.say(addedOne);
}

// The window closes as soon as the row is in, whatever the person does with the words.
void RecordEdit::done(const std::string& words, const std::string& title) {
  close();
  if (!words.empty()) inform(words, title);
  desk.person.say(EditMode == Mode::Add ? addedOne : EditMode == Mode::Modify ? "修改已保存" : "已删除 1 条记录");
}

Layout RecordEdit::layout() {
  Nodes fields;
  for (const Bound& one : bound()) fields.push_back(wide(one.field, one.width));
  return {
      .root = column({form(std::move(fields)), buttons({confirm, cancel})}), .confirm = &confirm, .cancel = &cancel};
}

}  // namespace kit
