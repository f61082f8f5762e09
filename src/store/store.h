// The store: the main and the configuration database, units of work, and the way in for record sets.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "store/catalogue.h"
#include "store/error.h"
#include "store/value.h"

namespace store {

class Database;  // one open database behind an engine
class Engine;

constexpr std::string_view mainPassword = "kestrelboatfield7416";
constexpr std::string_view configPassword = "w$rtq!?d3ma9&2p6u4ye";

// The text that names a database, as the session keeps it; path is relative to the program folder, with backslashes.
std::string connectionText(const std::filesystem::path& programFolder, std::string_view path,
                           std::string_view password);

class Store {
 public:
  // Nothing is opened before the first use. A store without a folder lives in memory (tests).
  Store();
  explicit Store(std::filesystem::path programFolder);
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  // Points a connection at the database that the text names; opened at its first use. Raises StoreError then, never
  // here.
  void connect(Connection which, const std::string& connectionText);
  Database& database(Connection which);  // opens it when it is not open yet
  void close();

  // Called with true when a wait for another computer or for the server has lasted more than 0.2 s, and again some
  // times a second, so that a notice can be painted; with false when it is over. It must let no event of a person in.
  std::function<void(bool waiting)> onWait;

  // Puts something between the store and what opens its engines: how tests make it fail. Not inside a unit. An engine
  // that is open already is handed on as if it had just been opened.
  using Opener = std::function<std::unique_ptr<Engine>()>;
  void interpose(const std::function<std::unique_ptr<Engine>(const Opener& open)>& between);

  // How many times something has reached a disk since the store was made: a unit, or a single write outside of one. Of
  // what is made anew at each use (print tables and the like) nothing counts.
  long long saved() const;

  // Called by the shell when an event has been handled: reads still under way keep their place, but hold no lock.
  void settle();

 private:
  friend class Unit;
  friend class RecordSet;
  std::shared_ptr<Database> shared(Connection which);
  struct State;
  std::unique_ptr<State> state_;
};

// A unit of work: the writes of one action reach the disk together, under the store's write lock, taken at once, or
// nothing of them does. A unit that ends without finish(), by an error or an early return, takes all its writes back. A
// unit inside a unit joins it: when the inner one ends without finish(), nothing more can be written in the outer one,
// and its finish() raises StoreError. Never open one across a question to the person.
class Unit {
 public:
  explicit Unit(Store& store, Connection which = Connection::Main);
  ~Unit();
  void finish();  // reaches the disk, or raises StoreError: then nothing of it remains, or Fault::Unsure says so
  static bool openIn(const Store& store);

 private:
  Store& store_;
  Connection which_;
  bool open_ = true;
};

}  // namespace store
