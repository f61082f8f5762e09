#include "students/student_card.h"

#include "kit/list.h"
#include "register/students.h"
#include "students/photo.h"

namespace students {
namespace {

using kit::Format;

struct CardColumn {
  std::string_view name;
  std::string StudentCard::*text;
  Format format = Format::Text;
};

constexpr CardColumn ofStudent[] = {
    {"xh", &StudentCard::xh},       {"xm", &StudentCard::xm},
    {"xb", &StudentCard::xb},       {"csrq", &StudentCard::csrq, Format::LongDate},
    {"sfzhm", &StudentCard::sfzhm}, {"zzmm", &StudentCard::zzmm},
    {"jtzz", &StudentCard::jtzz},   {"lxdh", &StudentCard::lxdh},
    {"sjhm", &StudentCard::sjhm},   {"yzbm", &StudentCard::yzbm},
    {"bjmc", &StudentCard::bjmc},   {"rxrq", &StudentCard::rxrq, Format::LongDate},
    {"rxxs", &StudentCard::rxxs},   {"sfbz", &StudentCard::sfbz, Format::Money},
    {"zymc", &StudentCard::zymc},   {"byxx", &StudentCard::byxx},
    {"yhkh", &StudentCard::yhkh},
};

constexpr CardColumn ofRoom[] = {
    {"loumc", &StudentCard::loumc},
    {"ssbh", &StudentCard::ssbh},
    {"cwh", &StudentCard::cwh},
    {"rq", &StudentCard::rq, Format::LongDate},
};

void take(StudentCard& card, std::span<const CardColumn> columns, store::RecordSet& row) {
  for (const CardColumn& column : columns) card.*column.text = kit::formatted(row.get(column.name), column.format);
}

}  // namespace

std::optional<StudentCard> readStudentCard(store::Store& store, const std::string& xh) {
  store::RecordSet student = school::loadStudent(store, xh);
  if (student.empty()) return std::nullopt;
  StudentCard card;
  take(card, ofStudent, student);
  card.photo = fromBytes(student.get("xp").bytes());
  store::RecordSet room(store, store::Sql("select * from zsgl2 where xh='") + card.xh + "'");
  if (!room.empty()) take(card, ofRoom, room);
  store::RecordSet suspended(store,
                             store::Sql("select * from xxfk where xh='") + card.xh + "' and xxsj<>'' and fksj=''");
  card.status = suspended.empty() ? "在读" : "休学中";
  return card;
}

}  // namespace students
