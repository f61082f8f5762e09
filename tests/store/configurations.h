// The conformance suite runs over every configuration of the store.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "store/record_set.h"
#include "support/test_server.h"

namespace store {

// A program folder that goes away with the test.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path file(Connection which) const;

 private:
  std::filesystem::path path_;
};

struct Configuration {
  std::string name;
  bool onDisk = false, reopens = false, onServer = false;
};
inline void PrintTo(const Configuration& configuration, std::ostream* out) { *out << configuration.name; }

class Conformance : public testing::TestWithParam<Configuration> {
 protected:
  void SetUp() override;
  void step();  // stands between two steps of a test: one configuration closes the store here
  void add(Sql table, const std::vector<std::string>& columns, const std::vector<std::vector<Value>>& rows);
  std::vector<std::string> column(const Sql& sql, std::string_view name, Connection which = Connection::Main);

  Folder folder_;
  std::unique_ptr<support::ServerDatabase> server_;
  std::unique_ptr<Store> store_;
};

Fault faultOf(const std::function<void()>& action);  // fails the test when there is none
long long rows(Store& store, const Sql& sql);

inline auto configurations() {
  return testing::Values(Configuration{"Memory"}, Configuration{"File", true}, Configuration{"Reopened", true, true},
                         Configuration{"Server", true, false, true}, Configuration{"ServerReopened", true, true, true});
}
inline std::string nameOf(const testing::TestParamInfo<Configuration>& of) { return of.param.name; }

}  // namespace store
