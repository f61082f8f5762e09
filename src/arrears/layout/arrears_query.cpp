#include "arrears/arrears_query.h"

namespace arrears {

using namespace kit;

namespace {

Nodes question(QuestionFields& fields) { return {fields.bjmc, fields.xq, fields.sfxm, fields.from, fields.to}; }

}  // namespace

Layout Formqfcl11::layout() {
  const Node own = form({xq, bjmc, xh, xm, sfxm, clfs, qfrq.node(), bjrq.node(), sbjrq.node()}, 2);
  Nodes comparison = question(compared);
  comparison.push_back(due);
  return {.root = column(
              {tabs({group("欠费记录", {queryNode(own), buttons({byScope, clearAll, confirm})}),
                     ending(group("未交费学生名单", {form(question(unpaid)), stretch(), buttons({searchUnpaid})}),
                            searchUnpaid),
                     ending(group("应交实交金额对比", {form(std::move(comparison)), group("对比结果", {wanted}),
                                                       stretch(), buttons({compare})}),
                            compare)}),
               buttons({cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 860};
}

}  // namespace arrears
