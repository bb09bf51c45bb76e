#include "services/DeviceKind.h"

#include <algorithm>

namespace ambrelle {

namespace {

struct Word {
    QLatin1StringView text;
    DeviceKind kind;
};

// The first that occurs decides: earbuds are headphones to many a source, and a trackpad may call itself a mouse too.
constexpr std::array kindWords = std::to_array<Word>({
    {QLatin1StringView("airpods"), DeviceKind::earbuds},
    {QLatin1StringView("buds"), DeviceKind::earbuds},
    {QLatin1StringView("earbud"), DeviceKind::earbuds},
    {QLatin1StringView("keyboard"), DeviceKind::keyboard},
    {QLatin1StringView("trackpad"), DeviceKind::trackpad},
    {QLatin1StringView("mouse"), DeviceKind::mouse},
    {QLatin1StringView("gamepad"), DeviceKind::controller},
    {QLatin1StringView("controller"), DeviceKind::controller},
    {QLatin1StringView("joystick"), DeviceKind::controller},
    {QLatin1StringView("speaker"), DeviceKind::speaker},
    {QLatin1StringView("headset"), DeviceKind::headphones},
    {QLatin1StringView("headphone"), DeviceKind::headphones},
    {QLatin1StringView("beats"), DeviceKind::headphones},
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
