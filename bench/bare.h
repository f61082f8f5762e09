// The bare engine: what the program is measured against.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "store/catalogue.h"

namespace bench {

class BareStatement;

// Opened, keyed and its schema read once, with the settings that the program's own connection has.
class Bare {
 public:
  Bare(const std::filesystem::path& programFolder, store::Connection which);
  void run(const std::string& sql);
  BareStatement prepare(const std::string& sql);

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::unique_ptr<sqlite3, Close> connection_;
};

class BareStatement {
 public:
  void bind(int place, const std::string& text);
  void bind(int place, long long number);
  bool step();
  void reset() { sqlite3_reset(statement_.get()); }
  // All rows, with the text of each column; gives back the number of characters, so that nothing is left out.
  std::size_t readAll();
  std::string text(int column) const;

 private:
  friend class Bare;
  struct Finish {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finish> statement_;
};

}  // namespace bench
