#include "store/postgres_link.h"

#include <poll.h>

#include <cerrno>
#include <thread>

#include "store/error.h"

namespace store {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto noticeAfter = 200ms, slice = 100ms;
constexpr auto betweenTries = 50ms;
constexpr auto toConnect = 10s;
constexpr auto longerThanServer = 2s;  // the desk waits so much longer than the server works on one statement

// What the dialect counts on, whatever the server's own settings say. A desk that dies without a word must not hold the
// others up: the server looks after it by itself.
constexpr const char* settings[] = {
    "set client_min_messages = warning",
    "set synchronous_commit = on",
    "set default_transaction_isolation = 'read committed'",
    "set standard_conforming_strings = on",
    "set extra_float_digits = 1",
    "set bytea_output = hex",
    "set tcp_keepalives_idle = 10",
    "set tcp_keepalives_interval = 5",
    "set tcp_keepalives_count = 3",
};

struct State {
  std::string_view prefix;  // of the server's code of an error
  Fault fault;
};
constexpr State states[] = {{"55P03", Fault::Busy},      {"57014", Fault::Unreadable},   {"40", Fault::Busy},
                            {"53100", Fault::DiskFull},  {"25006", Fault::ReadOnly},     {"42501", Fault::ReadOnly},
                            {"XX001", Fault::Damaged},   {"XX002", Fault::Damaged},      {"57P", Fault::Disconnected},
                            {"08", Fault::Disconnected}, {"25P03", Fault::Disconnected}, {"21", Fault::Statement},
                            {"22", Fault::Statement},    {"23", Fault::Statement},       {"42", Fault::Statement},
                            {"54", Fault::Statement}};

Fault faultOf(std::string_view code) {
  for (const State& state : states) {
    if (code.starts_with(state.prefix)) return state.fault;
  }
  return Fault::Other;
}

std::string wordsFor(Fault fault, const std::string& server, const std::string& code) {
  switch (fault) {
    case Fault::Statement: return "语句不合规定，或者内容太长，不能执行！（" + code + "）";
    case Fault::Busy: return "数据库服务器" + server + "正被其他计算机占用，等待之后仍不能使用。请稍候再试！";
    case Fault::Unreadable: return "数据库服务器" + server + "太忙，没有在规定的时间内完成。请稍候再试！";
    case Fault::DiskFull: return "数据库服务器" + server + "的磁盘空间已满。请管理员清理磁盘后再试！";
    case Fault::ReadOnly: return "数据库服务器" + server + "不允许写入。请管理员检查用户的权限后再试！";
    case Fault::Damaged:
      return "数据库服务器" + server + "上的数据库已经损坏。请停止使用，并请管理员用最近的备份恢复！";
    case Fault::Disconnected: return "与数据库服务器" + server + "的连接断开了。请检查网络和服务器，然后再做一次！";
    default: return "数据库服务器" + server + "出错。请管理员检查后再试！（" + code + "）";
  }
}

std::string codeOf(const PGresult* answer) {
  const char* code = PQresultErrorField(answer, PG_DIAG_SQLSTATE);
  return code ? code : "";
}

bool failed(const PGresult* answer) {
  const ExecStatusType status = PQresultStatus(answer);
  return status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE;
}

}  // namespace

PostgresLink::PostgresLink(PostgresSchema place, std::function<void(bool)> onWait)
    : place_(std::move(place)), onWait_(std::move(onWait)) {}

std::string PostgresLink::name() const { return "“" + place_.server.host + "”"; }

