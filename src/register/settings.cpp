#include "register/settings.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <variant>

namespace school {

using kit::Desk;
using kit::Session;

store::RecordSet configuration(Desk& desk) {
  return store::RecordSet(desk.store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
}

namespace {

enum class Form {
  One,  // a number, 1 is on
  YesNo,
  Layout,  // 1, 2 or 3; any other leaves the session as it was
  Title,   // kept only when not empty
  Name,
  Days,
};

struct Setting {
  std::string_view column;
  Form form;
  std::variant<bool Session::*, int Session::*, std::string Session::*, std::monostate> copy;
};

// In the order in which the record is copied.
const Setting settings[] = {
    {"dysz", Form::One, &Session::print_receipt},           {"sfctsz", Form::One, &Session::open_fee_window},
    {"sfxmmcsz", Form::One, &Session::only_items},          {"qfmr", Form::YesNo, &Session::due_rows_ticked},
    {"jfjljz", Form::YesNo, &Session::auto_load_lists},     {"dybzok", Form::YesNo, &Session::arrears_in_remark},
    {"fpys", Form::Layout, &Session::receipt_style},        {"todamc1", Form::Title, &Session::custom_form},
    {"zdqh", Form::YesNo, &Session::switch_layout},         {"qfjz", Form::Name, &Session::arrears_item},
    {"qfts", Form::Days, &Session::reminder_days},          {"qfcejz", Form::YesNo, &Session::shortfall_opens_arrears},
    {"bjsf1", Form::YesNo, &Session::standard_basis_class}, {"xssf", Form::One, std::monostate()},
};

const Setting& settingOf(std::string_view column) {
  const auto found = std::find_if(std::begin(settings), std::end(settings),
                                  [&](const Setting& setting) { return setting.column == column; });
  if (found == std::end(settings)) throw std::logic_error("no such setting: " + std::string(column));
  return *found;
}

int days(const store::Value& value) {
  constexpr double century = 36500;  // days beyond it mean nothing, and would not fit a date
  return static_cast<int>(std::clamp(value.number(), -century, century));
}

store::Value stored(const Setting& setting, const store::Value& value) {
  switch (setting.form) {
    case Form::One: return value.yes() ? 1 : 0;
    case Form::Days: return days(value);
    default: return value;
  }
}

void copy(Session& session, const Setting& setting, const store::Value& value) {
  if (std::holds_alternative<std::monostate>(setting.copy)) return;
  switch (setting.form) {
    case Form::One: session.*std::get<bool Session::*>(setting.copy) = value.number() == 1; break;
    case Form::YesNo: session.*std::get<bool Session::*>(setting.copy) = value.yes(); break;
    case Form::Layout:
      if (const double style = value.number(); style == 1 || style == 2 || style == 3)
        session.*std::get<int Session::*>(setting.copy) = static_cast<int>(style);
      break;
    case Form::Title:
      if (!value.trimmed().empty()) session.*std::get<std::string Session::*>(setting.copy) = value.trimmed();
      break;
    case Form::Name: session.*std::get<std::string Session::*>(setting.copy) = value.trimmed(); break;
    case Form::Days: session.*std::get<int Session::*>(setting.copy) = days(value); break;
  }
}

bool loadOnly(Desk& desk, std::initializer_list<std::string_view> columns) {
  store::RecordSet row = configuration(desk);
  if (row.empty()) return false;
  for (const std::string_view column : columns) copy(desk.session, settingOf(column), row.get(column));
  return true;
}

}  // namespace

bool loadSettings(Desk& desk) {
  store::RecordSet row = configuration(desk);
  if (row.empty()) return false;
  for (const Setting& setting : settings) copy(desk.session, setting, row.get(setting.column));
  return true;
}

bool loadArrearsSettings(Desk& desk) { return loadOnly(desk, {"qfjz", "qfcejz"}); }

bool loadReminderDays(Desk& desk) { return loadOnly(desk, {"qfts"}); }

bool loadStandardBasis(Desk& desk) { return loadOnly(desk, {"bjsf1"}); }

bool storeSetting(Desk& desk, std::string_view column, const store::Value& value) {
  const Setting& setting = settingOf(column);
  const store::Value kept = stored(setting, value);
  store::Unit unit(desk.store, store::Connection::Config);
  store::RecordSet row = configuration(desk);
  if (row.empty()) return false;
  row.set(column, kept);
  row.update();
  unit.finish();
  copy(desk.session, setting, kept);
  return true;
}

bool settingIsOn(Desk& desk, std::string_view column) {
  store::RecordSet row = configuration(desk);
  return !row.empty() && row.get(column).number() == 1;
}

bool kit::Session::*flagOf(std::string_view column) { return std::get<bool Session::*>(settingOf(column).copy); }

}  // namespace school
