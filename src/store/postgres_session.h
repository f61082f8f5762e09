// What all statements of a connection to a server share: the transaction that is open, and what becomes of it when the
// connection breaks.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "store/postgres_link.h"

namespace store {

class PostgresSession {
 public:
  PostgresSession(PostgresSchema place, std::function<void(bool waiting)> onWait);

  // Connects again behind a break; outside of a transaction only, for what was begun is lost.
  void ready();

  // In the open transaction, which a refused round leaves as it was before, or outside of any.
  Answers run(const std::vector<Ask>& asks);
  // The same for statements that write. When the first one of a unit is refused, the unit is over.
  Answers write(const std::vector<Ask>& asks);

  // A unit holds the schema's write lock from its beginning. It is over, and nothing of it remains, when the connection
  // breaks. With the unit goes a token of this desk, in the same transaction: after a break in the middle of commit()
  // the server is asked for it. (Its own numbers of transactions will not do: after a crash it gives them out again.)
  void begin();
  void commit();
  void rollback() noexcept;
  bool inUnit() const { return transaction_ == Transaction::Unit; }

  // A cursor on the server lives inside a transaction: of the unit, or of the reads that are under way; behind its end
  // nothing can be fetched. Both return the next rows, opening it the first ones.
  Answer openCursor(const std::string& name, const std::string& select, const Parameters& parameters, int rows);
  int transactionNumber() const { return transactionNumber_; }
  Answer fetch(const std::string& name, int transaction, int rows);
  void closeCursor(const std::string& name, int transaction) noexcept;

  std::string newName() { return "n" + std::to_string(++names_); }
  int connectionNumber() const { return link_.number(); }
  void forgetPrepared(const std::string& name, int connection) noexcept;

 private:
  enum class Transaction { None, Reading, Unit };
  enum class Fate { Saved, NotSaved, Unknown };

  bool schemaStands();
  void createSchema();
  Answers exchange(const std::vector<Ask>& asks);
  Answers guarded(const std::vector<Ask>& asks);
  void opened(Transaction transaction);
  void ended() noexcept;
  void endReading();
  Fate fateOf(std::int64_t unit);
  Fate fateAfterBreak(std::int64_t unit);

  PostgresLink link_;
  Transaction transaction_ = Transaction::None;
  int transactionNumber_ = 0;
  int names_ = 0;
  int cursors_ = 0;  // open in this transaction
  const std::string desk_ = newDesk();
  std::int64_t units_ = 0;              // that wrote something: the last one's token
  bool written_ = false;                // something, in the open unit
  std::optional<std::int64_t> unsure_;  // the token of a unit of which nobody knows yet whether it was saved
};

}  // namespace store
