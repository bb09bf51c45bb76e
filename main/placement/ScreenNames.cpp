// SPDX-License-Identifier: MIT

#include "placement/ScreenNames.h"

#include "foundation/Wording.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array builtInConnectors{"eDP"_L1, "LVDS"_L1, "DSI"_L1};

bool isBuiltIn(const ScreenInfo& screen)
{
    return std::ranges::any_of(builtInConnectors,
        [&](QLatin1StringView start) { return screen.connector.startsWith(start, Qt::CaseInsensitive); });
}

/// Many displays tell their maker's name once more before that of the model.
QString modelName(const ScreenInfo& screen)
{
    QString model = screen.model;
    const QString maker = screen.maker.section(u' ', 0, 0) + u' ';
    return model.startsWith(maker, Qt::CaseInsensitive) ? model.mid(maker.size()) : model;
}

QString nameOf(const ScreenInfo& screen)
{
    if (isBuiltIn(screen))
        return Wording::tr("Built-in Display");
    if (QString model = modelName(screen); !model.isEmpty())
        return model;
    return screen.connector.isEmpty() ? screen.id : screen.connector;
}

} // namespace

QStringList screenNames(const QList<ScreenInfo>& screens)
{
    QStringList plain;
    for (const ScreenInfo& screen : screens)
        plain.append(nameOf(screen));
    QStringList names;
    for (qsizetype i = 0; i < screens.size(); ++i) {
        const QString& connector = screens[i].connector;
        const bool isAlone = plain.count(plain[i]) == 1 || connector.isEmpty() || connector == plain[i];
        names.append(isAlone ? plain[i] : Wording::tr("%1 (%2)").arg(plain[i], connector));
    }
    return names;
}

} // namespace ambrelle
