#include "collection/payment_deletion.h"

#include "base/text.h"
#include "kit/rows.h"

namespace collection {

using store::RecordSet;
using store::Sql;

namespace {
Sql rowsOf(const std::string& receipt) { return Sql("select * from jfjl where fpbh='") + receipt + "'"; }
}  // namespace

std::optional<std::string> PaymentDeletion::refused() {
  RecordSet row(store_, "select * from jfjl");
  if (!row.goTo(row_)) return "选定的记录已被其他计算机删除，请刷新列表后重新选择！     ";
  const std::string receipt = row.get("fpbh").trimmed();
  if (receipt_.value_or(receipt) != receipt)
    return "选定的记录已被其他计算机修改，没有删除任何记录，请刷新列表后重新选择！     ";
  receipt_ = receipt;

  std::optional<std::string> reason;
  const auto look = [&](RecordSet& one) {
    const std::string taker = one.get("skr").trimmed();
    if (reason) return;
    if (one.get("sftj").trimmed() == "*")
      reason = scope_ == Scope::Receipt ? "这是一组已提交记录，前台不能删除它！    "
                                        : "这是一条已提交记录，前台不能删除它！    ";
    else if (!base::sameText(taker, user_)) reason = "这是操作员" + taker + "经办的收费记录，您在前台不能删除它！   ";
  };
  look(row);
  if (scope_ == Scope::Receipt && !receipt.empty()) {
    RecordSet all(store_, rowsOf(receipt));
    store::forEach(all, look);
  }
  return reason;
}

std::optional<std::string> PaymentDeletion::carryOut() {
  store::Unit unit(store_);
  if (auto reason = refused()) return reason;
  // Payments whose receipt number was emptied have no receipt in common.
  if (scope_ == Scope::Receipt && !receipt_->empty()) kit::removeEach(store_, rowsOf(*receipt_));
  else kit::rowAt(store_, "jfjl", row_).remove();
  unit.finish();
  return std::nullopt;
}

}  // namespace collection
