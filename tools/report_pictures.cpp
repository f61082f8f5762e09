// report_pictures FOLDER: every printed list as PDF files with 0, 1, 45 and 1,000 rows, and with texts that are longer
// than their places, to be looked at: pdftoppm -r 60 -png -l 2 FOLDER/bbdy_xs-45.pdf page
#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <map>

#include "qt/printing/drawing_files.h"
#include "reports/drawing.h"

namespace {

using store::Value;

// What stands in the columns that the lists show; the first in a usual row, the second in one of long texts.
const std::map<std::string_view, std::pair<const char*, const char*>> texts{
    {"xh", {"2026000123", "202600012345678901"}},
    {"xm", {"王小明", "阿卜杜拉·买买提江·吐尔逊·热合曼诺娃"}},
    {"xb", {"男", "男"}},
    {"bjmc", {"计算机应用11001班", "二〇二六级五年制高职计算机应用技术专业与智能制造联合培养试点一班（中外合作）"}},
    {"lxdh", {"0791-8801234", "0791-88012345转80021（家）"}},
    {"sjhm", {"13800138000", "13800138000、13900139000"}},
    {"jtzz",
     {"江西省南昌市东湖区阳明路18号",
      "江西省吉安市井冈山经济技术开发区深圳大道二百三十六号阳光花园小区十二栋三单元一八〇二室"}},
    {"sfxm", {"学费", "高等教育自学考试助学与技能鉴定报名材料工本费"}},
    {"xq", {"2026学年下学期", "2026至2027学年下学期（春季入学补录批次）"}},
    {"xqrq", {"2026学年下学期", "2026年2月1日至2026年12月31日期间全部交费记录"}},
    {"lsh", {"202609070001", "202609070001"}},
    {"fpbh", {"10000123", "10000123"}},
    {"jffs", {"现金", "银行转账（对公）"}},
    {"skr", {"李芳", "欧阳买买提江·热合曼"}},
    {"dwmc", {"王小明", "阿卜杜拉·买买提江·吐尔逊"}},
    {"tsbh", {"9787302511", "9787302511853000"}},
    {"tsmc", {"数据结构与算法", "中国特色社会主义理论体系概论与当代世界经济政治专题研究（第三版）（上册）"}},
    {"wpmc", {"课桌", "多功能可升降铝合金框架学生课桌椅组合（双人）"}},
    {"loumc", {"一号楼", "国际教育学院学生公寓第十二号楼"}},
    {"mz", {"汉族", "柯尔克孜族"}},
    {"dw", {"本", "标准包装箱"}},
    {"hf", {"是", "是"}},
    {"gh", {"0012", "202600123456"}},
    {"jsxm", {"李芳", "欧阳买买提江·热合曼"}},
    {"tianshu", {"12", "1234"}},
    {"fakuan", {"3.50", "123456789.00"}},
};

Value valueOf(const store::Column& column, int row, bool longTexts) {
  switch (column.type) {
    case store::Type::Text: {
      const auto found = texts.find(column.name);
      if (found == texts.end()) return longTexts ? "一段比它的位置更长的文字" : "普通文字";
      return longTexts ? found->second.second : found->second.first;
    }
    case store::Type::Date: return base::Date{2026, 9, 1}.plusDays(row % 120);
    case store::Type::DateTime: return base::DateTime{{2026, 9, 7}, 8, 30, 5};
    case store::Type::Money: return longTexts ? base::Money::fen(123456789012) : base::Money::fen(23505 + 100 * row);
    default: return longTexts ? 123456789 : row;
  }
}

void save(const reports::Report& report, int rows, bool longTexts, const std::filesystem::path& file) {
  store::Store store;
  store::Unit unit(store);
  store::RecordSet table(store, store::Sql::table(report.table));
  for (int row = 1; row <= rows; ++row) {
    table.addNew();
    for (const store::Column& column : store::findTable(report.table)->columns)
      if (column.type != store::Type::Bytes && column.type != store::Type::YesNo)
        table.set(column.name, valueOf(column, row, longTexts));
    table.update();
  }
  unit.finish();
  table.refresh();
  const std::string school =
      longTexts ? "江西省吉安市澜岳高级职业技术学校（国家级重点中等职业学校）附属第二校区" : "澜岳学校";
  qt::savePdf(reports::draw(report, table, {school, {{2026, 12, 27}, 18, 30, 5}}), file);
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: report_pictures FOLDER\n");
    return 2;
  }
  try {
    const std::filesystem::path folder(argv[1]);
    std::filesystem::create_directories(folder);
    for (const reports::Report& report : reports::allReports()) {
      for (const int rows : {0, 1, 45, 1000})
        save(report, rows, false, folder / (report.name + ("-" + std::to_string(rows)) + ".pdf"));
      save(report, 45, true, folder / (report.name + std::string("-long.pdf")));
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "report_pictures: %s\n", error.what());
    return 1;
  }
}
