// SPDX-License-Identifier: MIT

#include "model/ThemeAccent.h"

#include "foundation/UserDefaults.h"

#include <QJsonObject>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr auto storageKey = "themeAccents"_L1;

// The colour as it will be after a restart.
std::optional<QColor> asStored(const std::optional<QColor>& color)
{
    return color ? colorFromHex(hexText(*color)) : std::nullopt;
}

} // namespace

QString hexText(const QColor& color)
{
    if (!color.isValid())
        return {};
    const QColor rgb = color.toRgb();
    const auto byte = [](float part) { return static_cast<int>(std::lround(static_cast<double>(part) * 255)); };
    return QString::asprintf("#%02X%02X%02X", byte(rgb.redF()), byte(rgb.greenF()), byte(rgb.blueF()));
}

std::optional<QColor> colorFromHex(QStringView text)
{
    const auto isHexDigit = [](QChar digit) { return digit.unicode() < 0x80 && std::isxdigit(digit.unicode()) != 0; };
    if (text.size() != 7 || text.front() != u'#' || !std::all_of(text.begin() + 1, text.end(), isHexDigit))
        return std::nullopt;
    return QColor::fromRgb(static_cast<QRgb>(text.mid(1).toUInt(nullptr, 16)) | 0xFF000000u);
}

ThemeAccent::ThemeAccent(UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
{
    const QJsonObject stored = m_defaults.object(storageKey).value_or(QJsonObject());
    for (auto entry = stored.begin(); entry != stored.end(); ++entry) {
        const std::optional<Skin> skin = parse<Skin>(entry.key());
        const std::optional<QColor> color = colorFromHex(entry.value().toString());
        if (skin && color)
            m_overrides[*skin] = *color;
    }
}

ThemeAccent& ThemeAccent::shared()
{
    static ThemeAccent accent(UserDefaults::shared());
    return accent;
}

std::optional<QColor> ThemeAccent::color(Skin skin) const
{
    const std::lock_guard lock(m_mutex);
    const auto applies = [&](const Preview& preview) { return preview.skin == skin; };
    const auto preview = std::find_if(m_previews.rbegin(), m_previews.rend(), applies);
    if (preview != m_previews.rend())
        return preview->color;
    const auto found = m_overrides.find(skin);
    return found == m_overrides.end() ? std::nullopt : std::optional(found->second);
}

void ThemeAccent::set(const std::optional<QColor>& color, Skin skin)
{
    Overrides overrides = m_overrides;
    if (const std::optional<QColor> stored = asStored(color))
        overrides[skin] = *stored;
    else
        overrides.erase(skin);
    replace(std::move(overrides));
}

void ThemeAccent::withPreview(const std::optional<QColor>& color, Skin skin, const std::function<void()>& body)
{
    {
        const std::lock_guard lock(m_mutex);
        m_previews.push_back({skin, color});
    }
    body();
    const std::lock_guard lock(m_mutex);
    m_previews.pop_back();
}

QMap<QString, QString> ThemeAccent::hexOverrides() const
{
    QMap<QString, QString> map;
    for (const auto& [skin, color] : m_overrides)
        map.insert(rawValue(skin), hexText(color));
    return map;
}

void ThemeAccent::apply(const QMap<QString, QString>& overrides)
{
    Overrides known;
    for (auto entry = overrides.begin(); entry != overrides.end(); ++entry) {
        const std::optional<Skin> skin = parse<Skin>(entry.key());
        const std::optional<QColor> color = colorFromHex(entry.value());
        if (skin && color)
            known[*skin] = *color;
    }
    replace(std::move(known));
}

void ThemeAccent::replace(Overrides overrides)
{
    if (overrides == m_overrides)
        return;
    store(overrides); // not while those who draw would have to wait for the disk
    {
        const std::lock_guard lock(m_mutex);
        m_overrides = std::move(overrides);
    }
    ++m_revision;
    Q_EMIT changed();
}

// Entries of skins that only another version knows stay.
void ThemeAccent::store(const Overrides& overrides)
{
    QJsonObject stored = m_defaults.object(storageKey).value_or(QJsonObject());
    for (const Skin skin : allCases<Skin>())
        stored.remove(rawValue(skin));
    for (const auto& [skin, color] : overrides)
        stored.insert(rawValue(skin), hexText(color));
    m_defaults.set(storageKey, stored);
}

} // namespace ambrelle
