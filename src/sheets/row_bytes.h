// Looks into a workbook file that has been written.
#pragma once

#include <cstddef>
#include <filesystem>

namespace sheets {

// How many bytes the rows of its first sheet take, unpacked; 0 when the file or the sheet is not whole.
std::size_t rowBytes(const std::filesystem::path& workbook);

}  // namespace sheets
