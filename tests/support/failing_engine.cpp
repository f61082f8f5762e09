#include "support/failing_engine.h"

namespace support {
namespace {

using store::Fault;
using Plan = std::shared_ptr<Failures::Plan>;
using Call = Failures::Call;

class FailingStatement final : public store::Statement {
 public:
  FailingStatement(Plan plan, store::Engine& engine, std::unique_ptr<store::Statement> behind)
      : plan_(std::move(plan)), engine_(engine), behind_(std::move(behind)) {}
  void bind(std::size_t place, const store::Cell& cell) override { behind_->bind(place, cell); }
  bool step() override {
    plan_->pass(Call::Step, &engine_);
    return behind_->step();
  }
  void reset() override { behind_->reset(); }
  bool isNull(int column) const override { return behind_->isNull(column); }
  std::int64_t integer(int column) const override { return behind_->integer(column); }
  double real(int column) const override { return behind_->real(column); }
  std::string_view text(int column) const override { return behind_->text(column); }

 private:
  const Plan plan_;
  store::Engine& engine_;
  const std::unique_ptr<store::Statement> behind_;
};

class FailingEngine final : public store::Engine {
 public:
  FailingEngine(Plan plan, std::unique_ptr<store::Engine> behind)
      : plan_(std::move(plan)), behind_(std::move(behind)) {}
  const store::Phrases& phrases() const override { return behind_->phrases(); }
  std::unique_ptr<store::Statement> prepare(const std::string& sql, store::Rows rows) override {
    plan_->pass(Call::Prepare, behind_.get());
    return std::make_unique<FailingStatement>(plan_, *behind_, behind_->prepare(sql, rows));
  }
  void execute(const std::string& sql) override {
    plan_->pass(Call::Execute, behind_.get());
    behind_->execute(sql);
  }
  void begin() override {
    plan_->pass(Call::Begin, behind_.get());
    behind_->begin();
  }
  void commit() override {
    plan_->pass(Call::Commit, behind_.get());
    behind_->commit();
  }
  void rollback() noexcept override { behind_->rollback(); }
  bool spoiled() const override { return behind_->spoiled(); }
  bool inTransaction() const override { return behind_->inTransaction(); }
  void committed() override { behind_->committed(); }
  void install() override { behind_->install(); }
  long long changes() const override { return behind_->changes(); }
  long long lastRowNo() const override { return behind_->lastRowNo(); }
  int version() override { return behind_->version(); }
  void setVersion(int version) override { behind_->setVersion(version); }
  std::vector<std::string> columnsOf(std::string_view table) override { return behind_->columnsOf(table); }

 private:
  const Plan plan_;
  const std::unique_ptr<store::Engine> behind_;
};

}  // namespace

std::string Failures::words(Fault fault) {
  switch (fault) {
    case Fault::Busy: return "演练：数据库正被其他计算机占用。请稍候再试！";
    case Fault::Unreadable: return "演练：数据库现在不能读写。请稍候再试！";
    case Fault::DiskFull: return "演练：磁盘空间已满。请清理磁盘后再试！";
    case Fault::Disconnected: return "演练：与数据库服务器的连接断开了。请再做一次！";
    default: return "演练：数据库出错。请检查后再试！";
  }
}

void Failures::Plan::pass(Call call, store::Engine* engine) {
  if (before) before(call);
  const long long number = ++calls;
  if (number < nth || (number > nth && !forGood)) return;
  ++failed;
  if (engine && (fault == Fault::DiskFull || fault == Fault::Disconnected)) engine->rollback();
  throw store::StoreError(fault, words(fault));
}

Failures::Failures(store::Store& store) {
  store.interpose([plan = plan_](const store::Store::Opener& open) {
    plan->pass(Call::Open, nullptr);
    return std::make_unique<FailingEngine>(plan, open());
  });
}

}  // namespace support
