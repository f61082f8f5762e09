#include "feesetup/desk_settings.h"

#include "base/text.h"
#include "kit/rows.h"
#include "register/settings.h"

namespace feesetup {

Formszqt::Formszqt(kit::Desk& all) : Screen(all, "Formszqt", "收费前台设置总控界面") {
  // What is shown is what the session holds: a tick goes back until it is stored, and stays back when there is no
  // record.
  for (kit::Check* tick : ticks())
    tick->onChange([this, tick] {
      const bool& kept = desk.session.*school::flagOf(tick->name);
      const bool wanted = tick->on();
      if (wanted == kept) return;
      tick->set(kept);
      school::storeSetting(desk, tick->name, wanted);
      tick->set(kept);
    });
  fpys.onChange([this] {
    const int wanted = fpys.chosen();
    if (wanted == layout_) return;
    fpys.set(layout_);
    if (!school::storeSetting(desk, "fpys", wanted + 1)) return;
    layout_ = wanted;
    fpys.set(layout_);
  });
  qfjz.offers("select * from sfxmb", "sfxmmc");
  todamc1.setChoices({"江西省学校收费专用收据"});
  storeDays.onPress([this] {
    if (!qfts.blank()) storeText("qfts", base::leadingNumber(qfts.trimmed()));
  });
  storeItem.onPress([this] { storeText("qfjz", qfjz.trimmed()); });
  storeForm.onPress([this] { storeText("todamc1", todamc1.trimmed()); });
  for (const auto& [field, button] : {std::pair{&qfts, &storeDays}, {&qfjz, &storeItem}, {&todamc1, &storeForm}})
    field->onEnter([button] { button->invoke(); });
  back.onPress([this] { close(); });
}

std::vector<kit::Check*> Formszqt::ticks() {
  return {&dysz, &dybzok, &zdqh, &sfctsz, &sfxmmcsz, &qfmr, &jfjljz, &qfcejz};
}

void Formszqt::load() {
  school::loadSettings(desk);
  const kit::Session& session = desk.session;
  for (kit::Check* tick : ticks()) tick->set(session.*school::flagOf(tick->name));
  store::RecordSet kept = school::configuration(desk);
  const double style = kept.empty() ? session.receipt_style : kept.get("fpys").number();
  layout_ = style == session.receipt_style ? session.receipt_style - 1 : -1;
  fpys.set(layout_);
  todamc1.set(session.custom_form);
  qfjz.set(session.arrears_item);
  qfts.set(std::to_string(session.reminder_days));
  dysz.focus();
}

void Formszqt::storeText(std::string_view column, const store::Value& value) {
  if (school::storeSetting(desk, column, value)) inform("设置成功 ！         ", "信息提示");
}

}  // namespace feesetup
