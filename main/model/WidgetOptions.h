// SPDX-License-Identifier: MIT

#pragma once

#include "model/RawEnum.h"

#include <QSizeF>

namespace ambrelle {

/// The shape of a face, decided by the skin for each kind.
enum class SizeClass { small, medium };

/// Points at scale 1.
constexpr QSizeF baseSize(SizeClass sizeClass)
{
    return {sizeClass == SizeClass::medium ? 350.0 : 170.0, 170.0};
}

/// The user's size step. `doubled` is stored as "double", which C++ keeps for itself.
enum class WidgetScale { small, medium, large, huge, doubled };

struct WidgetScaleRow {
    WidgetScale value;
    QLatin1StringView raw;
    const char* title;
    double factor;
};

/// What is drawn behind a face.
enum class Backdrop { none, dim, glass };
/// The level of every widget that is not pinned.
enum class WidgetLayer { desktop, floating };
/// What a raised widget does while another program's window covers it.
enum class OverlapBehavior { show, fade, hide };

template <typename E> struct TitledRow {
    E value;
    QLatin1StringView raw;
    const char* title;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array widgetScaleRows = std::to_array<WidgetScaleRow>({
    {WidgetScale::small, "small"_L1, QT_TRANSLATE_NOOP("ambrelle", "75%"), 0.75},
    {WidgetScale::medium, "medium"_L1, QT_TRANSLATE_NOOP("ambrelle", "100%"), 1},
    {WidgetScale::large, "large"_L1, QT_TRANSLATE_NOOP("ambrelle", "125%"), 1.25},
    {WidgetScale::huge, "huge"_L1, QT_TRANSLATE_NOOP("ambrelle", "150%"), 1.5},
    // A small widget becomes exactly as wide as a medium one.
    {WidgetScale::doubled, "double"_L1, QT_TRANSLATE_NOOP("ambrelle", "2×"), 350.0 / 170.0},
});
inline constexpr std::array backdropRows = std::to_array<TitledRow<Backdrop>>({
    {Backdrop::none, "none"_L1, QT_TRANSLATE_NOOP("ambrelle", "None")},
    {Backdrop::dim, "dim"_L1, QT_TRANSLATE_NOOP("ambrelle", "Dim")},
    {Backdrop::glass, "glass"_L1, QT_TRANSLATE_NOOP("ambrelle", "Glass")},
});
inline constexpr std::array widgetLayerRows = std::to_array<TitledRow<WidgetLayer>>({
    {WidgetLayer::desktop, "desktop"_L1, QT_TRANSLATE_NOOP("ambrelle", "On Desktop (behind windows)")},
    {WidgetLayer::floating, "floating"_L1, QT_TRANSLATE_NOOP("ambrelle", "Floating (above windows)")},
});
inline constexpr std::array overlapBehaviorRows = std::to_array<TitledRow<OverlapBehavior>>({
    {OverlapBehavior::show, "show"_L1, QT_TRANSLATE_NOOP("ambrelle", "Show")},
    {OverlapBehavior::fade, "fade"_L1, QT_TRANSLATE_NOOP("ambrelle", "Fade")},
    {OverlapBehavior::hide, "hide"_L1, QT_TRANSLATE_NOOP("ambrelle", "Hide")},
});
} // namespace tables

template <> inline constexpr auto rawRows<WidgetScale> = tables::widgetScaleRows;
template <> inline constexpr auto rawRows<Backdrop> = tables::backdropRows;
template <> inline constexpr auto rawRows<WidgetLayer> = tables::widgetLayerRows;
template <> inline constexpr auto rawRows<OverlapBehavior> = tables::overlapBehaviorRows;

constexpr double factor(WidgetScale scale)
{
    return rowOf(scale).factor;
}

/// The next step, and the first after the last.
constexpr WidgetScale next(WidgetScale scale)
{
    return static_cast<WidgetScale>((static_cast<std::size_t>(scale) + 1) % rawRows<WidgetScale>.size());
}

} // namespace ambrelle
