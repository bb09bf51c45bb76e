#pragma once

#include "model/WidgetOptions.h"

namespace ambrelle {

/// The tabs of the main window, in their order.
enum class MainTab { themes, widgets, wallpapers, settings };

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array mainTabRows = std::to_array<TitledRow<MainTab>>({
    {MainTab::themes, "themes"_L1, u"Themes"},
    {MainTab::widgets, "widgets"_L1, u"Widgets"},
    {MainTab::wallpapers, "wallpapers"_L1, u"Wallpapers"},
    {MainTab::settings, "settings"_L1, u"Settings"},
});
} // namespace tables

template <> inline constexpr auto rawRows<MainTab> = tables::mainTabRows;

} // namespace ambrelle
