#include "kit/fault.h"

#include <filesystem>

#include "platform/desktop.h"
#include "store/error.h"

namespace kit {
namespace {

// A mistake in the program: the person cannot mend it, so the words lead on, and keep a trace for who can.
std::string ownMistake(const char* trace) {
  return "程序内部出错，操作已经停止。请重试一次；如果再次出错，请退出程序后重新进入，并把以下内容告诉管理员：\n" +
         std::string(trace);
}

struct Words {
  std::string text;
  bool tellOutcome = true;
};

Words wordsOf(const std::exception_ptr& fault) {
  try {
    std::rethrow_exception(fault);
  } catch (const store::StoreError& error) {
    return {error.what(), error.fault != store::Fault::Unsure};
  } catch (const platform::PlatformError& error) {
    return {error.what()};
  } catch (const std::filesystem::filesystem_error& error) {
    return {"读写“" + error.path1().string() + "”时出错。请检查该文件夹是否存在、是否有权限，磁盘和网络是否正常！"};
  } catch (const std::bad_alloc&) {
    return {"计算机的内存不足，操作已经停止。请关闭其它程序后再试！"};
  } catch (const std::exception& error) {
    return {ownMistake(error.what())};
  } catch (...) {
    return {ownMistake("?")};
  }
}

}  // namespace

std::string faultText(const std::exception_ptr& fault, std::string_view outcome) {
  Words words = wordsOf(fault);
  if (words.tellOutcome && !words.text.ends_with(outcome)) words.text.append("\n").append(outcome);
  return words.text;
}

}  // namespace kit
