// SPDX-License-Identifier: MIT

#include "services/DeviceKind.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct Word {
    QLatin1StringView text;
    DeviceKind kind;
};

// The first that occurs decides: earbuds are headphones to many a source, and a trackpad may call itself a mouse too.
constexpr std::array kindWords = std::to_array<Word>({
    {"airpods"_L1, DeviceKind::earbuds},
    {"buds"_L1, DeviceKind::earbuds},
    {"earbud"_L1, DeviceKind::earbuds},
    {"keyboard"_L1, DeviceKind::keyboard},
    {"trackpad"_L1, DeviceKind::trackpad},
    {"mouse"_L1, DeviceKind::mouse},
    {"gamepad"_L1, DeviceKind::controller},
    {"controller"_L1, DeviceKind::controller},
    {"joystick"_L1, DeviceKind::controller},
    {"speaker"_L1, DeviceKind::speaker},
    {"headset"_L1, DeviceKind::headphones},
    {"headphone"_L1, DeviceKind::headphones},
    {"beats"_L1, DeviceKind::headphones},
});

} // namespace

DeviceKind kindOf(const QString& name, const QString& minorType)
{
    const QString text = (minorType + u' ' + name).toLower();
    const auto* const word =
        std::ranges::find_if(kindWords, [&text](const Word& each) { return text.contains(each.text); });
    return word == kindWords.end() ? DeviceKind::other : word->kind;
}

} // namespace ambrelle
