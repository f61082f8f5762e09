#include "sheets/xlsx_sheets.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <system_error>

#include "base/text.h"
#include "platform/desktop.h"
#include "sheets/row_bytes.h"

namespace sheets {
namespace {

namespace fs = std::filesystem;
using platform::PlatformError;

constexpr std::size_t longestTitle = 31, longestHeader = 200;  // characters, by the format
constexpr std::size_t margin = 2, narrowest = 6, widest = 60;  // of a column, in digits
constexpr std::size_t dateWidth = 10, filterArrow = 3;
constexpr std::size_t separated = 3;                             // digits of an amount between two marks
constexpr double digitDots = 7, cellDots = 5, dotsPerInch = 96;  // of the usual face of 11 points, and beside its texts
constexpr double sideMargin = 0.4, paperLength = 11.69;          // inches; A4 on its side
constexpr int smallestScale = 65;  // per cent: a smaller print of that face has less than 7 points
constexpr lxw_col_t keysOfRows = 2;
constexpr int firstYear = 1900;  // earlier days the format does not know
constexpr std::uint8_t a4 = 9;

std::string without(std::string text, std::string_view forbidden) {
  for (char& one : text)
    if (forbidden.find(one) != std::string_view::npos) one = '_';
  return text;
}

std::string sheetTitle(const std::string& title) { return base::left(without(title, "[]:*?/\\'"), longestTitle); }
std::string fileName(const std::string& name) { return without(name, "/\\:*?\"<>|"); }

// The room a text takes, in digits: whatever is not ASCII takes two.
std::size_t widthOf(std::string_view text) {
  std::size_t width = 0;
  for (const char one : text) {
    const auto byte = static_cast<unsigned char>(one);
    if (byte < 0x80) width += 1;
    else if (byte >= 0xC0) width += 2;
  }
  return width;
}

void makeFolder(const fs::path& folder) {
  std::error_code fault;
  fs::create_directories(folder, fault);
  if (fault) throw PlatformError("无法建立文件夹：" + folder.string() + "，请检查磁盘空间和写入权限。");
}

class XlsxSheet : public platform::Sheet {
 public:
  explicit XlsxSheet(const platform::SheetPlan& plan);
  ~XlsxSheet() override;
  void add(const std::vector<platform::SheetCell>& row) override;
  fs::path finish() override;

 private:
  struct Drop {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
  };

  void open();
  void setUpPage();
  void setUpColumns();
  void fitToPaper();
  lxw_format* format(const char* numbers, lxw_format_alignments align = LXW_ALIGN_NONE);
  lxw_format* formatOf(std::size_t column) const;
  void writeHeadings();
  std::size_t write(lxw_col_t column, const platform::SheetCell& cell);  // gives back the room it takes
  void text(lxw_col_t column, const std::string& text, lxw_format* format);
  void check(lxw_error result);
  fs::path freeName() const;
  [[noreturn]] void notWritten() const;

  const platform::SheetPlan plan_;
  const std::string name_;
  const fs::path unfinished_;
  std::unique_ptr<lxw_workbook, Drop> book_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format *text_ = nullptr, *number_ = nullptr, *amount_ = nullptr, *date_ = nullptr;
  lxw_row_t row_ = 0;
  std::vector<std::size_t> widths_;
};

XlsxSheet::XlsxSheet(const platform::SheetPlan& plan)
    : plan_(plan), name_(fileName(plan.fileName)), unfinished_(plan.folder / ("." + name_ + ".part")) {
  makeFolder(plan_.folder);
  platform::writeFile(unfinished_, "");  // a folder that takes no file says so before the work
  try {
    open();
    writeHeadings();
  } catch (...) {
    std::error_code ignored;
    fs::remove(unfinished_, ignored);
    throw;
  }
}

XlsxSheet::~XlsxSheet() {
  std::error_code ignored;
  fs::remove(unfinished_, ignored);
}

void XlsxSheet::open() {
  // Rows go to a scratch file as they come; it lies where the sheet will, so that both need room on one disk only.
  std::string scratch = plan_.folder.string();
  lxw_workbook_options options{.constant_memory = LXW_TRUE, .tmpdir = scratch.data(), .use_zip64 = LXW_FALSE};
  book_.reset(workbook_new_opt(unfinished_.c_str(), &options));
  if (book_) sheet_ = workbook_add_worksheet(book_.get(), sheetTitle(plan_.title).c_str());
  if (!sheet_) notWritten();
  text_ = format("@");
  number_ = format("General");
  amount_ = format("#,##0.00##");
  date_ = format("yyyy-mm-dd", LXW_ALIGN_CENTER);
  setUpPage();
}

void XlsxSheet::setUpPage() {
  worksheet_freeze_panes(sheet_, 1, 0);
  worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, "A1:XFD1048576");
  worksheet_set_paper(sheet_, a4);
  worksheet_set_landscape(sheet_);
  worksheet_set_margins(sheet_, sideMargin, sideMargin, -1, -1);
  worksheet_repeat_rows(sheet_, 0, 0);
  std::string title;
  for (const char one : plan_.title) title += one == '&' ? "&&" : std::string(1, one);
  check(worksheet_set_header(sheet_, ("&C&\"-,Bold\"" + base::left(title, longestHeader)).c_str()));
  check(worksheet_set_footer(sheet_, "&C第 &P 页，共 &N 页&R&D"));
  std::string name = plan_.title, creator = plan_.creator;
  lxw_doc_properties properties{};
  properties.title = name.data();
  properties.author = creator.data();
  check(workbook_set_properties(book_.get(), &properties));
}

lxw_format* XlsxSheet::formatOf(std::size_t column) const {
  switch (plan_.kinds[column]) {
    case platform::SheetKind::Text: break;
    case platform::SheetKind::Number: return number_;
    case platform::SheetKind::Amount: return amount_;
    case platform::SheetKind::Day: return date_;
  }
  return text_;
}

// What is filled in later is read like the rest: a long number stays whole only in a column of texts.
void XlsxSheet::setUpColumns() {
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    widths_[i] = std::clamp(widths_[i] + margin, narrowest, widest);
    check(worksheet_set_column(sheet_, column, column, static_cast<double>(widths_[i]), formatOf(i)));
  }
  if (!widths_.empty()) check(worksheet_autofilter(sheet_, 0, 0, row_, static_cast<lxw_col_t>(widths_.size() - 1)));
}

