// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetOptions.h"

namespace ambrelle {

/// The tabs of the main window, in their order.
enum class MainTab { themes, widgets, wallpapers, settings };

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array mainTabRows = std::to_array<TitledRow<MainTab>>({
    {MainTab::themes, "themes"_L1, QT_TRANSLATE_NOOP("ambrelle", "Themes")},
    {MainTab::widgets, "widgets"_L1, QT_TRANSLATE_NOOP("ambrelle", "Widgets")},
    {MainTab::wallpapers, "wallpapers"_L1, QT_TRANSLATE_NOOP("ambrelle", "Wallpapers")},
    {MainTab::settings, "settings"_L1, QT_TRANSLATE_NOOP("ambrelle", "Settings")},
});
} // namespace tables

template <> inline constexpr auto rawRows<MainTab> = tables::mainTabRows;

} // namespace ambrelle
