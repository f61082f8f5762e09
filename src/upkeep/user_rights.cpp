#include "upkeep/user_rights.h"

#include "kit/rows.h"

namespace upkeep {

using store::RecordSet;
using store::Sql;

const std::vector<RightGroup>& rightGroups() {
  static const std::vector<RightGroup> groups{
      {"系统设置", {{0, "允许进行全部操作"}}},  // opens the system settings alone, whatever its caption says
      {"权限设置", {{29, "允许为其他用户授权"}}},
      {"系统用户管理", {{1, "允许添加修改及删除用户"}}},
      {"系统初始化", {{2, "允许其初始化系统（清空系统中的所有数据）"}}},
      {"学籍资料", {{4, "添加"}, {5, "修改"}, {6, "删除"}, {7, "清空"}, {8, "查询、导出及打印"}}},
      {"交费记录", {{9, "修改"}, {10, "删除"}, {11, "清空"}, {12, "查询、导出及打印"}}},
      {"欠费记录", {{13, "添加"}, {14, "修改"}, {15, "删除"}, {16, "清空"}, {17, "导入"}, {18, "查询、导出及打印"}}},
      {"成绩管理", {{19, "添加"}, {20, "修改"}, {21, "删除"}, {22, "清空"}, {23, "查询、导出及打印"}}},
      {"毕业生管理",
       {{24, "导入"},
        {25, "修改"},
        {26, "删除"},
        {27, "清空"},
        {28, "查询、导出及打印"},
        {70, "打印毕业生就业推荐书"}}},
      {"教师档案资料", {{32, "添加"}, {33, "修改"}, {3, "删除"}, {35, "清空"}, {38, "查询、导出及打印"}}},
      {"休学复课管理", {{39, "休学"}, {40, "复课"}, {41, "删除"}, {42, "清空"}, {43, "查询、导出及打印"}}},
      {"资产设备管理",
       {{45, "设置"}, {46, "添加"}, {47, "修改"}, {48, "删除"}, {49, "清空"}, {50, "查询、导出及打印"}}},
      {"学生住宿管理",
       {{51, "设置"}, {52, "添加"}, {53, "修改"}, {54, "删除"}, {55, "清空"}, {56, "查询、导出及打印"}}},
      {"教师工资编辑",
       {{57, "设置"}, {58, "添加"}, {59, "修改"}, {60, "删除"}, {61, "清空"}, {62, "查询、导出及打印"}}},
      {"图书馆管理",
       {{63, "设置"},
        {64, "添加"},
        {65, "修改"},
        {66, "删除"},
        {67, "清空"},
        {68, "前台操作"},
        {69, "查询、导出及打印"}}},
      {"学生调班转班", {{71, "学生调班转班事务处理"}}},
      {"收费前台",
       {{30, "新生添加"},
        {37, "减免学生欠费"},
        {31, "收费并安排住宿"},
        {36, "查看所有前台全部未提交记录"},
        {34, "删除未提交记录"},
        {44, "查看全校经营损益情况"}}}};
  return groups;
}

Formyhxx1::Formyhxx1(kit::Desk& all) : Screen(all, "Formyhxx1", "用户权限设置") {
  for (const RightGroup& group : rightGroups())
    for (const RightCaption& right : group.rights) {
      boxes.emplace_back(*this, "right" + std::to_string(right.number), right.caption);
      byNumber_[static_cast<std::size_t>(right.number)] = &boxes.back();
    }
  yhxm.onDrop(
      [this] { yhxm.setChoices(kit::columnTexts(desk.store, "select * from yhxx where yhjb<>'超级管理员'", "yhxm")); });
  yhxm.onChange([this] { enableAll(!yhxm.text().empty()); });
  yhxm.onPick([this] { showRights(); });
  yhxm.onEnter([this] { showRights(); });
  save.onPress([this] { saveRights(); });
  back.onPress([this] { close(); });
}

void Formyhxx1::load() { enableAll(false); }

void Formyhxx1::enableAll(bool on) {
  for (kit::Check& box : boxes) box.enable(on);
  save.enable(on);
}

namespace {
constexpr const char* noRows = "该用户没有权限记录（可能改过姓名），不能授权！请先删除该用户，再重新添加。    ";
}

void Formyhxx1::clearAll() {
  shownFor_.clear();
  granted_.clear();
  for (kit::Check& box : boxes) box.set(false);
}

void Formyhxx1::showRights() {
  clearAll();
  if (yhxm.blank()) return;
  RecordSet rights = rows(Sql("select * from yhxx1 where yhxm='") + yhxm.trimmed() + "' order by bh");
  enableAll(!rights.empty());
  if (rights.empty()) return inform(noRows, "信息提示");
  shownFor_ = yhxm.trimmed();
  store::forEach(rights, [this](RecordSet& row) {
    const double number = row.get("bh").number() - 1000;
    const bool granted = row.get("fn").yes();
    if (number >= 0 && number <= kit::lastRight) box(static_cast<int>(number))->set(granted);
    granted_.push_back(granted);
  });
}

// By place, as the login reads them: when two users bear one name, the first hundred rows are the ones that count.
void Formyhxx1::saveRights() {
  if (yhxm.trimmed() != shownFor_) return showRights();  // a name typed over another one's ticks
  store::Unit unit(desk.store);
  RecordSet rights = rows(Sql("select * from yhxx1 where yhxm='") + shownFor_ + "' order by bh");
  if (rights.empty()) throw store::StoreError(store::Fault::RowGone, noRows);
  std::vector<bool> granted;
  store::forEach(rights, [&](RecordSet& row) { granted.push_back(row.get("fn").yes()); });
  if (granted != granted_) throw kit::changedMeanwhile(shownFor_ + "的权限");
  rights.first();
  for (int number = 0; number <= kit::lastRight && !rights.atEnd(); ++number, rights.next()) {
    rights.set("fn", box(number)->on());
    rights.update();
  }
  unit.finish();
  inform("授权设置成功 ！      ", "信息提示");
  clearAll();
  yhxm.clear();
  enableAll(false);
}

}  // namespace upkeep
