// The book of what students still owe (qfjl), without a screen: new rows, payments, corrections. Each row is one amount
// due by one date for one fee item.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "store/record_set.h"

namespace arrears {

// The states of a row; a row that nothing has been paid on has the empty text.
constexpr const char* partlyPaid = "不足";
constexpr const char* settled = "结清";
constexpr const char* waived = "减免";

struct Instalment {
  base::Date bjrq;
  base::Money bjje;
};

// One fee item, owed in up to three instalments; a place can stay empty.
struct Debt {
  std::string sfxm;
  std::array<std::optional<Instalment>, 3> instalments;
};

struct ArrearsEntry {
  std::string xh, xm, bjmc, xtbh, xq, skr;
  std::string bsh;  // the computer's name at the front desk's panel, else the moment
  int qfts = 0;
  std::vector<Debt> debts;
};

// Writes a row for each instalment, in one unit of work that also takes the day and the numbers.
void addArrears(store::Store& store, const ArrearsEntry& entry, platform::Clock& clock);

// An open row as a person saw it.
struct OpenRow {
  std::int64_t mark = 0;
  std::string xh;
  base::Money open;
};

struct ArrearsPayment {
  OpenRow row;
  base::Money paid;
};

// Adds the payments to their rows and moves the states on, inside the caller's unit of work. Raises a StoreError, in
// words and before anything is written, when another desk has paid, waived or changed one of the rows meanwhile.
void settleArrears(store::Store& store, std::span<const ArrearsPayment> payments, base::Date today);

store::Sql rowsOfStudent(const std::string& xh);

// The arrears that a person is asked about, as they stood at the question: the row of a mark, or those of a statement.
class AskedArrears {
 public:
  AskedArrears(store::Store& store, std::int64_t mark);
  AskedArrears(store::Store& store, store::Sql rows);
  long long count() const { return count_; }
  // Visits them in one unit of work. False, and nothing is done, when they are not the same any more: a row has come or
  // gone, was paid, waived or corrected at another desk.
  bool each(const std::function<void(store::RecordSet&)>& visit);

 private:
  void walk(const std::function<void(store::RecordSet&)>& visit);
  std::string standing();
  store::Store& store_;
  std::int64_t mark_ = 0;
  store::Sql rows_;
  long long count_ = 0;
  std::string asked_;
};
constexpr const char* changedMeanwhile =
    "所选欠费记录刚刚被其他计算机修改或删除，本次操作没有进行，列表已重新加载，请核对后再操作！";

}  // namespace arrears
