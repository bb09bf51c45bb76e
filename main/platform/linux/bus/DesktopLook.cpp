// SPDX-License-Identifier: MIT

#include "platform/linux/bus/DesktopLook.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString anyDesktop = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;
const QString kdeGeneral = u"org.kde.kdeglobals.General"_s;
const QString kdeMotion = u"org.kde.kdeglobals.KDE"_s;

constexpr double gnomeFontSize = 11; // points, where the user has not chosen another
constexpr double kdeFontSize = 10; // likewise
constexpr double mostTextScale = 1.5;

std::optional<double> number(const QVariant& value)
{
    const int kind = value.metaType().id();
    const bool isReadable = kind == QMetaType::Double || kind == QMetaType::UInt || kind == QMetaType::Int
        || kind == QMetaType::QString || kind == QMetaType::LongLong || kind == QMetaType::ULongLong;
    bool isNumber = false;
    const double result = isReadable ? value.toDouble(&isNumber) : 0;
    return isNumber && std::isfinite(result) ? std::optional(result) : std::nullopt;
}

bool isOff(const QVariant& value)
{
    return value == QVariant(false) || (value.metaType().id() == QMetaType::QString && value.toString() == "false"_L1);
}

std::optional<double> positive(const QVariant& value)
{
    const auto result = number(value);
    return result && *result > 0 ? result : std::nullopt;
}

/// The toolkit's own form, with the size second: "Noto Sans,12,-1,5,50,0,0,0,0,0".
std::optional<double> kdeScale(const DesktopSettings& settings)
{
    const auto size = positive(settings.value({kdeGeneral, u"font"_s}).toString().section(u',', 1, 1));
    return size ? std::optional(*size / kdeFontSize) : std::nullopt;
}

/// With the size last: "Cantarell Bold 11".
std::optional<double> gnomeScale(const DesktopSettings& settings)
{
    const auto size = positive(settings.value({gnome, u"font-name"_s}).toString().section(u' ', -1));
    return size ? std::optional(*size / gnomeFontSize) : std::nullopt;
}

double textScale(const DesktopSettings& settings, bool isWayland)
{
    if (const auto scale = kdeScale(settings))
        return *scale;
    const double factor = isWayland ? positive(settings.value({gnome, u"text-scaling-factor"_s})).value_or(1) : 1;
    return gnomeScale(settings).value_or(1) * factor;
}

bool reducesMotion(const DesktopSettings& settings)
{
    if (const auto told = number(settings.value({anyDesktop, u"reduced-motion"_s})))
        return *told == 1;
    return isOff(settings.value({gnome, u"enable-animations"_s}))
        || number(settings.value({kdeMotion, u"AnimationDurationFactor"_s})) == 0.0;
}

} // namespace

QStringList desktopLookSections()
{
    return {anyDesktop, gnome, kdeGeneral, kdeMotion};
}

DesktopLook desktopLook(const DesktopSettings& settings, bool isWayland)
{
    return {.contrast = number(settings.value({anyDesktop, u"contrast"_s})) == 1.0,
        .reducesMotion = reducesMotion(settings),
        .textScale = std::clamp(textScale(settings, isWayland), 1.0, mostTextScale)};
}

DesktopSettings listedSettings(const QString& list)
{
    DesktopSettings settings;
    for (const QString& line : list.split(u'\n', Qt::SkipEmptyParts)) {
        QString value = line.section(u' ', 2);
        if (value.size() > 1 && value.startsWith(u'\'') && value.endsWith(u'\''))
            value = value.sliced(1, value.size() - 2);
        settings.insert({line.section(u' ', 0, 0), line.section(u' ', 1, 1)}, value);
    }
    return settings;
}

} // namespace ambrelle
