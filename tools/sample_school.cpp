// sample_school FOLDER [--students N] [--payments M] [--seed S] [--today yyyy-mm-dd]
// Makes a program folder's two databases and fills them with a school that is made up.
#include <charconv>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

#include "sample/sample.h"
#include "store/error.h"
#include "store/files.h"
#include "store/record_set.h"
#include "store/server.h"

namespace {

constexpr std::string_view usage =
    "usage: sample_school FOLDER [--students N] [--payments M] [--seed S] [--today yyyy-mm-dd]";

struct Wish {
  std::filesystem::path folder;
  sample::Plan plan;
};

template <class Number> bool read(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool take(Wish& wish, std::string_view option, std::string_view value) {
  if (option == "--students") return read(value, wish.plan.students);
  if (option == "--payments") return read(value, wish.plan.payments.emplace());
  if (option == "--seed") return read(value, wish.plan.seed);
  if (option != "--today") return false;
  const auto day = base::Date::parse(value);
  if (day) wish.plan.today = *day;
  return day.has_value();
}

bool understand(Wish& wish, int count, char** words) {
  if (count < 2 || count % 2 != 0 || words[1][0] == '-') return false;
  wish.folder = words[1];
  for (int i = 2; i < count; i += 2) {
    if (!take(wish, words[i], words[i + 1])) return false;
  }
  return true;
}

// On a server there always are some; one in which nobody works yet may be filled.
bool hasDatabases(const std::filesystem::path& folder) {
  if (store::serverOf(folder)) {
    store::Store store(folder);
    return !store::RecordSet(store, "select * from yhxx").empty();
  }
  return store::holdsDatabases(folder);
}

int fail(const std::string& why) {
  std::cerr << "sample_school: " << why << "\n";
  return 1;
}

}  // namespace

int main(int count, char** words) {
  Wish wish;
  if (!understand(wish, count, words)) {
    std::cerr << usage << "\n";
    return 2;
  }
  if (const auto fault = sample::faultOf(wish.plan)) return fail(*fault);
  try {
    if (hasDatabases(wish.folder)) return fail(wish.folder.string() + " already has databases; nothing was changed");
    std::filesystem::create_directories(wish.folder);
    store::Store store(wish.folder);
    const sample::Written written = sample::writeSchool(store, wish.plan);
    std::cout << wish.folder.string() << ": " << written.classes << " classes, " << written.students << " students, "
              << written.payments << " payments on " << written.receipts << " receipts, " << written.arrears
              << " arrears, up to " << wish.plan.today.iso() << "\n"
              << "users " << sample::superUser << " and " << sample::deskUser << ", password " << sample::password
              << "\n";
  } catch (const std::exception& error) {
    return fail(error.what());
  }
}
