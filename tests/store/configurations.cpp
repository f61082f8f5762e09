#include "store/configurations.h"

#include "store/files.h"

namespace store {

Folder::Folder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "officeXXXXXX").string();
  path_ = mkdtemp(pattern.data());
}

Folder::~Folder() { std::filesystem::remove_all(path_); }

std::filesystem::path Folder::file(Connection which) const {
  return locate(connectionText(path_, livePath(which), password(which))).path;
}

void Conformance::SetUp() {
  if (GetParam().onServer) {
    if (!support::serverRuns()) GTEST_SKIP() << "not run: no server; start the tests through tools/postgres-for-tests";
    server_ = std::make_unique<support::ServerDatabase>();
    server_->nameIn(folder_.path());
  }
  store_ = GetParam().onDisk ? std::make_unique<Store>(folder_.path()) : std::make_unique<Store>();
}

void Conformance::step() {
  if (GetParam().reopens) store_->close();
}

void Conformance::add(Sql table, const std::vector<std::string>& columns, const std::vector<std::vector<Value>>& rows) {
  RecordSet set(*store_, Sql("select * from ") + table);
  Unit unit(*store_);
  for (const auto& row : rows) {
    set.addNew();
    for (std::size_t i = 0; i < columns.size(); ++i) set.set(columns[i], row[i]);
    set.update();
  }
  unit.finish();
  step();
}

std::vector<std::string> Conformance::column(const Sql& sql, std::string_view name, Connection which) {
  std::vector<std::string> result;
  RecordSet set(*store_, sql, which);
  forEach(set, [&](RecordSet& at) { result.push_back(at.get(name).text()); });
  EXPECT_EQ(set.count(), static_cast<long long>(result.size()));
  step();
  return result;
}

Fault faultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const StoreError& error) {
    return error.fault;
  }
  ADD_FAILURE() << "nothing was refused";
  return Fault::Other;
}

long long rows(Store& store, const Sql& sql) { return RecordSet(store, sql).count(); }

}  // namespace store
