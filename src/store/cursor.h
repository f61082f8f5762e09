// A place in the rows of a query. It streams from one open statement as long as nobody writes; then it keeps the
// numbers of the rows that remain and reads each afresh, so that a walk that writes or deletes keeps its own rows.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "store/database.h"
#include "store/query.h"

namespace store {

// Rows that are named by their numbers go into a statement in portions of one size, so that it is always the same one;
// no row has the number 0 that fills the last portion up.
constexpr std::size_t readTogether = 200;
template <class Visit> void inPortions(std::span<const std::int64_t> rowNos, Visit visit) {
  for (; !rowNos.empty(); rowNos = rowNos.subspan(std::min(readTogether, rowNos.size()))) {
    const auto part = rowNos.first(std::min(readTogether, rowNos.size()));
    std::vector<Cell> values(part.begin(), part.end());
    values.resize(readTogether, std::int64_t{0});
    visit(std::move(values));
  }
}

class Cursor {
 public:
  Cursor(std::shared_ptr<Database> database, std::shared_ptr<const Query> plan);
  ~Cursor();
  Cursor(const Cursor&) = delete;
  Cursor& operator=(const Cursor&) = delete;

  const Query& query() const { return query_; }
  const Table& table() const { return *query_.table; }
  Database& database();

  void rewind();  // before the first row, to be read when it is asked for
  void drop();    // the same, and the next look runs the statement again
  void last();
  void next();
  bool atRow();
  std::int64_t rowNo();  // of the current row; raises Fault::RowGone when there is none
  Value value(std::size_t column);
  base::Money money(std::size_t column);      // of a column of amounts
  std::string_view text(std::size_t column);  // of a column of texts; good until the cursor moves
  void standOn(std::int64_t rowNo);           // a row that has just been written; nothing comes behind it
  bool goTo(std::int64_t rowNo);  // stands on a row as it is now; false, and no row is current, when it is gone
  // Stands on each of the rows in turn, all read in few statements; there is false for a row that was deleted.
  void visit(std::span<const std::int64_t> rowNos, const std::function<void(bool there)>& visit);
  bool empty();
  long long count();

  void pin();  // before a write to its table: notes the rows that remain
  void
  release();  // holds no lock from here on; what others write may join a walk that has not gone on from its first row
  void forget();                    // what it read of its rows may be old
  void forget(std::int64_t rowNo);  // of this row

 private:
  enum class Place {
    Before,
    First,   // row of the walk. Its stream may be let go of there: a look at a large table costs one row
    Row,     // of the stream, or, without one, of the rest, which has been noted
    Broken,  // on a row, and those that remain could not be noted
    End
  };
  using Row = std::vector<Value>;

  void start();
  void step();
  bool unread() const { return place_ == Place::First && !stream_; }
  void resume();
  void visitRange(const std::vector<Cell>& portion, const std::vector<Cell>& range,
                  const std::function<void(bool there)>& visit);
  void pinStream();
  const Row& heldRow();
  std::optional<Row> fetch(std::int64_t rowNo);
  std::optional<Row> fetchAhead();
  Value bytes(std::size_t column);
  Row rowOf(const Statement& statement) const;

  std::shared_ptr<Database> database_;
  std::shared_ptr<const Query> plan_;
  const Query& query_ = *plan_;
  int generation_;
  Place place_ = Place::Before;
  Loan stream_;
  std::int64_t rowNo_ = 0;
  std::optional<Row> row_;                       // the current row of a pinned walk, once read
  std::unordered_map<std::int64_t, Row> ahead_;  // rows of a pinned walk in a unit, read before their turn
  std::deque<std::int64_t> rest_;                // the rows behind it
  std::string together_, range_;                 // the statements that read many of its rows, once written
  std::deque<Row> groups_;                       // the same of a grouped walk, whose rows have no numbers
};

}  // namespace store
