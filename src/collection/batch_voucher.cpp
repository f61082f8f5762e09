#include "collection/batch_voucher.h"

#include "base/text.h"
#include "collection/receipt_parts.h"

namespace collection {

platform::Drawing batchVoucher(const BatchVoucher& voucher) {
  static const Form form = fiveRowsForm("  集中收费上交凭证", {{10, 22, "院校名称："},
                                                               {20, 28, "姓  名  "},
                                                               {80, 28, "收费标准"},
                                                               {120, 28, "学年学期  "},
                                                               {20, 34, "班  级  "}});
  platform::Page page;
  header(page, form);
  put(page, {32, 21.5, valueSize, 164}, voucher.school);
  put(page, {45, 28.5, valueSize, 33}, voucher.person);
  put(page, {99, 28.5, valueSize, 20}, voucher.standard.fixed2());
  put(page, {142, 28.5, valueSize, 54}, voucher.xq);
  put(page, {45, 34.5, valueSize, 151}, voucher.bjmc);

  cell(page, summaryX, rowY(0), summaryTo, "集中收费上交款");
  payment(page, rowY(0), voucher.sfxm, voucher.total);
  cell(page, remarkX, rowY(0), form.right(), "交费学生人数" + base::caption(voucher.students) + " 人");
  table(page, form, fiveRows, fiveRowsBottom);
  total(page, form, voucher.total, fiveRowsTotalY);
  foot(page, form, "交费日期：" + voucher.jfrq, voucher.cashier, fiveRowsFootY);
  return {.title = "集中收费上交凭证",
          .width = paperWidth,
          .height = paperHeight,
          .pages = {std::move(page)},
          .kind = platform::Kind::Voucher};
}

}  // namespace collection
