#include "printing/queues.h"

#include <cups/cups.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <span>

#include "platform/desktop.h"

namespace printing {
namespace {

constexpr int patience = 5000;  // milliseconds for the print service to answer

struct Close {
  void operator()(http_t* one) const { httpClose(one); }
};
using Service = std::unique_ptr<http_t, Close>;

Service service() {
  return Service(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patience, nullptr));
}

// A queue with the options that this computer's users have set for it.
class Destination {
 public:
  Destination(http_t* http, const std::string& name) : one_(cupsGetNamedDest(http, name.c_str(), nullptr)) {}
  ~Destination() { cupsFreeDests(one_ ? 1 : 0, one_); }
  Destination(const Destination&) = delete;
  Destination& operator=(const Destination&) = delete;
  cups_dest_t* get() const { return one_; }

 private:
  cups_dest_t* one_;
};

class Options {
 public:
  ~Options() { cupsFreeOptions(count_, all_); }
  Options() = default;
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;
  void set(const char* name, const std::string& value) { count_ = cupsAddOption(name, value.c_str(), count_, &all_); }
  void drop(const char* name) { count_ = cupsRemoveOption(name, count_, &all_); }
  int count() const { return count_; }
  cups_option_t* all() const { return all_; }

 private:
  int count_ = 0;
  cups_option_t* all_ = nullptr;
};

std::string option(const cups_dest_t& dest, const char* name) {
  const char* value = cupsGetOption(name, dest.num_options, dest.options);
  return value ? value : "";
}

std::vector<std::string> texts(ipp_attribute_t* attribute) {
  std::vector<std::string> all;
  for (int i = 0; attribute && i < ippGetCount(attribute); ++i)
    if (const char* text = ippGetString(attribute, i, nullptr)) all.emplace_back(text);
  return all;
}

// Printers of endless paper take sheets so long that the service's own arithmetic runs over: nothing of their limit is
// left.
double limit(double millimetres) { return millimetres > 0 ? millimetres : std::numeric_limits<double>::infinity(); }

std::string whyRefused(const std::string& queue) {
  const std::string printer = "打印机“" + queue + "”";
  switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return printer + "现在不接受打印任务，没有打印！\n请在系统的打印机设置中允许它接受任务，或换一台打印机后再打印。";
    case IPP_STATUS_ERROR_NOT_FOUND: return printer + "已不存在，没有打印！\n请换一台打印机后再打印。";
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED: return "没有使用" + printer + "的权限，没有打印！\n请联系系统管理员。";
    default: return printer + "没有接受打印任务，没有打印！请检查打印机后重试。\n（" + cupsLastErrorString() + "）";
  }
}

// Whatever says where on which paper the pages go: the PDF and its paper say that.
constexpr const char* placingOptions[] = {"PageSize",  "PageRegion",      "media-col",   "fit-to-page",
                                          "fitplot",   "landscape",       "page-ranges", "scaling",
                                          "number-up", "natural-scaling", "page-set",    "orientation-requested",
                                          "position",  "mirror"};

}  // namespace

const Paper* Abilities::named(Size size) const {
  const auto found = std::ranges::find_if(papers, [&](const Paper& paper) { return sameSheet(paper.size, size); });
  return found == papers.end() ? nullptr : &*found;
}

bool Abilities::takes(Size size) const {
  return size.width >= smallest.width && size.height >= smallest.height && size.width <= largest.width &&
         size.height <= largest.height;
}

std::vector<Queue> queues() {
  const Service http = service();
  if (!http) return {};
  cups_dest_t* all = nullptr;
  const int count = cupsGetDests2(http.get(), &all);
  std::vector<Queue> result;
  for (const cups_dest_t& dest : std::span(all, static_cast<std::size_t>(std::max(count, 0)))) {
    if (dest.instance) continue;
    const std::string info = option(dest, "printer-info");
    result.push_back({.name = dest.name,
                      .title = info.empty() ? dest.name : info,
                      .usual = dest.is_default != 0,
                      .accepts = option(dest, "printer-is-accepting-jobs") != "false",
                      .stopped = option(dest, "printer-state") == std::to_string(IPP_PSTATE_STOPPED)});
  }
  cupsFreeDests(count, all);
  return result;
}