// A list that would get too small to read goes on to pages beside each other, each with the columns that name its rows.
void XlsxSheet::fitToPaper() {
  double inches = 0;
  for (const std::size_t width : widths_) inches += (static_cast<double>(width) * digitDots + cellDots) / dotsPerInch;
  if (inches * smallestScale / 100 <= paperLength - 2 * sideMargin) return worksheet_fit_to_pages(sheet_, 1, 0);
  worksheet_set_print_scale(sheet_, smallestScale);
  worksheet_repeat_columns(sheet_, 0, keysOfRows - 1);
  worksheet_print_across(sheet_);
}

lxw_format* XlsxSheet::format(const char* numbers, lxw_format_alignments align) {
  lxw_format* made = workbook_add_format(book_.get());
  if (!made) notWritten();
  format_set_num_format(made, numbers);
  format_set_align(made, align);
  return made;
}

void XlsxSheet::writeHeadings() {
  lxw_format* bold = format("@");
  format_set_bold(bold);
  for (const std::string& heading : plan_.headings) {
    text(static_cast<lxw_col_t>(widths_.size()), heading, bold);
    widths_.push_back(widthOf(heading) + filterArrow);
  }
}

void XlsxSheet::add(const std::vector<platform::SheetCell>& row) {
  ++row_;
  const std::size_t columns = std::min(row.size(), widths_.size());
  for (std::size_t i = 0; i < columns; ++i) widths_[i] = std::max(widths_[i], write(static_cast<lxw_col_t>(i), row[i]));
}

std::size_t XlsxSheet::write(lxw_col_t column, const platform::SheetCell& cell) {
  if (const auto* words = std::get_if<std::string>(&cell)) {
    text(column, *words, text_);
    return widthOf(*words);
  }
  if (const auto* number = std::get_if<double>(&cell)) {
    check(worksheet_write_number(sheet_, row_, column, *number, number_));
    return base::plainNumber(*number).size();
  }
  if (const auto* money = std::get_if<base::Money>(&cell)) {
    const double yuan = static_cast<double>(money->units()) / static_cast<double>(base::Money::yuan(1).units());
    check(worksheet_write_number(sheet_, row_, column, yuan, amount_));
    const std::size_t digits = std::max(money->plain().size(), money->fixed2().size());
    return digits + digits / separated;
  }
  if (const auto* day = std::get_if<base::Date>(&cell)) {
    if (day->year < firstYear) {
      text(column, day->iso(), text_);
    } else {
      lxw_datetime date{.year = day->year, .month = day->month, .day = day->day, .hour = 0, .min = 0, .sec = 0};
      check(worksheet_write_datetime(sheet_, row_, column, &date, date_));
    }
    return dateWidth;
  }
  return 0;
}

void XlsxSheet::text(lxw_col_t column, const std::string& text, lxw_format* format) {
  if (!text.empty()) check(worksheet_write_string(sheet_, row_, column, text.c_str(), format));
}

void XlsxSheet::check(lxw_error result) {
  if (result == LXW_NO_ERROR) return;
  if (result == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED)
    throw PlatformError("第 " + std::to_string(row_) +
                        " 条记录中有一项内容超过32767个字符，电子表格放不下。请先缩短该项内容，再重新导出。");
  notWritten();
}

std::filesystem::path XlsxSheet::finish() {
  setUpColumns();
  fitToPaper();
  // The library does not look at what becomes of its scratch files: on a full disk the sheet would lack rows without a
  // word. So the rows' file is looked at here, and what arrived in the workbook is held against it.
  lxw_worksheet_write_single_row(sheet_);
  if (std::fflush(sheet_->file) != 0 || std::ferror(sheet_->file)) notWritten();
  const long written = std::ftell(sheet_->file);
  if (workbook_close(book_.release()) != LXW_NO_ERROR) notWritten();
  if (rowBytes(unfinished_) != static_cast<std::size_t>(written)) notWritten();
  const fs::path finished = freeName();
  std::error_code fault;
  fs::rename(unfinished_, finished, fault);
  if (fault) notWritten();
  return finished;
}

fs::path XlsxSheet::freeName() const {
  fs::path path = plan_.folder / (name_ + ".xlsx");
  std::error_code ignored;  // what cannot be looked at cannot be written either, which is told then
  for (int number = 2; fs::exists(path, ignored); ++number)
    path = plan_.folder / (name_ + " (" + std::to_string(number) + ").xlsx");
  return path;
}

void XlsxSheet::notWritten() const {
  throw PlatformError("电子表格“" + plan_.title + "”未能写入文件夹：" + plan_.folder.string() +
                      "，没有留下文件。请检查磁盘空间和写入权限，再重新导出。");
}

}  // namespace

std::unique_ptr<platform::Sheet> XlsxSheets::create(const platform::SheetPlan& plan) {
  return std::make_unique<XlsxSheet>(plan);
}

}  // namespace sheets
