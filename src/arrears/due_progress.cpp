#include "arrears/due_progress.h"

#include "base/text.h"
#include "kit/notice.h"

namespace arrears {

Formqfcl3::Formqfcl3(kit::Desk& all, DueImport chosen) : LoadingScreen(all, "Formqfcl3"), chosen_(std::move(chosen)) {
  notice.set("正在导入学生应交费信息，请稍等 ...");
  text.clear();
}

std::optional<int> Formqfcl3::import() {
  kit::Notice progress(desk.progress);
  const auto count = importDue(desk, chosen_, [&](const std::string& words, long long done, long long total) {
    text.set(words);
    progress.show(words, done, total);
  });
  if (count) text.set("共导入应交费记录" + base::caption(*count) + "条");
  return count;
}

void Formqfcl3::proceed() {
  if (chosen_.item && base::blank(*chosen_.item)) {
    close();
    return stop("请设置要导入的收费项目！ ", kit::wrongInput);
  }
  const std::optional<int> count = import();
  close();
  if (!count) return inform("不存在需要导入的学生信息，请建立完整的学生档案后再进行导入 ！  ", "导入提示");
  answer = true;
  inform("共导入应交费记录" + base::caption(*count) + "条，导入完毕 ！   ", "导入提示");
}

}  // namespace arrears
