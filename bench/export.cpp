// bench_export: measures the export of a list against the bare spreadsheet library writing the same cells. The school
// is made in memory; the sheets go to a folder of their own. Prints a table; fails when the limit is missed.
#include "reports/export.h"

#include <xlsxwriter.h>

#include <cstdio>
#include <exception>

#include "measure.h"
#include "sample/sample.h"
#include "sheets/xlsx_sheets.h"
#include "support/test_desk.h"

namespace {

constexpr int schoolStudents = 3200;
constexpr long long exportedRows = 32000;

struct AgreeingPerson : kit::Person {
  std::string said;
  void tell(kit::Box, const std::string& text, const std::string&) override { said = text; }
  bool ask(kit::Box, const std::string&, const std::string&) override { return true; }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
};

struct Office {
  support::TestDesk test;
  AgreeingPerson person;
  sheets::XlsxSheets sheets;
  kit::Desk desk{test.session, test.store, person,       test.navigator, test.clock,
                 test.printer, sheets,     test.desktop, test.progress};

  Office() { sample::writeSchool(test.store, {.students = schoolStudents, .payments = exportedRows}); }
};

// The cells of the payments' sheet, as the program itself hands them out.
std::vector<std::vector<platform::SheetCell>> cellsOf(Office& office) {
  kit::Desk desk{office.test.session, office.test.store,  office.person,       office.test.navigator, office.test.clock,
                 office.test.printer, office.test.sheets, office.test.desktop, office.test.progress};
  reports::exportList(desk, reports::List::Payments);
  auto rows = office.test.sheets.kept.back().rows;
  if (static_cast<long long>(rows.size()) != exportedRows) throw std::runtime_error("rows are missing");
  return rows;
}

struct BareSheet {
  lxw_worksheet* sheet;
  lxw_format *text, *amount, *date;

  void write(lxw_row_t row, lxw_col_t column, const platform::SheetCell& cell) const {
    if (const auto* words = std::get_if<std::string>(&cell)) {
      worksheet_write_string(sheet, row, column, words->c_str(), text);
    } else if (const auto* number = std::get_if<double>(&cell)) {
      worksheet_write_number(sheet, row, column, *number, nullptr);
    } else if (const auto* money = std::get_if<base::Money>(&cell)) {
      worksheet_write_number(sheet, row, column, static_cast<double>(money->units()) / 10000, amount);
    } else if (const auto* day = std::get_if<base::Date>(&cell)) {
      lxw_datetime moment{.year = day->year, .month = day->month, .day = day->day, .hour = 0, .min = 0, .sec = 0};
      worksheet_write_datetime(sheet, row, column, &moment, date);
    }
  }
};

// With the library's quickest way, which is ours too: rows leave memory as they come.
void writeBare(const std::string& folder, const std::vector<std::vector<platform::SheetCell>>& rows) {
  std::string scratch = folder;
  lxw_workbook_options options{.constant_memory = LXW_TRUE, .tmpdir = scratch.data(), .use_zip64 = LXW_FALSE};
  lxw_workbook* book = workbook_new_opt((folder + "/bare.xlsx").c_str(), &options);
  BareSheet bare{workbook_add_worksheet(book, nullptr), workbook_add_format(book), workbook_add_format(book),
                 workbook_add_format(book)};
  format_set_num_format(bare.text, "@");
  format_set_num_format(bare.amount, "0.00##");
  format_set_num_format(bare.date, "yyyy-mm-dd");
  for (std::size_t row = 0; row < rows.size(); ++row)
    for (std::size_t column = 0; column < rows[row].size(); ++column)
      bare.write(static_cast<lxw_row_t>(row + 1), static_cast<lxw_col_t>(column), rows[row][column]);
  if (workbook_close(book) != LXW_NO_ERROR) throw std::runtime_error("the bare sheet was not written");
}

}  // namespace

int main() {
  try {
    Office office;
    const auto rows = cellsOf(office);
    const auto folder = office.test.desktop.exportFolder();
    std::filesystem::create_directories(folder);
    const bool within =
        bench::measureAll({{"export of " + std::to_string(exportedRows) + " payments, from rows to the file", 1.2, 15,
                            [&] { return bench::timed([&] { writeBare(folder.string(), rows); }); },
                            [&] {
                              const bench::Seconds time =
                                  bench::timed([&] { reports::exportList(office.desk, reports::List::Payments); });
                              if (office.person.said.find("已导出") == std::string::npos)
                                throw std::runtime_error(office.person.said);
                              return time;
                            }}});
    return within ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_export: %s\n", error.what());
    return 2;
  }
}
