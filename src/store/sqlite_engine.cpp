#include "store/sqlite_engine.h"

#include <sqlite3.h>

#include <cerrno>
#include <optional>

#include "base/text.h"
#include "store/error.h"
#include "store/query.h"
#include "store/sqlite_phrases.h"
#include "store/waiting.h"

#if SQLITE_VERSION_NUMBER < 3051003
#error "SQLite 3.51.3 or later is needed: earlier ones can lose data when several computers write"
#endif

namespace store {
namespace {

constexpr int cacheKilobytes = 65536;  // the engine's own 2 MB make bulk work crawl

Fault faultOf(int code, int systemError) {
  const bool full = systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
  switch (code & 0xff) {
    case SQLITE_ERROR:
    case SQLITE_MISMATCH:
    case SQLITE_RANGE:
    case SQLITE_TOOBIG: return Fault::Statement;
    case SQLITE_NOTADB: return Fault::WrongPassword;
    case SQLITE_CORRUPT: return Fault::Damaged;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN: return Fault::ReadOnly;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return Fault::Busy;
    case SQLITE_FULL: return Fault::DiskFull;
    case SQLITE_IOERR: return full ? Fault::DiskFull : Fault::Unreadable;
    default: return Fault::Other;
  }
}

std::string wordsFor(Fault fault, const std::string& file) {
  switch (fault) {
    case Fault::Statement: return "语句不合规定，不能执行！";
    case Fault::WrongPassword:
      return "数据库“" + file + "”打不开：密码不对，或文件的开头已经损坏。请用备份恢复该文件后再试！";
    case Fault::Missing: return "找不到数据库文件“" + file + "”。请检查共享文件夹是否连通，或用备份恢复该文件！";
    case Fault::Damaged: return "数据库“" + file + "”已经损坏。请停止使用，并用最近的备份恢复该文件！";
    case Fault::Unreadable:
      return "数据库“" + file + "”现在不能读写：共享文件夹或磁盘没有回应。请检查网络和磁盘，稍候再试！";
    case Fault::ReadOnly: return "没有读写数据库“" + file + "”或它所在文件夹的权限。请检查权限后再试！";
    case Fault::Unsure:
      return "保存时数据库“" + file +
             "”没有回应，还不知道内容是否已经保存。请检查网络和磁盘，然后核对记录；核对之前请不要重做！";
    case Fault::Busy: return "数据库“" + file + "”正被其他计算机占用，等待之后仍不能使用。请稍候再试！";
    case Fault::DiskFull: return "数据库“" + file + "”所在的磁盘空间已满。请清理磁盘后再试！";
    default: return "使用数据库“" + file + "”时出错。请重新启动本程序后再试！";
  }
}

struct Close {
  void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Handle = std::unique_ptr<sqlite3, Close>;

int openFile(const SqliteFile& file, Handle& connection) {
  const std::string name = file.path.empty() ? ":memory:" : file.path.string();
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | (file.create ? SQLITE_OPEN_CREATE : 0);
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &opened, flags, nullptr);
  connection.reset(opened);
  if (code != SQLITE_OK || file.password.empty()) return code;
  sqlite3mc_config(opened, "cipher", sqlite3mc_cipher_index("aegis"));
  return sqlite3_key(opened, file.password.data(), static_cast<int>(file.password.size()));
}

// What a connection of its own reads of the file, in the first column of the first row. The code is SQLITE_DONE when
// there is no row.
struct FreshLook {
  FreshLook(const SqliteFile& file, const char* sql, const std::string& value = "") {
    Handle connection;
    code = openFile(file, connection);
    sqlite3_stmt* statement = nullptr;
    if (code == SQLITE_OK) code = sqlite3_prepare_v2(connection.get(), sql, -1, &statement, nullptr);
    if (code == SQLITE_OK) {
      sqlite3_bind_text(statement, 1, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
      code = sqlite3_step(statement);
    }
    if (code == SQLITE_ROW) text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
  }
  int code;
  std::string text;
};

// What all statements of a connection share.
struct Link {
  Link(const SqliteFile& of, std::function<void(bool)> onWait)
      : file(of),
        name(of.path.empty() ? "内存" : of.path.filename().string()),
        sign(of.path),
        wait(of.patience, std::move(onWait), sign) {}
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  // A folder that drops out for a moment looks like damage or a wrong key: neither is said before the whole file has
  // been read once more.
  bool provenDamaged() const {
    const FreshLook look(file, "pragma quick_check(1)");
    const int code = look.code & 0xff;
    return code == SQLITE_ROW ? look.text != "ok" : code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
  }