void PostgresLink::connect() {
  const Server& server = place_.server;
  const std::string password = passwordOf(server);
  const std::pair<const char*, const char*> options[] = {
      {"host", server.host.c_str()},      {"port", server.port.c_str()},  {"dbname", server.database.c_str()},
      {"user", server.user.c_str()},      {"password", password.c_str()}, {"client_encoding", "UTF8"},
      {"application_name", "fee-office"}, {"keepalives_idle", "5"},       {"keepalives_interval", "3"},
      {"keepalives_count", "3"},          {"tcp_user_timeout", "15000"}};
  std::vector<const char*> names, values;
  for (const auto& [name, value] : options) {
    names.push_back(name);
    values.push_back(value);
  }
  names.push_back(nullptr);
  values.push_back(nullptr);
  join(names.data(), values.data());
  ++number_;
  unanswered_ = 0;
  if (PQstatus(connection_.get()) != CONNECTION_OK) {
    const bool byPassword = PQconnectionNeedsPassword(connection_.get()) || PQconnectionUsedPassword(connection_.get());
    const std::string all = PQerrorMessage(connection_.get()), reason = all.substr(0, all.find('\n'));
    connection_.reset();
    throw StoreError(byPassword ? Fault::WrongPassword : Fault::Disconnected,
                     "连接不上数据库服务器" + name() + "的数据库“" + server.database +
                         "”。请检查网络、服务器和配置文件夹中的 server.ini，然后再试！（" + reason + "）");
  }
  const char* encoding = PQparameterStatus(connection_.get(), "server_encoding");
  if (encoding && std::string_view(encoding) != "UTF8") {
    connection_.reset();
    throw StoreError(Fault::Other, "数据库“" + server.database + "”的编码不是 UTF8，请管理员重新建立这个数据库！");
  }
  PQsetNoticeProcessor(
      connection_.get(), [](void*, const char*) {}, nullptr);
  PQsetnonblocking(connection_.get(), 1);
  PQenterPipelineMode(connection_.get());
  setUp();
}

void PostgresLink::join(const char* const* names, const char* const* values) {
  connection_.reset(PQconnectStartParams(names, values, 0));
  const Waiting waiting(*this);
  const auto end = Clock::now() + toConnect;
  for (auto wanted = PGRES_POLLING_WRITING; wanted != PGRES_POLLING_OK && wanted != PGRES_POLLING_FAILED;) {
    if (PQstatus(connection_.get()) == CONNECTION_BAD || Clock::now() >= end) return;
    if (await(wanted == PGRES_POLLING_READING ? POLLIN : POLLOUT)) wanted = PQconnectPoll(connection_.get());
  }
}

void PostgresLink::setUp() {
  const Parameters path{{place_.schema}}, patience{{std::to_string(place_.patience.count())}},
      limit{{std::to_string(place_.server.timeout) + "s"}};
  std::vector<Ask> asks{{"select set_config('search_path', $1, false)", "", &path},
                        {"select set_config('lock_timeout', $1, false)", "", &patience},
                        {"select set_config('statement_timeout', $1, false)", "", &limit}};
  for (const char* setting : settings) asks.push_back({setting});
  round(asks);
}

void PostgresLink::send(const Ask& ask) {
  PGconn* to = connection_.get();
  std::vector<const char*> values;
  std::vector<int> sizes, formats;
  if (ask.parameters) {
    for (const Parameter& each : *ask.parameters) {
      values.push_back(each.value ? each.value->data() : nullptr);
      sizes.push_back(each.value ? static_cast<int>(each.value->size()) : 0);
      formats.push_back(each.binary);
    }
  }
  const int count = static_cast<int>(values.size());
  int sent = 0;
  if (ask.name.empty()) {
    sent = PQsendQueryParams(to, ask.sql.c_str(), count, nullptr, values.data(), sizes.data(), formats.data(), 0);
  } else if (!ask.sql.empty()) {
    sent = PQsendPrepare(to, ask.name.c_str(), ask.sql.c_str(), 0, nullptr);
  } else {
    sent = PQsendQueryPrepared(to, ask.name.c_str(), count, values.data(), sizes.data(), formats.data(), 0);
  }
  if (!sent) lost();
}

