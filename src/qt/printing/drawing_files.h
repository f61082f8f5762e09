// A drawing as a file or as a picture.
#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>

#include "platform/drawing.h"
#include "printing/placing.h"

namespace qt {

// The pages numbered, counted from 1, as they are to lie on the paper. Raises platform::PlatformError like the next.
QByteArray pdfOf(const platform::Drawing& drawing, const std::vector<int>& pages, const printing::Placing& placing);

// All pages on the drawing's own paper. Raises platform::PlatformError when the file cannot be written.
void savePdf(const platform::Drawing& drawing, const std::filesystem::path& path);

// A page, counted from 0, as a picture of so many dots an inch.
QImage renderPage(const platform::Drawing& drawing, std::size_t page, int dotsPerInch);

}  // namespace qt
