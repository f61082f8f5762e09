// The hand-made parts of the shell's windows.
#pragma once

#include "qt/renderer.h"

namespace shell {

// The work area with its frames side by side, the overviews that cover it, and the panel of classes that slides in.
QWidget* buildConsole(kit::Screen& screen, const kit::Node& node, qt::Renderer& renderer);

// The background picture over the whole window, the login panel at its lower right.
QWidget* buildLogin(kit::Screen& screen, const kit::Node& node, qt::Renderer& renderer);

}  // namespace shell
