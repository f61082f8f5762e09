#include "store/postgres_link.h"

#include <poll.h>

#include <cerrno>
#include <thread>

#include "store/error.h"

namespace store {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto noticeAfter = 200ms;
constexpr auto betweenTries = 50ms;

// What the dialect counts on, whatever the server's own settings say. A desk that dies without a word must not hold the
// others up: the server looks after it by itself.
constexpr const char* settings[] = {
    "set client_min_messages = warning",
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
constexpr State states[] = {{"55P03", Fault::Busy},      {"57014", Fault::Busy},         {"40", Fault::Busy},
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
      {"application_name", "fee-office"}, {"connect_timeout", "10"},      {"keepalives_idle", "5"},
      {"keepalives_interval", "3"},       {"keepalives_count", "3"},      {"tcp_user_timeout", "15000"}};
  std::vector<const char*> names, values;
  for (const auto& [name, value] : options) {
    names.push_back(name);
    values.push_back(value);
  }
  names.push_back(nullptr);
  values.push_back(nullptr);
  connection_.reset(PQconnectdbParams(names.data(), values.data(), 0));
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
  PQenterPipelineMode(connection_.get());
  setUp();
}

void PostgresLink::setUp() {
  const Parameters path{{place_.schema}}, patience{{std::to_string(place_.patience.count())}};
  std::vector<Ask> asks{{"select set_config('search_path', $1, false)", "", &path},
                        {"select set_config('lock_timeout', $1, false)", "", &patience}};
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

Answers PostgresLink::patientRound(const std::vector<Ask>& asks) {
  struct Patience {
    explicit Patience(PostgresLink& of) : link(of) { link.patient_ = true; }
    ~Patience() {
      link.patient_ = false;
      link.waitOver();
    }
    PostgresLink& link;
  } patience(*this);
  return round(asks);
}

void PostgresLink::post(const Ask& ask) noexcept {
  try {
    if (!connected()) return;
    send(ask);
    if (PQpipelineSync(connection_.get())) ++unanswered_;
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

void PostgresLink::awaitInput() {
  const auto start = Clock::now();
  while (PQisBusy(connection_.get())) {
    pollfd input{PQsocket(connection_.get()), POLLIN, 0};
    const int timeout = patient_ && !told_ ? static_cast<int>(noticeAfter.count()) : -1;
    if (::poll(&input, 1, timeout) < 0 && errno != EINTR) lost();
    if (patient_ && Clock::now() - start >= noticeAfter) tellOfWait(true);
    if ((input.revents & ~0) && !PQconsumeInput(connection_.get())) lost();
  }
}

void PostgresLink::pause(Clock::time_point since) {
  if (Clock::now() - since >= noticeAfter) tellOfWait(true);
  std::this_thread::sleep_for(betweenTries);
}

void PostgresLink::waitOver() { tellOfWait(false); }

void PostgresLink::tellOfWait(bool waiting) noexcept {
  if (told_ == waiting) return;
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