Abilities abilities(const std::string& queue) {
  Abilities result;
  const Service http = service();
  if (!http) return result;
  const Destination dest(http.get(), queue);
  if (!dest.get()) return result;
  const std::unique_ptr<cups_dinfo_t, decltype(&cupsFreeDestInfo)> info(cupsCopyDestInfo(http.get(), dest.get()),
                                                                        &cupsFreeDestInfo);
  if (!info) return result;
  const auto supported = [&](const char* name) {
    return texts(cupsFindDestSupported(http.get(), dest.get(), info.get(), name));
  };
  constexpr double unit = 100;  // of sizes: to the millimetre
  for (const std::string& name : supported(CUPS_MEDIA)) {
    const pwg_media_t* media = pwgMediaForPWG(name.c_str());
    if (!media) continue;
    const Size size{media->width / unit, media->length / unit};
    if (name.starts_with("custom_min_")) result.smallest = size;
    else if (name.starts_with("custom_max_")) result.largest = {limit(size.width), limit(size.height)};
    else if (std::ranges::none_of(result.papers, [&](const Paper& paper) { return paper.size == size; }))
      result.papers.push_back({name, size});
  }
  const auto usual = texts(cupsFindDestDefault(http.get(), dest.get(), info.get(), CUPS_MEDIA));
  if (!usual.empty()) result.usual = usual.front();
  result.bothSides = std::ranges::count(supported(CUPS_SIDES), std::string(CUPS_SIDES_TWO_SIDED_PORTRAIT)) > 0;
  return result;
}

std::string mediaOf(Size size) {
  const auto plain = [](double millimetres) {
    std::string text = std::to_string(std::lround(millimetres * 100));
    text.insert(text.size() - 2, ".");
    return text;
  };
  return "Custom." + plain(size.width) + "x" + plain(size.height) + "mm";
}

void print(const Job& job, std::string_view pdf) {
  const Service http = service();
  if (!http)
    throw platform::PlatformError(
        "系统的打印服务没有应答，没有打印！\n请检查打印服务（CUPS）是否在运行，然后再打印一次。");
  const Destination dest(http.get(), job.queue);
  Options options;
  if (dest.get())
    for (const cups_option_t& one : std::span(dest.get()->options, static_cast<std::size_t>(dest.get()->num_options)))
      options.set(one.name, one.value);
  for (const char* name : placingOptions) options.drop(name);
  options.set(CUPS_MEDIA, job.media);
  options.set("print-scaling", "none");
  options.set(CUPS_COPIES, std::to_string(job.copies));
  options.set("multiple-document-handling", "separate-documents-collated-copies");
  options.set(CUPS_SIDES, !job.bothSides ? CUPS_SIDES_ONE_SIDED
                          : job.turned   ? CUPS_SIDES_TWO_SIDED_LANDSCAPE
                                         : CUPS_SIDES_TWO_SIDED_PORTRAIT);

  const int id = cupsCreateJob(http.get(), job.queue.c_str(), job.title.c_str(), options.count(), options.all());
  if (id == 0) throw platform::PlatformError(whyRefused(job.queue));
  const bool sent = cupsStartDocument(http.get(), job.queue.c_str(), id, job.title.c_str(), CUPS_FORMAT_PDF, 1) ==
                        HTTP_STATUS_CONTINUE &&
                    cupsWriteRequestData(http.get(), pdf.data(), pdf.size()) == HTTP_STATUS_CONTINUE;
  if (cupsFinishDocument(http.get(), job.queue.c_str()) == IPP_STATUS_OK && sent) return;
  const std::string why = whyRefused(job.queue);
  cupsCancelJob2(http.get(), job.queue.c_str(), id, 0);
  throw platform::PlatformError(why);
}

}  // namespace printing