  [[noreturn]] void fail(int code) const {
    Fault fault = faultOf(code, connection ? sqlite3_system_errno(connection.get()) : 0);
    if ((fault == Fault::Damaged || fault == Fault::WrongPassword) && !provenDamaged()) fault = Fault::Unreadable;
    std::string message = wordsFor(fault, name);
    if (fault == Fault::Statement || fault == Fault::Other || fault == Fault::Unreadable)
      message += std::string("（") + sqlite3_errstr(code) + "）";
    throw StoreError(fault, message);
  }
  // Calls again as long as another computer is in the way. The wait is ours and not the engine's own, for the notice of
  // a wait must never be shown from inside a call of the engine.
  template <class Call> int patiently(Call call) {
    int code = call();
    for (int round = 0; (code & 0xff) == SQLITE_BUSY && wait.again(round); ++round) code = call();
    wait.over();
    return code;
  }
  void check(int code) const {
    if (code != SQLITE_OK) fail(code);
  }

  const SqliteFile file;
  const std::string name;
  WaitingSign sign;
  Wait wait;
  Handle connection;
};

class SqliteStatement final : public Statement {
 public:
  SqliteStatement(Link& link, const std::string& sql) : link_(link) {
    link_.check(link_.patiently([&] {
      return sqlite3_prepare_v3(link.connection.get(), sql.data(), static_cast<int>(sql.size()),
                                SQLITE_PREPARE_PERSISTENT, &statement_, nullptr);
    }));
  }
  ~SqliteStatement() override { sqlite3_finalize(statement_); }
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;

  void bind(std::size_t index, const Cell& cell) override {
    const int place = static_cast<int>(index) + 1;
    int code = SQLITE_OK;
    if (const auto* text = std::get_if<std::string>(&cell)) {
      code = sqlite3_bind_text64(statement_, place, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } else if (const auto* integer = std::get_if<std::int64_t>(&cell)) {
      code = sqlite3_bind_int64(statement_, place, *integer);
    } else if (const auto* real = std::get_if<double>(&cell)) {
      code = sqlite3_bind_double(statement_, place, *real);
    } else if (const auto* bytes = std::get_if<Bytes>(&cell)) {
      code = bytes->empty() ? sqlite3_bind_zeroblob(statement_, place, 0)
                            : sqlite3_bind_blob64(statement_, place, bytes->data(), bytes->size(), SQLITE_TRANSIENT);
    } else {
      code = sqlite3_bind_null(statement_, place);
    }
    link_.check(code);
  }

  bool step() override {
    const int code = link_.patiently([this] { return sqlite3_step(statement_); });
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    const Failure failure(*this);
    link_.fail(code);
  }
  void reset() override { sqlite3_reset(statement_); }

  bool isNull(int column) const override { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }
  std::int64_t integer(int column) const override { return sqlite3_column_int64(statement_, column); }
  double real(int column) const override { return sqlite3_column_double(statement_, column); }
  std::string_view text(int column) const override {
    sqlite3_value* value = sqlite3_column_value(statement_, column);  // fewer calls than the column functions
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_NULL) return {};
    const void* data = type == SQLITE_BLOB ? sqlite3_value_blob(value) : sqlite3_value_text(value);
    const int size = sqlite3_value_bytes(value);
    return size ? std::string_view(static_cast<const char*>(data), static_cast<std::size_t>(size)) : "";
  }

 private:
  struct Failure {  // a failed statement lets go of its locks, after its error has been read
    explicit Failure(SqliteStatement& failed) : statement(failed) {}
    ~Failure() { statement.reset(); }
    SqliteStatement& statement;
  };

  Link& link_;
  sqlite3_stmt* statement_ = nullptr;
};

class SqliteEngine final : public Engine {
 public:
  SqliteEngine(const SqliteFile& file, std::function<void(bool)> onWait) : link_(file, std::move(onWait)) {
    if (!file.create && !file.path.empty()) mustStand(file.path);
    link_.check(openFile(file, link_.connection));
    addSqliteFunctions(link_.connection.get());
    readSchema();
    execute("pragma cache_size=-" + std::to_string(cacheKilobytes));
    execute("pragma synchronous=extra");  // the folder, too: else a power cut may bring a finished unit's journal back
    if (!file.path.empty()) execute("pragma journal_mode=delete");
  }

