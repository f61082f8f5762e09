#include "store/receipts.h"

#include <cstdlib>

#include "store/sqlite_engine.h"

namespace store {

Receipt save(Store& store, int lines) {
  Unit unit(store);
  RecordSet last(store, "select * from jfjl order by lsh");
  last.last();
  const long long number = last.atEnd() ? 1000000001 : static_cast<long long>(last.get("lsh").number()) + 1;
  RecordSet set(store, "select * from jfjl");
  for (int line = 0; line < lines; ++line) {
    set.addNew();
    set.set("lsh", std::to_string(number));
    set.set("fpbh", std::to_string(number));
    set.set("bz", lines);
    set.update();
  }
  unit.finish();
  return {number, lines};
}

std::map<long long, int> receipts(const std::filesystem::path& folder) {
  Store store(folder);
  std::map<long long, int> found, wanted;
  RecordSet set(store, "select * from jfjl");
  forEach(set, [&](RecordSet& at) {
    const auto number = static_cast<long long>(at.get("lsh").number());
    ++found[number];
    wanted[number] = static_cast<int>(at.get("bz").number());
  });
  EXPECT_EQ(found, wanted);
  return found;
}

std::string integrity(const Folder& folder) {
  const auto engine = openSqlite({folder.file(Connection::Main), std::string(mainPassword)});
  const auto check = engine->prepare("pragma integrity_check");
  return check->step() ? std::string(check->text(0)) : "";
}

unsigned howMany(const char* variable, unsigned usual) {
  const char* given = std::getenv(variable);
  return given ? static_cast<unsigned>(std::atoi(given)) : usual;
}

}  // namespace store
