// The widget for each kind of member.
#pragma once

#include "qt/renderer.h"

namespace qt {

QWidget* fieldWidget(kit::Field& field, Renderer& renderer);
// A shown field that stands by itself: over as many lines as it takes, or in one line.
QWidget* shownText(kit::Field& field, Renderer& renderer, bool wraps);
QWidget* checkWidget(kit::Check& check, Renderer& renderer);
QWidget* choiceWidget(kit::Choice& choice, Renderer& renderer);
QWidget* button(kit::Action& action, Renderer& renderer);
QWidget* listWidget(kit::List& list, Renderer& renderer);
QWidget* treeWidget(kit::Tree& tree, Renderer& renderer);
QWidget* pictureWidget(kit::Picture& picture, Renderer& renderer);
QWidget* frameWidget(kit::Frame& frame, Renderer& renderer);
void runTimer(kit::Timer& timer, kit::Screen& screen, Renderer& renderer);

}  // namespace qt
