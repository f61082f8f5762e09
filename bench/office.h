// A school's databases, opened twice: by the store with a desk round it, and bare.
#pragma once

#include "bare.h"
#include "support/test_desk.h"

namespace bench {

struct Office {
  explicit Office(const std::filesystem::path& at)
      : folder(at), store(at), bare(at, store::Connection::Main), desk{test.session,   store,        test.person,
                                                                       test.navigator, test.clock,   test.printer,
                                                                       test.sheets,    test.desktop, test.progress} {
    bare.run("pragma cache_size=-65536");
    bare.run("pragma synchronous=extra");
  }

  long long rows(const std::string& table) {
    BareStatement count = bare.prepare("select count(*) from " + table);
    count.step();
    return std::stoll(count.text(0));
  }

  std::string sumOf(const std::string& sql) {  // of amounts, as the messages show it
    BareStatement sum = bare.prepare(sql);
    sum.step();
    return base::Money::ofUnits(std::stoll(sum.text(0))).fixed2();
  }

  std::filesystem::path folder;
  store::Store store;
  Bare bare;
  support::TestDesk test;
  kit::Desk desk;
};

}  // namespace bench
