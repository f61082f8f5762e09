#include "collection/fee_lines.h"

#include <algorithm>

#include "base/text.h"

namespace collection {
namespace {

using store::RecordSet;
using store::Sql;

std::string member(const char* column, int index) { return column + std::to_string(index); }

// Rows beyond the tenth are dropped: the window has ten lines.
template <class Show> bool fillLines(RecordSet& rows, FeeLines& lines, Show show) {
  if (rows.empty()) return false;
  rows.first();
  for (std::size_t index = 0; index < lines.size() && !rows.atEnd(); ++index, rows.next()) show(lines[index], index);
  return true;
}

void showItem(FeeLine& line, std::size_t index, const store::Value& sfxmmc) {
  line.place.set(std::to_string(index + 1));
  line.sfxm.set(sfxmmc.trimmed());
}

}  // namespace

FeeLine::FeeLine(kit::Screen& screen, int index)
    : place(screen, member("place", index), "", kit::Entry::Shown),
      sfxm(screen, member("sfxm", index), "", kit::Entry::Shown),
      due(screen, member("due", index), "", kit::Entry::Shown),
      tick(screen, member("tick", index), ""),
      paid(screen, member("paid", index)) {
  due.rightAligned = true;
  paid.rightAligned = true;
  tick.show(false);
  paid.setRecedes(true);
  sfxm.onChange([this] { paid.setRecedes(!hasItem()); });
}

void FeeLine::offer(base::Money amount) {
  due.set(amount.fixed2());
  tick.show(true);
}

void FeeLine::clear() {
  tick.set(false);
  tick.show(false);
  for (kit::Field* field : {&place, &sfxm, &due, &paid}) field->clear();
  owed = {};
}

std::optional<base::Money> loadStandards(store::Store& store, const StandardBasis& basis, FeeLines& lines) {
  RecordSet standards(store, basis.byClass ? Sql("select * from sfbzb where bjmc='") + basis.name + "' order by sfxmbh"
                                           : Sql("select * from sfbzbrxxs where rxxs='") + basis.name + "'");
  base::Money total;
  const bool any = fillLines(standards, lines, [&](FeeLine& line, std::size_t index) {
    const base::Money je = standards.get("je").money();
    showItem(line, index, standards.get("sfxmmc"));
    line.offer(je);
    total += je;
  });
  return any ? std::optional(total) : std::nullopt;
}

std::optional<base::Money> loadAllItems(store::Store& store, const StandardBasis& basis, FeeLines& lines) {
  RecordSet items(store, Sql("select * from sfxmb order by sfxmbh"));
  const bool any =
      fillLines(items, lines, [&](FeeLine& line, std::size_t index) { showItem(line, index, items.get("sfxmmc")); });
  if (!any || base::blank(basis.name)) return std::nullopt;

  RecordSet standards(store, basis.byClass ? Sql("select * from sfbzb where bjmc='") + basis.name + "'"
                                           : Sql("select * from sfbzbrxxs where rxxs='") + basis.name + "'");
  base::Money total;
  std::array<bool, std::tuple_size_v<FeeLines>> found{};  // the first standard of an item counts
  store::forEach(standards, [&](RecordSet& standard) {
    const std::string sfxmmc = standard.get("sfxmmc").text();
    for (std::size_t index = 0; index < lines.size(); ++index) {
      FeeLine& line = lines[index];
      if (found[index] || !line.hasItem() || !base::sameText(line.sfxm.text(), sfxmmc)) continue;
      found[index] = true;
      const base::Money je = standard.get("je").money();
      if (je.zero()) continue;
      line.offer(je);
      total += je;
    }
  });
  return total;
}

std::optional<base::Money> loadArrears(store::Store& store, const std::string& xh, base::Date today, bool tickDue,
                                       FeeLines& lines) {
  RecordSet arrears(store,
                    Sql("select * from qfjl where xh='") + xh + "' and bjje>sbjje and clfs<>'减免' order by lsh");
  base::Money total;
  const bool any = fillLines(arrears, lines, [&](FeeLine& line, std::size_t) {
    const base::Money open = arrears.get("bjje").money() - arrears.get("sbjje").money();
    const auto planned = arrears.get("bjrq").date();
    line.owed = {arrears.mark(), arrears.get("xh").trimmed(), open};
    line.place.set(arrears.get("bjrq").trimmed());
    line.sfxm.set(arrears.get("sfxm").trimmed());
    line.offer(open);
    total += open;
    if (tickDue && planned) line.tick.set(today.daysUntil(*planned) <= arrears.get("qfts").number());
  });
  return any ? std::optional(total) : std::nullopt;
}

std::string paidAndOwed(store::Store& store, const std::string& xh, const std::string& xq) {
  std::vector<std::pair<std::string, base::Money>> items;
  store::RecordSet paid(store,
                        store::Sql("select sfxm,je from jfjl where xh='") + xh + "' and xq='" + xq + "' order by lsh");
  store::forEach(paid, [&](store::RecordSet& row) {
    const std::string item = row.get("sfxm").trimmed();
    auto known = std::ranges::find(items, item, &std::pair<std::string, base::Money>::first);
    if (known == items.end()) known = items.insert(known, {item, {}});
    known->second += row.get("je").money();
  });
  std::string words;
  for (const auto& [item, sum] : items) words += (words.empty() ? "" : "、") + item + " " + sum.fixed2();
  words = words.empty() ? "本学期尚未交费" : "本学期已交：" + words;

  long long debts = 0;
  base::Money owed;
  store::RecordSet open(
      store, store::Sql("select bjje,sbjje from qfjl where xh='") + xh + "' and bjje-sbjje>0 and clfs<>'减免'");
  store::forEach(open, [&](store::RecordSet& row) {
    ++debts;
    owed += row.get("bjje").money() - row.get("sbjje").money();
  });
  return words + (debts == 0 ? "；没有欠费" : "；欠费 " + std::to_string(debts) + " 笔，共 " + owed.fixed2() + " 元");
}

}  // namespace collection
