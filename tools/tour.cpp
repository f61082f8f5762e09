// tour FOLDER: the road of one payment through the real windows without a person. It plays the program in
// FOLDER/program, saves a picture of every window and a PDF of every receipt, then checks the rows in the database.
// Exits non-zero when anything differs.
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <filesystem>

#include "app/office.h"
#include "qt/theme.h"
#include "shell/start.h"
#include "store/record_set.h"
#include "tour_day.h"
#include "tour_player.h"

namespace {

Steps firstUser() {
  return {{"Formyhxx4", "系统启用设置",
           [](QWidget& w) {
             type(w, "yhxm", "王芳");
             type(w, "yhmm", "123456");
             press(w, "confirm");
           }},
          said("设置完成")};
}

// Majors, a class, three items, their standards, an enrolment form.
Steps setUp() {
  Steps steps{{"Formzct", "控制台", [](QWidget& w) { menu(w, "cd21"); }},
              {"Formsz", "专业", [](QWidget& w) { press(w, "zymcb_add"); }},
              {"Formszzymc", "专业编辑",
               [](QWidget& w) {
                 type(w, "zymc", "计算机应用");
                 key(w, Qt::Key_Return);
               }},
              {"Formsz", "班级",
               [](QWidget& w) {
                 chooseTab(w, "班级");
                 press(w, "bjzl_add");
               }},
              {"Formszbjzl", "班级编辑",
               [](QWidget& w) {
                 pick(w, "zymc", "计算机应用");
                 press(w, "confirm");
               }},
              {"Formsz", "班级已添加", [](QWidget& w) { chooseTab(w, "收费项目"); }}};
  for (const char* item : {"学费", "书本费", "住宿费"})
    append(steps, {{"Formsz", "收费项目", [](QWidget& w) { press(w, "sfxmb_add"); }},
                   {"Formszsfxm", "收费项目编辑", [item](QWidget& w) {
                      type(w, "sfxmmc", item);
                      key(w, Qt::Key_Return);
                    }}});
  append(steps, {{"Formsz", "收费标准", [](QWidget& w) {
                    chooseTab(w, "收费标准");
                    press(w, "sfbzb_add");
                  }}});
  const struct {
    const char* item;
    const char* amount;
  } standards[] = {{"学费", "2800"}, {"书本费", "350.5"}, {"住宿费", "600"}};
  for (const auto& one : standards)
    append(steps, {{"Formszsfbz", "收费标准设置",
                    [one](QWidget& w) {
                      pick(w, "sfxmmc", one.item);
                      type(w, "je", one.amount);
                      press(w, "confirm");
                    }},
                   said("设置完成")});
  append(steps, {{"Formszsfbz", "收费标准已设置", [](QWidget& w) { press(w, "cancel"); }},
                 {"Formsz", "收费标准一览",
                  [](QWidget& w) {
                    chooseTab(w, "入学形式");
                    press(w, "rxxs_add");
                  }},
                 {"Formszrxxs", "入学形式编辑",
                  [](QWidget& w) {
                    type(w, "rxxs", "统招");
                    press(w, "confirm");
                  }},
                 said("信息录入成功"),
                 {"Formsz", "入学形式", [](QWidget& w) { press(w, "back"); }}});
  return steps;
}

Steps enrol() {
  return {{"Formzct", "新生添加", [](QWidget& w) { menu(w, "k5"); }},
          {"Formzctxs", "学籍录入",
           [](QWidget& w) {
             type(w, "xh", "20260001010001");
             type(w, "xm", "欧阳小明");
             pick(w, "bjmc", "计算机应用11001班");
             type(w, "sfzhm", "510102200809013418");
             type(w, "sjhm", "13800000001");
             pick(w, "rxxs", "统招");
             type(w, "jtzz", "光明路18号");
             press(w, "confirm");
           }},
          said("学籍资料信息成功录入")};
}

// Takes the student's whole standard with the keyboard alone and prints the receipt in the layout of that number.
Steps pay(int layout, const std::string& pdf) {
  Steps steps{{"Formzct", "前台设置", [](QWidget& w) { menu(w, "k1"); }},
              {"Formszqt", "收费前台设置",
               [layout](QWidget& w) {
                 const char* captions[] = {"标准样式一", "标准样式二", "套打定制"};
                 chooseOption(w, captions[layout - 1]);
                 setTick(w, "sfctsz", true);
                 press(w, "back");
               }},
              {"Formzct", "查找学生",
               [](QWidget& w) {
                 type(w, "xh", "20260001010001");
                 key(w, Qt::Key_Return);
               }},
              {"Formzctsf4", "收费窗口", [](QWidget& w) { setTick(w, "allLines", true); }},
              {"Formzctsf4", "收费窗口已选", [](QWidget& w) { press(w, "confirm"); }},
              said("收费操作成功")};
  if (layout != 3)
    append(steps, {{"Formzctsf8", "摘要及备注", [layout](QWidget& w) {
                      if (layout == 2) type(w, "summary1", "秋季学期");
                      type(w, "remark1", "已开具收据");
                      press(w, "print");
                    }}});
  append(steps, {{"preview", "收据预览", [](QWidget& w) { press(w, "savePdf"); }},
                 {"QFileDialog", "另存为",
                  [pdf](QWidget& w) {
                    auto* name = w.findChild<QLineEdit*>("fileNameEdit");
                    name->setText(QString::fromStdString(pdf));
                    QTest::keyClick(name, Qt::Key_Return);
                  }},
                 {"preview", "收据已保存", [](QWidget& w) { press(w, "close"); }}});
  return steps;
}

int keys = 0;

void hit(QWidget& window, int which) {
  ++keys;
  key(window, which);
}

// The same road by the keyboard alone: number, Enter; Space ticks the whole standard, Enter takes it; 是; no remarks.
Steps payByKeys() {
  return {{"Formzct", "键盘收费",
           [](QWidget& w) {
             type(w, "xh", "20260001010001");
             hit(w, Qt::Key_Return);
           }},
          {"Formzctsf4", "键盘收费窗口", [](QWidget& w) { hit(w, Qt::Key_Space); }},
          {"Formzctsf4", "键盘已选", [](QWidget& w) { hit(w, Qt::Key_Return); }},
          {"?", "键盘确认", [](QWidget& w) { hit(w, Qt::Key_Return); }},
          {"Formzctsf8", "键盘不打印备注", [](QWidget& w) { hit(w, Qt::Key_Escape); }},
          {"preview", "键盘预览", [](QWidget& w) { hit(w, Qt::Key_Escape); }}};
}

// What must stand in the database when the day is over.
void checkRows(const std::filesystem::path& folder) {
  store::Store store(folder);
  store.connect(store::Connection::Main,
                store::connectionText(folder, "\\mv_Database\\morvanegxgl.mdb", store::mainPassword));
  const auto count = [&](const store::Sql& sql) { return std::to_string(store::RecordSet(store, sql).count()); };
  check("the number of users", count("select * from yhxx"), "1");
  check("the number of students", count("select * from xs where bjmc='计算机应用11001班'"), "1");
  check("the number of standards", count("select * from sfbzb"), "3");
  check("the number of sessions left open", count("select * from czjl where gjsj=''"), "0");
  store::RecordSet payments(store, "select * from jfjl order by lsh");
  base::Money total;
  std::string receipts;
  store::forEach(payments, [&](store::RecordSet& row) {
    total += row.get("je").money();
    receipts += row.get("fpbh").text() + " ";
  });
  check("the ledger's sum", total.fixed2(), "15002.00");
  check("the receipts", receipts,
        "10000001 10000001 10000001 10000002 10000002 10000002 10000003 10000003 10000003 10000004 10000004 10000004 ");
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir runtime;
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  qputenv("CUPS_SERVER", runtime.filePath("none").toUtf8());  // the pictures are the same on every computer
  qputenv("QT_QPA_PLATFORMTHEME", "none");  // the toolkit's own file dialog: the player knows its parts
  // What is exported comes into the tour's folder.
  if (argc == 2) qputenv("HOME", QString::fromStdString(std::filesystem::absolute(argv[1]).string()).toUtf8());
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qt::applyTheme(application);
  if (argc != 2) {
    std::fprintf(stderr, "usage: tour FOLDER\n");
    return 2;
  }
  const auto folder = std::filesystem::absolute(argv[1]);
  const auto program = folder / "program";

  Steps steps = firstUser();
  append(steps, logIn("王芳"));
  append(steps, setUp());
  append(steps, enrol());
  const char* names[] = {"样式一", "样式二", "套打"};
  for (int layout = 1; layout <= 3; ++layout) {
    append(steps, pay(layout, folder / ("收据-" + std::string(names[layout - 1]) + ".pdf")));
    if (layout == 2) append(steps, payByKeys());
  }
  append(steps, leave());
  Player day(steps, folder);
  app::Office({program}).run();

  // The next morning: everything is still there.
  Steps again = logIn("王芳");
  append(again, {{"Formzct", "次日控制台", [](QWidget& w) { menu(w, "k2"); }},
                 {"Formzct/students_back", "学籍总览", [](QWidget& w) { press(w, "students_back"); }},
                 {"Formzct/class_strip", "返回控制台", [](QWidget& w) { press(w, "class_strip"); }},
                 {"Formzct/classes", "专业及班级", [](QWidget& w) { clickNode(w, "class_tree", "计算机应用11001班"); }},
                 {"Formzct/classes", "班级学生", [](QWidget&) {}}});
  append(again, leave());
  Player next(again, folder, day.pictures());
  app::Office({program}).run();

  if (!day.finished() || !next.finished()) {
    std::fprintf(stderr, "tour: the program ended before the road did\n");
    return 1;
  }
  int numbered = next.pictures();
  const auto exported = [&] {
    long long files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
      files += entry.path().extension() == ".xlsx";
    return files;
  };
  check("the day's end", playDay(folder / "school", folder, numbered) ? "reached" : "missed", "reached");
  check("the sheets", std::to_string(exported()), "3");
  checkRows(program);
  check("more than seven keys", keys > 7 ? "yes" : "no", "no");
  for (const char* name : names)
    check(name, std::filesystem::file_size(folder / ("收据-" + std::string(name) + ".pdf")) < 1000 ? "empty" : "drawn",
          "drawn");
  std::printf("tour: %d pictures and 3 receipts under %s, %d keys from a student's number to the preview, %s\n",
              numbered, folder.c_str(), keys, differences() ? "with differences" : "all as expected");
  return differences() ? 1 : 0;
}
