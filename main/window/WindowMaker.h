// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"

#include <memory>

namespace ambrelle {

class MainWindow;

/// The main window with everything in it; its pages are made when they are first shown.
std::unique_ptr<MainWindow> makeMainWindow(const WindowContext& context);

} // namespace ambrelle
