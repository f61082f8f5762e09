#include "upkeep/clearing.h"

#include <iterator>

#include "kit/notice.h"
#include "kit/rows.h"

namespace upkeep {
namespace {

struct Step {
  std::string_view table;
  const char* text = nullptr;  // none: the one before stays
};

// The order and the choice of tables are settled: enrolment forms, help topics, pay history, work and print tables and
// the configuration keep their rows.
const Step steps[] = {
    {"bjzl", "正在清空班级资料信息 ..."},
    {"jfjl", "正在清空学生交费记录 ..."},
    {"qfjl", "正在清空学生欠费记录 ..."},
    {"sfbzb", "正在清空收费标准设置表记录 ..."},
    {"sfxmb", "正在清空收费项目名称表记录 ..."},
    {"xs", "正在清空学生学籍资料信息 ..."},
    {"yhxx", "正在清空用户信息表 ..."},
    {"yhxx1"},
    {"zymcb", "正在清空专业表记录 ..."},
    {"mvlyb", "正在清空留言簿记录 ..."},
    {"cjb", "正在清空成绩记录 ..."},
    {"cjsz", "正在清空考试设置表记录 ..."},
    {"xxfk", "正在清空休学记录 ..."},
    {"js", "正在清空教师档案记录 ..."},
    {"czjl", "正在清空用户操作操作记录 ..."},
    {"bys_xs", "正在清空毕业生记录 ..."},
    {"bys_jfjl"},
    {"wpfl", "正在清空教材教具后勤物资分类记录 ..."},
    {"wpgl", "正在清空教材教具后勤物资明细记录 ..."},
    {"wpxx", "正在清空教材教具后勤物资基本信息表记录 ..."},
    {"gzb", "正在清空教师工资信息表记录 ..."},
    {"gzmcb"},
    {"zsgl1", "正在清空学生住宿信息表记录 ..."},
    {"zsgl2"},
    {"tsfl"},
    {"tsjsz"},
    {"tsjszlx"},
    {"tskc"},
    {"tsxx"},
    {"tjs"},
    {"sfbzbrxxs"},
};

}  // namespace

Formcsh3::Formcsh3(kit::Desk& all) : Screen(all, "Formcsh3", "系统初始化") {
  confirm.onPress([this] {
    if (warnTwice("您确认是要清空系统中所有数据吗？   ", "数据清空后不可恢复！建议您先备份数据库！确认继续吗？   "))
      open<Formcsh4>();
  });
  cancel.onPress([this] { close(); });
}

Formcsh4::Formcsh4(kit::Desk& all) : LoadingScreen(all, "Formcsh4") { text.set("正在检测 ..."); }

// No unit around the whole: a fault on the way must not bring back what has been emptied.
void Formcsh4::emptyTables() {
  kit::Notice notice(desk.progress);
  long long done = 0;
  for (const Step& step : steps) {
    if (step.text) text.set(step.text);
    notice.show(text.text(), done++, std::ssize(steps));
    kit::removeEach(desk.store, store::Sql::table(step.table));
  }
}

void Formcsh4::proceed() {
  emptyTables();
  close();
  inform("数据库已清空 ！        ", "信息提示");
}

}  // namespace upkeep