Answers PostgresLink::round(const std::vector<Ask>& asks) {
  if (!connected()) lost();
  const Waiting waiting(*this);
  while (unanswered_ > 0) {
    receive();
    finishRound();
    --unanswered_;
  }
  for (const Ask& ask : asks) send(ask);
  if (!PQpipelineSync(connection_.get())) lost();
  Answers answers;
  Answer refused;
  for (std::size_t i = 0; i < asks.size(); ++i) {
    answers.push_back(receive());
    if (!refused && failed(answers.back().get())) refused = std::move(answers.back());
  }
  finishRound();
  if (refused) refuse(refused.get());
  return answers;
}

void PostgresLink::post(const Ask& ask) noexcept {
  try {
    if (!connected()) return;
    send(ask);
    if (PQpipelineSync(connection_.get())) ++unanswered_;
    PQflush(connection_.get());
  } catch (const StoreError&) {  // the next round tells of the break
  }
}

// One statement's answer, and the mark behind it.
Answer PostgresLink::receive() {
  awaitInput();
  Answer answer(PQgetResult(connection_.get()));
  if (!answer) lost();
  const char* severity = PQresultErrorField(answer.get(), PG_DIAG_SEVERITY_NONLOCALIZED);
  if (PQstatus(connection_.get()) == CONNECTION_BAD || (severity && std::string_view(severity) == "FATAL")) lost();
  awaitInput();
  while (Answer more{PQgetResult(connection_.get())}) {
    if (PQstatus(connection_.get()) == CONNECTION_BAD) lost();
  }
  return answer;
}

void PostgresLink::finishRound() {
  awaitInput();
  const Answer end(PQgetResult(connection_.get()));
  if (!end || PQresultStatus(end.get()) != PGRES_PIPELINE_SYNC) lost();
}

// The link may be quiet without being broken: who waits on it longer than the server itself works gives it up.
void PostgresLink::awaitInput() {
  const auto end = Clock::now() + std::chrono::seconds(place_.server.timeout) + longerThanServer;
  while (PQisBusy(connection_.get())) {
    const int unsent = PQflush(connection_.get());
    if (unsent < 0 || Clock::now() >= end) lost();
    if (await(static_cast<short>(unsent ? POLLIN | POLLOUT : POLLIN)) && !PQconsumeInput(connection_.get())) lost();
  }
}

// Waits for a slice of time at most, and tells of it when the wait has lasted.
bool PostgresLink::await(short events) {
  pollfd input{PQsocket(connection_.get()), events, 0};
  const int ready = ::poll(&input, 1, static_cast<int>(slice / 1ms));
  if (ready < 0 && errno != EINTR) lost();
  if (Clock::now() - start_ >= noticeAfter) tellOfWait(true);
  return ready > 0;
}

void PostgresLink::pause() {
  std::this_thread::sleep_for(betweenTries);
  if (Clock::now() - start_ >= noticeAfter) tellOfWait(true);
}

PostgresLink::Waiting::Waiting(PostgresLink& link) : link_(link) {
  if (link_.waits_++ == 0) link_.start_ = Clock::now();
}

PostgresLink::Waiting::~Waiting() {
  if (--link_.waits_ == 0 && link_.told_) link_.tellOfWait(false);
}

void PostgresLink::tellOfWait(bool waiting) noexcept {
  told_ = waiting;
  try {
    if (onWait_) onWait_(waiting);
  } catch (...) {  // a notice that cannot be shown is no reason to break the round
  }
}

void PostgresLink::lost() {
  connection_.reset();
  throw StoreError(Fault::Disconnected, wordsFor(Fault::Disconnected, name(), ""));
}

void PostgresLink::refuse(const PGresult* answer) {
  const std::string code = codeOf(answer);
  const Fault fault = faultOf(code);
  if (fault == Fault::Disconnected) lost();
  throw StoreError(fault, wordsFor(fault, name(), code));
}

}  // namespace store