  Link& link() { return link_; }
  const Phrases& phrases() const override { return sqlitePhrases(); }
  std::unique_ptr<Statement> prepare(const std::string& sql, Rows) override {
    return std::make_unique<SqliteStatement>(link_, sql);
  }
  void execute(const std::string& sql) override {
    link_.check(
        link_.patiently([&] { return sqlite3_exec(link_.connection.get(), sql.c_str(), nullptr, nullptr, nullptr); }));
  }
  void begin() override {
    execute("begin immediate");
    changesBefore_ = sqlite3_total_changes64(link_.connection.get());
  }
  void commit() override {
    const bool written = sqlite3_total_changes64(link_.connection.get()) != changesBefore_;
    if (written && !link_.file.path.empty()) leaveToken();
    try {
      execute("commit");
    } catch (const StoreError&) {
      rollback();
      spoiled_ = !link_.file.path.empty();
      if (!written || !savedAfterAll()) throw;
    }
  }
  void rollback() noexcept override {
    if (inTransaction()) sqlite3_exec(link_.connection.get(), "rollback", nullptr, nullptr, nullptr);
  }
  bool spoiled() const override { return spoiled_; }
  bool inTransaction() const override { return sqlite3_get_autocommit(link_.connection.get()) == 0; }
  void committed() override { link_.sign.giveWay(); }
  void install() override {  // the functions belong to the connection
    execute("create table if not exists unit_tokens (desk text primary key, token integer, day text) without rowid");
  }
  long long changes() const override { return sqlite3_changes64(link_.connection.get()); }
  long long lastRowNo() const override { return sqlite3_last_insert_rowid(link_.connection.get()); }
  int version() override {
    SqliteStatement statement(link_, "pragma user_version");
    return statement.step() ? static_cast<int>(statement.integer(0)) : 0;
  }
  void setVersion(int version) override { execute("pragma user_version=" + std::to_string(version)); }
  std::vector<std::string> columnsOf(std::string_view table) override {
    std::vector<std::string> result;
    SqliteStatement statement(link_, "select name from pragma_table_info(?1)");
    statement.bind(0, std::string(table));
    while (statement.step()) result.emplace_back(statement.text(0));
    return result;
  }

 private:
  void mustStand(const std::filesystem::path& path) const {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error && size > 0) return;
    const Fault fault = !error                                          ? Fault::Damaged
                        : error == std::errc::no_such_file_or_directory ? Fault::Missing
                        : error == std::errc::permission_denied         ? Fault::ReadOnly
                                                                        : Fault::Unreadable;
    throw StoreError(fault, wordsFor(fault, path.string()));
  }
  // A wrong key shows at the first read only.
  void readSchema() {
    SqliteStatement statement(link_, "select count(*) from sqlite_master");
    statement.step();
  }

  // Who cannot know what became of a commit asks for this: the row reaches the disk with the unit or not at all. Each
  // connection has a row of its own, so that nobody else's units take it away.
  void leaveToken() {
    if (!token_) {
      execute("delete from unit_tokens where day < date('now', '-90 days')");
      token_.emplace(link_, "insert or replace into unit_tokens values (?1, ?2, date('now'))");
      token_->bind(0, desk_);
    }
    token_->bind(1, ++units_);
    token_->step();
    token_->reset();
  }

  // The commit told of a fault, which may have come after the journal was gone.
  bool savedAfterAll() {
    if (link_.file.path.empty()) return false;
    for (int round = 0;; ++round) {
      const FreshLook look(link_.file, "select token from unit_tokens where desk = ?1", desk_);
      const bool known = look.code == SQLITE_ROW || look.code == SQLITE_DONE;
      if (!known && link_.wait.again(round)) continue;
      link_.wait.over();
      if (!known) throw StoreError(Fault::Unsure, wordsFor(Fault::Unsure, link_.name));
      return look.text == std::to_string(units_);
    }
  }

  Link link_;
  long long changesBefore_ = 0;
  bool spoiled_ = false;
  const std::string desk_ = newDesk();
  std::int64_t units_ = 0;
  std::optional<SqliteStatement> token_;
};

}  // namespace

std::unique_ptr<Engine> openSqlite(const SqliteFile& file, std::function<void(bool)> onWait) {
  return std::make_unique<SqliteEngine>(file, std::move(onWait));
}

sqlite3* handleOf(Engine& engine) { return static_cast<SqliteEngine&>(engine).link().connection.get(); }

}  // namespace store
