#include "sheets/row_bytes.h"

#include <minizip/unzip.h>

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace sheets {
namespace {

struct Close {
  void operator()(void* archive) const { unzClose(archive); }
};
using Archive = std::unique_ptr<std::remove_pointer_t<unzFile>, Close>;

constexpr std::size_t pieceSize = 65536;

// A part of the archive as it is unpacked, piece by piece: its first piece, its last two, and how long it is.
struct Part {
  std::string first, last;
  std::size_t length = 0;
  bool sound = false;
};

Part unpacked(unzFile archive, const char* name) {
  constexpr int withCase = 1;
  Part part;
  if (unzLocateFile(archive, name, withCase) != UNZ_OK || unzOpenCurrentFile(archive) != UNZ_OK) return part;
  std::string piece(pieceSize, '\0'), before;
  int read = 0;
  while ((read = unzReadCurrentFile(archive, piece.data(), pieceSize)) > 0) {
    piece.resize(static_cast<std::size_t>(read));
    if (part.length == 0) part.first = piece;
    part.length += piece.size();
    before.swap(part.last);
    part.last.swap(piece);
    piece.resize(pieceSize);
  }
  part.last.insert(0, before);
  part.sound = unzCloseCurrentFile(archive) == UNZ_OK && read == 0;  // compares the checksum
  return part;
}

}  // namespace

std::size_t rowBytes(const std::filesystem::path& workbook) {
  constexpr std::string_view begin = "<sheetData>", end = "</sheetData>", close = "</worksheet>";
  const Archive archive(unzOpen(workbook.c_str()));
  if (!archive) return 0;
  const Part sheet = unpacked(archive.get(), "xl/worksheets/sheet1.xml");
  const std::size_t from = sheet.first.find(begin), to = sheet.last.rfind(end);
  if (!sheet.sound || from == std::string::npos || to == std::string::npos || !sheet.last.ends_with(close)) return 0;
  return sheet.length - sheet.last.size() + to - from - begin.size();
}

}  // namespace sheets
