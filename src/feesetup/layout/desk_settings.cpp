#include "feesetup/desk_settings.h"

namespace feesetup {

kit::Layout Formszqt::layout() {
  using namespace kit;
  const Node printing =
      group("收据打印", {dysz, dybzok, fpys, zdqh, row({form({wide(todamc1, 16)}), storeForm, stretch()})});
  const Node office = group("后台数据加载", {jfjljz, note("打开后台 [ 教师工资信息管理前台 ] 时,加载全部数据"),
                                             note("打开后台 [ 欠费记录总控界面 ] 时,加载全部数据")});
  const Node front = group("收费前台", {sfctsz, qfmr});
  const Node arrears = group(
      "欠费设置", {row({form({wide(qfjz, 12)}), storeItem, stretch()}), qfcejz,
                   note("并将差额自动添加到“第一次补交”金额栏中"), row({form({wide(qfts, 4)}), storeDays, stretch()})});
  return {.root = column({row({column({printing, office}), column({front, arrears})}),
                          group("前台收费设置：", {sfxmmcsz}), buttons({back})}),
          .cancel = &back,
          .width = 1120};
}

}  // namespace feesetup
