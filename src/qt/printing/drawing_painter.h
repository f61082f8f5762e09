// Paints a drawing on any paint device: screen, image, PDF and paper all show the same.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

#include "platform/drawing.h"
#include "printing/placing.h"

class QPagedPaintDevice;

namespace qt {

constexpr double inchMillimetres = 25.4;

// A painter that has begun and whose unit is the millimetre. A text's y is the top of its characters' square, whatever
// the face's own measures are, so that faces stand on one line.
void paintPage(QPainter& painter, const platform::Page& page);

// Where a text stands on its page, in millimetres.
QRectF placeOf(const platform::Text& mark);
// What the page's texts and lines take of it.
QRectF inkOf(const platform::Page& page);

// Paints the pages numbered, counted from 1, onto a device that gets the paper, without margins; false: it took
// nothing.
bool paintPages(QPagedPaintDevice& device, const platform::Drawing& drawing, const std::vector<int>& pages,
                const printing::Placing& placing);

// The characters of a text that none of the face's families can show.
QString missingCharacters(platform::Face face, const QString& text);

}  // namespace qt
