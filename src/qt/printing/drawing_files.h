// A drawing as a file or as a picture.
#pragma once

#include <QImage>
#include <filesystem>

#include "platform/drawing.h"

namespace qt {

// Raises platform::PlatformError when the file cannot be written.
void savePdf(const platform::Drawing& drawing, const std::filesystem::path& path);

// A page, counted from 0, as a picture of so many dots an inch.
QImage renderPage(const platform::Drawing& drawing, std::size_t page, int dotsPerInch);

}  // namespace qt
