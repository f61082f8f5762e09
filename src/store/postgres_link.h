// A connection to a PostgreSQL server: statements travel there in rounds. A break closes it and is told in words.
#pragma once

#include <libpq-fe.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/postgres_engine.h"

namespace store {

struct Parameter {
  std::optional<std::string> value;
  bool binary = false;
};
using Parameters = std::vector<Parameter>;

// One statement of a round. With a name and a text it is prepared under the name, with a name alone it runs what was
// prepared so, with a text alone it runs as it stands.
struct Ask {
  std::string sql, name = {};
  const Parameters* parameters = nullptr;
};

struct ClearAnswer {
  void operator()(PGresult* answer) const { PQclear(answer); }
};
using Answer = std::unique_ptr<PGresult, ClearAnswer>;
using Answers = std::vector<Answer>;

class PostgresLink {
 public:
  // Connects at the first connect(), not here. onWait: see Store::onWait.
  PostgresLink(PostgresSchema place, std::function<void(bool waiting)> onWait);

  void connect();  // raises Fault::Disconnected or WrongPassword
  bool connected() const { return connection_ != nullptr; }
  int number() const { return number_; }  // of the connection: names on the server die with it

  // Sends the statements together and returns their answers: one way to the server and back. A refusal raises
  // StoreError when all is in, and those behind the refused one were not run. A break raises Fault::Disconnected.
  Answers round(const std::vector<Ask>& asks);
  void post(const Ask& ask) noexcept;  // without waiting for the answer, which is never looked at

  void pause();  // a moment between two tries of a longer wait
  // As long as one stands, what is waited for is one wait: the notice shows until the last one goes.
  class Waiting {
   public:
    explicit Waiting(PostgresLink& link);
    ~Waiting();
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

   private:
    PostgresLink& link_;
  };

  std::string name() const;  // of the server, for messages
  const PostgresSchema& place() const { return place_; }

 private:
  struct Close {
    void operator()(PGconn* connection) const { PQfinish(connection); }
  };

  void setUp();
  void send(const Ask& ask);
  Answer receive();
  void finishRound();
  void join(const char* const* names, const char* const* values);
  void awaitInput();
  bool await(short events);
  void tellOfWait(bool waiting) noexcept;
  [[noreturn]] void lost();
  [[noreturn]] void refuse(const PGresult* answer);

  PostgresSchema place_;
  std::function<void(bool)> onWait_;
  std::unique_ptr<PGconn, Close> connection_;
  int number_ = 0;
  int unanswered_ = 0;  // posts whose answers are still under way
  int waits_ = 0;       // that are under way, one inside the other
  std::chrono::steady_clock::time_point start_;
  bool told_ = false;
};

}  // namespace store
