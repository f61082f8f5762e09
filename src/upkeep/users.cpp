#include "upkeep/users.h"

#include "upkeep/password.h"

namespace upkeep {

using store::Sql;

void addUser(store::Store& store, const std::string& name, const std::string& level, const std::string& password,
             base::DateTime now) {
  const std::string hash = hashPassword(password);
  store::Unit unit(store);
  store::RecordSet users(store, Sql("select * from yhxx"));
  users.addNew();
  users.set("yhxm", name);
  users.set("yhjb", level);
  users.set("yhmm", hash);
  users.update();
  store::RecordSet rights(store, Sql("select * from yhxx1"));
  for (int right = 0; right < 100; ++right) {
    rights.addNew();
    rights.set("yhxm", name);
    rights.set("bh", 1000 + right);
    rights.set("fn", level == superLevel);
    rights.set("bsh", now.plain());
    rights.update();
  }
  unit.finish();
}

std::array<bool, 100> rightsOf(store::Store& store, const std::string& name, const std::string& level) {
  std::array<bool, 100> rights{};
  if (level == superLevel) {
    rights.fill(true);
    return rights;
  }
  store::RecordSet rows(store, Sql("select * from yhxx1 where yhxm='") + name + "' order by bh");
  std::size_t place = 0;
  store::forEach(rows, [&](store::RecordSet& row) {
    if (place < rights.size()) rights[place] = row.get("fn").yes();
    ++place;
  });
  return rights;
}

}  // namespace upkeep
