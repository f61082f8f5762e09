#include "store/postgres_session.h"

#include <iterator>
#include <utility>

#include "store/error.h"

namespace store {
namespace {

using Clock = std::chrono::steady_clock;

// A desk that hangs inside a unit does not hold the others up for ever.
constexpr const char* limitIdling = "set local idle_in_transaction_session_timeout = '60s'";
constexpr const char* takeLock = "select 1 from catalogue_version for update";
constexpr const char* leaveToken =
    "insert into unit_tokens values ($1, $2, current_date) on conflict (desk) do update set token = $2, day = "
    "current_date";
constexpr const char* forgetOldTokens = "delete from unit_tokens where day < current_date - 90";
constexpr const char* savepoint = "savepoint before_statement";
constexpr const char* release = "release savepoint before_statement";
constexpr const char* goBack = "rollback to savepoint before_statement";

std::string textOf(const Answer& answer) { return PQntuples(answer.get()) ? PQgetvalue(answer.get(), 0, 0) : ""; }

std::string fetchText(const std::string& cursor, int rows) {
  return "fetch " + std::to_string(rows) + " from " + cursor;
}

}  // namespace

PostgresSession::PostgresSession(PostgresSchema place, std::function<void(bool)> onWait)
    : link_(std::move(place), std::move(onWait)) {
  ready();
}

void PostgresSession::ready() {
  if (link_.connected() || transaction_ != Transaction::None) return;
  link_.connect();
  if (!schemaStands()) createSchema();
  if (!unsure_) return;
  const Fate fate = fateOf(*std::exchange(unsure_, std::nullopt));
  const std::string news = fate == Fate::Saved ? "断开之前那次操作的内容已经全部保存，请不要重做。"
                           : fate == Fate::NotSaved ? "断开之前那次操作的内容全部没有保存，请重做。"
                                                    : "断开之前那次操作是否已经保存仍不能确定，请核对记录。";
  throw StoreError(Fault::Other, "已经重新连接数据库服务器" + link_.name() + "：" + news + "这一次的操作请再做一遍！");
}

bool PostgresSession::schemaStands() {
  const Parameters table{{link_.place().schema + ".catalogue_version"}};
  return !textOf(exchange({{"select to_regclass($1)", "", &table}})[0]).empty();
}

// Two desks may come at the same moment: the slower one is refused and finds the schema standing.
void PostgresSession::createSchema() {
  try {
    exchange({{"begin"},
              {"create schema if not exists " + link_.place().schema},
              {"create table catalogue_version (version integer not null)"},
              {"insert into catalogue_version values (0)"},
              {"commit"}});
  } catch (const StoreError& error) {
    if (!link_.connected()) throw;
    exchange({{"rollback"}});
    if (error.fault != Fault::Statement || !schemaStands()) throw;
  }
}

Answers PostgresSession::exchange(const std::vector<Ask>& asks) {
  try {
    return link_.round(asks);
  } catch (const StoreError&) {
    if (link_.connected()) throw;
    ended();
    throw;
  }
}

Answers PostgresSession::guarded(const std::vector<Ask>& asks) {
  std::vector<Ask> all{{savepoint}};
  all.insert(all.end(), asks.begin(), asks.end());
  all.push_back({release});
  try {
    Answers answers = exchange(all);
    answers.erase(answers.begin());
    answers.pop_back();
    return answers;
  } catch (const StoreError&) {
    if (link_.connected()) exchange({{goBack}, {release}});
    throw;
  }
}

Answers PostgresSession::run(const std::vector<Ask>& asks) {
  ready();
  return transaction_ == Transaction::None ? exchange(asks) : guarded(asks);
}

Answers PostgresSession::write(const std::vector<Ask>& asks) {
  const bool first = !std::exchange(written_, true);
  if (!inUnit() || !first) return run(asks);
  try {
    return exchange(asks);  // no other write is there that a savepoint could keep
  } catch (const StoreError&) {
    rollback();
    throw;
  }
}

void PostgresSession::begin() {
  endReading();
  try {
    ready();
    link_.round({{"begin"}, {limitIdling}, {takeLock}});
  } catch (const StoreError&) {
    if (link_.connected()) exchange({{"rollback"}});
    throw;
  }
  opened(Transaction::Unit);
  written_ = false;
}

void PostgresSession::commit() {
  if (!written_) {
    exchange({{"commit"}});
    return ended();
  }
  const std::int64_t unit = ++units_;
  const Parameters token{{desk_}, {std::to_string(unit)}};
  try {
    std::vector<Ask> asks{{leaveToken, "", &token}, {"commit"}};
    if (unit == 1) asks.insert(asks.begin(), {forgetOldTokens});
    exchange(asks);
    return ended();
  } catch (const StoreError&) {
    if (link_.connected()) throw;
  }
  switch (fateAfterBreak(unit)) {
    case Fate::Saved: return;
    case Fate::NotSaved:
      throw StoreError(Fault::Disconnected, "保存时与数据库服务器" + link_.name() + "的连接断开了。请再做一次！");
    case Fate::Unknown:
      unsure_ = unit;
      throw StoreError(Fault::Unsure, "保存时与数据库服务器" + link_.name() +
                                          "的连接断开了，还不知道内容是否已经保存。请检查网络和服务器；"
                                          "重新连上之后会告知结果，在那之前请不要重做！");
  }
}

void PostgresSession::rollback() noexcept {
  if (transaction_ == Transaction::None) return;
  try {
    exchange({{"rollback"}});
  } catch (const StoreError&) {  // a connection that is gone has taken its transaction with it
  }
  ended();
}

void PostgresSession::opened(Transaction transaction) {
  transaction_ = transaction;
  ++transactionNumber_;
}

void PostgresSession::ended() noexcept {
  transaction_ = Transaction::None;
  ++transactionNumber_;
  cursors_ = 0;
}

void PostgresSession::endReading() {
  if (transaction_ != Transaction::Reading) return;
  link_.post({"commit"});
  ended();
}

Answer PostgresSession::openCursor(const std::string& name, const std::string& select, const Parameters& parameters,
                                   int rows) {
  ready();
  const Ask declare{"declare " + name + " no scroll cursor for " + select, "", &parameters};
  Answers answers;
  if (transaction_ == Transaction::None) {
    try {
      answers = exchange({{"begin read only"}, declare, {fetchText(name, rows)}});
    } catch (const StoreError&) {
      if (link_.connected()) exchange({{"rollback"}});
      throw;
    }
    opened(Transaction::Reading);
  } else {
    answers = guarded({declare, {fetchText(name, rows)}});
  }
  ++cursors_;
  return std::move(answers.back());
}

Answer PostgresSession::fetch(const std::string& name, int transaction, int rows) {
  if (transaction != transactionNumber_) {
    throw StoreError(Fault::Other, "读取到一半时中断了，请刷新后再试！");
  }
  return std::move(guarded({{fetchText(name, rows)}})[0]);
}

void PostgresSession::closeCursor(const std::string& name, int transaction) noexcept {
  if (transaction != transactionNumber_) return;
  --cursors_;
  if (cursors_ == 0) return endReading();
  link_.post({"close " + name});
}

void PostgresSession::forgetPrepared(const std::string& name, int connection) noexcept {
  if (connection == link_.number()) link_.post({"deallocate " + name});
}

// A backend that has not noticed the break yet may still be at work: it is given the time of a wait.
PostgresSession::Fate PostgresSession::fateAfterBreak(std::int64_t unit) {
  const PostgresLink::Waiting waiting(link_);
  const auto start = Clock::now();
  Fate fate = Fate::Unknown;
  while (fate == Fate::Unknown && Clock::now() - start < link_.place().patience) {
    try {
      if (!link_.connected()) link_.connect();
      fate = fateOf(unit);
    } catch (const StoreError&) {  // the server is not back yet
    }
    if (fate == Fate::Unknown) link_.pause();
  }
  return fate;
}

// The lock is free when the unit has come to its end, and then its token is there or never will be.
PostgresSession::Fate PostgresSession::fateOf(std::int64_t unit) {
  const Parameters desk{{desk_}};
  try {
    const Answers answers =
        link_.round({{"begin"}, {takeLock}, {"select token from unit_tokens where desk = $1", "", &desk}, {"commit"}});
    return textOf(answers[2]) == std::to_string(unit) ? Fate::Saved : Fate::NotSaved;
  } catch (const StoreError&) {
    if (link_.connected()) link_.round({{"rollback"}});
    return Fate::Unknown;
  }
}

}  // namespace store
