// How the program looks: one calm set of colours, faces and measures for every window.
#pragma once

#include <QColor>
#include <QFont>

#include "kit/member.h"
#include "platform/drawing.h"

class QApplication;
class QFontMetrics;

namespace qt {

inline QColor toQt(const kit::Colour& colour) { return QColor(colour.red, colour.green, colour.blue); }

namespace theme {
const QColor panel = toQt(kit::panelColour);
const QColor accent(15, 98, 104);  // deep teal: headings, focus, what is chosen
const QColor accentDark(10, 74, 80);
const QColor accentPale(221, 240, 239);
const QColor ink(27, 42, 46);
const QColor quiet(84, 108, 112);    // labels and notes
const QColor faint(134, 156, 159);   // what is disabled
const QColor notice(95, 118, 121);   // words where there is nothing else
const QColor chosen(173, 216, 214);  // a selected row of a list that has not the keyboard
const QColor underMouse(226, 241, 241);
const QColor fresh(255, 249, 226);  // a row that is still in hand
const QColor rule(176, 203, 203);
const QColor paper(255, 255, 255);
const QColor found(255, 226, 120);  // behind a text that was searched for
const QColor paperAlternate(244, 250, 250);
const QColor stop(186, 45, 45);
const QColor warning(176, 112, 8);
constexpr int pointSize = 10, leastPoints = 9, mostPoints = 14;
}  // namespace theme

// The face's family with its fall-backs: the named one first, then those that have the rare characters of names.
QFont faceFont(platform::Face face, double points);

// Width of so many Chinese characters.
namespace theme {
QColor meaning(const QString& word);  // of a word that asks for attention in a list; none of others
}

// The size of all text, kept on this computer. Windows that stand are built anew by whoever changes it.
int textPoints();
void setTextPoints(int points);

int charactersWide(const QFontMetrics& metrics, int characters);

// Style, palette, fonts, the toolkit's own texts in Chinese.
void applyTheme(QApplication& application);

}  // namespace qt
