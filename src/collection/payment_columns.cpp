#include "collection/payment_columns.h"

namespace collection {

const std::vector<kit::ListColumn> paymentColumns{
    {"  记录标识号", "lsh", kit::Format::Text, 9},
    {"  姓名", "xm", kit::Format::Text, 5},
    {"        院校班级名称", "bjmc", kit::Format::Text, 12},
    {"   交费所属学期", "xq", kit::Format::Text, 9},
    {" 交费日期", "jfrq", kit::Format::Date, 7},
    {" 收据编号", "fpbh", kit::Format::Text, 7},
    {" 交费方式", "jffs", kit::Format::Text, 6},
    {"交费项目名称", "sfxm", kit::Format::Text, 8},
    {"   金额", "je", kit::Format::Padded, 7},
    {"提交", "sftj", kit::Format::Text, 3},
    {"收款人", "skr", kit::Format::Text, 5},
};

}  // namespace collection
