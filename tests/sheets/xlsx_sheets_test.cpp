#include "sheets/xlsx_sheets.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <array>
#include <csignal>
#include <cstdio>

#include "platform/desktop.h"
#include "sheets/row_bytes.h"
#include "support/test_desk.h"

namespace sheets {
namespace {

namespace fs = std::filesystem;
using platform::SheetKind;
using platform::SheetPlan;
using testing::ElementsAre;
using testing::HasSubstr;

// What another reader finds in the file.
std::string readBack(const fs::path& file) {
  const std::string command = "python3 '" READ_BACK "' '" + file.string() + "'";
  FILE* pipe = popen(command.c_str(), "r");
  std::string text;
  std::array<char, 4096> piece{};
  while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), pipe)) text.append(piece.data(), read);
  EXPECT_EQ(pclose(pipe), 0);
  return text;
}

struct XlsxSheetsTest : testing::Test {
  support::FakeDesktop desktop;
  XlsxSheets sheets;
  SheetPlan plan{desktop.programFolder() / "我的 文档" / "导出",
                 "学员交费记录 2026-09-07",
                 "学员交费记录",
                 {"学号", "日期", "金额", "数量"},
                 {SheetKind::Text, SheetKind::Day, SheetKind::Amount, SheetKind::Number},
                 "王芳"};

  std::vector<std::string> filesThere() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(plan.folder)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(XlsxSheetsTest, EveryKindOfCellReadsBackAsWhatItIs) {
  const auto sheet = sheets.create(plan);
  sheet->add({std::string("360102200809010011"), base::Date{2026, 9, 7}, base::Money::fen(31250), 3.0});
  sheet->add({std::string("0012"), std::monostate{}, base::Money::ofUnits(-123456), std::monostate{}});
  sheet->add({std::string("王<小>&明\n\x01"), base::Date{1899, 12, 31}, base::Money::ofUnits(12345678901), 86.5});
  sheet->add({std::string(), base::Date{1900, 3, 1}, std::monostate{}, std::monostate{}});
  EXPECT_EQ(readBack(sheet->finish()), R"(学员交费记录 1 frozen
@ yyyy-mm-dd #,##0.00## General A1:D5
&C&"-,Bold"学员交费记录 &C第 &P 页，共 &N 页&R&D one page wide 王芳
A1 text* @ 学号
B1 text* @ 日期
C1 text* @ 金额
D1 text* @ 数量
A2 text @ 360102200809010011
B2 number yyyy-mm-dd 46272
C2 number #,##0.00## 312.5
D2 number General 3
A3 text @ 0012
C3 number #,##0.00## -12.3456
A4 text @ 王<小>&明
<1>
B4 text @ 1899-12-31
C4 number #,##0.00## 1234567.8901
D4 number General 86.5
B5 number yyyy-mm-dd 61
)");
}

TEST_F(XlsxSheetsTest, EarlierFilesStayAndAnUnfinishedOneGoes) {
  for (int i = 0; i < 3; ++i) sheets.create(plan)->finish();
  { sheets.create(plan)->add({std::string("1001")}); }
  EXPECT_THAT(filesThere(), ElementsAre("学员交费记录 2026-09-07 (2).xlsx", "学员交费记录 2026-09-07 (3).xlsx",
                                        "学员交费记录 2026-09-07.xlsx"));
}

TEST_F(XlsxSheetsTest, NamesThatTheFormatForbidsAreMadeToFit) {
  plan.title = "'一/二:三'" + std::string(40, 'x');
  plan.fileName = "甲/乙?";
  const fs::path file = sheets.create(plan)->finish();
  EXPECT_EQ(file.filename(), "甲_乙_.xlsx");
  EXPECT_THAT(readBack(file), HasSubstr("_一_二_三_" + std::string(24, 'x') + " 1 frozen\n"));
}

TEST_F(XlsxSheetsTest, AWideListIsPrintedOnPagesBesideEachOtherInstead) {
  plan.headings.assign(20, "二十列中的一列");
  plan.kinds.assign(20, SheetKind::Text);
  plan.title = "甲&乙";
  EXPECT_THAT(readBack(sheets.create(plan)->finish()), HasSubstr("Bold\"甲&&乙 &C第 &P 页，共 &N 页&R&D 65 王芳"));
}

TEST_F(XlsxSheetsTest, ColumnsAreAsWideAsWhatTheyHold) {
  plan.headings = {"学号", "备注"};
  plan.kinds = {SheetKind::Text, SheetKind::Text};
  const auto sheet = sheets.create(plan);
  sheet->add({std::string("202400000000000001"), std::string(300, 'x')});
  const fs::path file = sheet->finish();
  const std::string command = "unzip -p '" + file.string() + "' xl/worksheets/sheet1.xml | grep -o '<col [^>]*>'";
  FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 400> text{};
  const std::size_t length = std::fread(text.data(), 1, text.size(), pipe);
  pclose(pipe);
  EXPECT_THAT(std::string(text.data(), length), testing::AllOf(HasSubstr("width=\"20.7"), HasSubstr("width=\"60.7")));
}

// Files of this process may not grow beyond so many bytes, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit full{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

template <class Work> std::string faultOf(Work work) {
  try {
    work();
  } catch (const platform::PlatformError& fault) {
    return fault.what();
  }
  return "";
}

TEST_F(XlsxSheetsTest, AFullDiskIsToldAndLeavesNothing) {
  const auto writeMany = [this](int rows) {
    const auto sheet = sheets.create(plan);
    for (int i = 0; i < rows; ++i)
      sheet->add({std::to_string(i * 7919), base::Date{2026, 9, 7}, base::Money::fen(i), 1.0});
    sheet->finish();
  };
  writeMany(2000);
  const std::size_t rowsTake = rowBytes(plan.folder / (plan.fileName + ".xlsx"));
  ASSERT_GT(rowsTake, 100000U);
  EXPECT_EQ(filesThere().size(), 1U);
  struct Limit {
    int rows;
    rlim_t bytes;
  };
  // The workbook itself does not fit, nor do the rows, nor the sheet around rows that fit.
  for (const Limit& limit : {Limit{1, 3000}, Limit{2000, rowsTake / 2}, Limit{2000, rowsTake + 10}}) {
    const FullDisk full(limit.bytes);
    EXPECT_THAT(faultOf([&] { writeMany(limit.rows); }), HasSubstr("检查磁盘空间")) << limit.bytes;
    EXPECT_EQ(filesThere().size(), 1U) << limit.bytes;
  }
}

TEST_F(XlsxSheetsTest, AFolderThatCannotBeAndATextThatIsTooLong) {
  platform::writeFile(desktop.programFolder() / "文件", "");
  SheetPlan nowhere = plan;
  nowhere.folder = desktop.programFolder() / "文件" / "导出";
  EXPECT_THAT(faultOf([&] { sheets.create(nowhere); }), HasSubstr("无法建立文件夹"));

  const auto sheet = sheets.create(plan);
  sheet->add({std::string(32767, 'x')});
  EXPECT_THAT(faultOf([&] { sheet->add({std::string(32768, 'x')}); }), HasSubstr("第 2 条记录"));
}

}  // namespace
}  // namespace sheets
