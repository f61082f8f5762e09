// Who has paid nothing, and who paid less, exactly or more than an amount: computed into tables of their own, which the
// console lists, prints and exports as they stand. Both walk the students and the payments asked for once.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/date.h"
#include "base/money.h"
#include "store/store.h"

namespace arrears {

// Which payments count. Blank texts and missing dates leave their condition out; the class chooses the students.
struct PaymentQuestion {
  std::string bjmc, xq, sfxm;
  std::optional<base::Date> from, to;  // both or neither
};

enum class PaidAs { Less, Exactly, More };

using Seen = std::function<void(const std::string& xm, long long found)>;  // now and then, for the notice

// Both empty their table first and give back the rows that are in it then; nothing when there are no students to ask
// about.
std::optional<long long> listUnpaid(store::Store& store, const PaymentQuestion& question, base::DateTime now,
                                    const Seen& seen);  // qfjl_wjf
std::optional<long long> listByPaid(store::Store& store, const PaymentQuestion& question, base::Money due,
                                    PaidAs wanted, base::DateTime now, const Seen& seen);  // qfjl_je

}  // namespace arrears
