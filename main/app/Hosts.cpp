// SPDX-License-Identifier: MIT

#include "app/Hosts.h"

#include "foundation/UserDefaults.h"
#include "model/WindowSystem.h"
#include "platform/headless/HeadlessMachine.h"
#include "platform/linux/kernel/SystemClock.h"
#include "platform/wayland/WaylandMachine.h"
#include "platform/x11/X11Machine.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

HostOffer headlessOffer(const QByteArray& plugin)
{
    return {.plugins = {plugin},
        .whyNot = [] { return QString(); },
        .make =
            [](const Machine::Wishes&) { return std::make_unique<HeadlessMachine>(std::make_unique<SystemClock>()); }};
}

bool standsFor(const HostOffer& offer, const QByteArray& wished)
{
    // Options may follow the name.
    return wished.isEmpty()
        || std::ranges::any_of(offer.plugins, [&](const QByteArray& plugin) { return wished.startsWith(plugin); });
}

} // namespace

QList<HostOffer> hostOffers()
{
    return {
        WaylandMachine::offer(),
        X11Machine::offer(),
    };
}

QByteArray wishedPlugin(const UserDefaults& defaults)
{
    if (QByteArray variable = qgetenv("QT_QPA_PLATFORM"); !variable.isEmpty())
        return variable;
    const std::optional<QString> setting = defaults.string(u"windowSystem"_s);
    switch (parse<WindowSystem>(setting.value_or(QString())).value_or(WindowSystem::automatic)) {
    case WindowSystem::wayland: return "wayland";
    case WindowSystem::x11: return "xcb";
    case WindowSystem::automatic: break;
    }
    return {};
}

bool hasChoiceOfHosts(const QList<HostOffer>& offers)
{
    return std::ranges::count_if(offers, [](const HostOffer& offer) { return offer.isThere && offer.isThere(); }) > 1;
}

HostChoice chooseHost(const QList<HostOffer>& offers, const QByteArray& wished)
{
    QStringList reasons;
    for (const HostOffer& offer : offers) {
        if (!standsFor(offer, wished))
            continue;
        const QByteArray plugin = offer.plugins.first();
        const QString reason = offer.whyNot();
        if (reason.isEmpty())
            return {.host = offer, .plugin = wished.startsWith(plugin) ? wished : plugin};
        reasons.append(reason);
    }
    const HostOffer none = headlessOffer(wished);
    return {.host = none, .plugin = wished, .whyNot = reasons.join(u' ')};
}

HostChoice chooseUsersHost(const QList<HostOffer>& offers, const UserDefaults& defaults)
{
    const HostChoice choice = chooseHost(offers, wishedPlugin(defaults));
    return choice.whyNot.isEmpty() || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? choice : chooseHost(offers, {});
}

HostChoice chooseDisplay(const QList<HostOffer>& offers)
{
    HostChoice choice = chooseHost(offers, {});
    for (const HostOffer& offer : offers) {
        if (choice.whyNot.isEmpty())
            break;
        std::shared_ptr<void> display = offer.startDisplay ? offer.startDisplay() : nullptr;
        if (display && offer.whyNot().isEmpty())
            choice = {.host = offer, .plugin = offer.plugins.first(), .display = display};
    }
    return choice;
}

std::unique_ptr<Machine> makeHeadlessMachine(std::unique_ptr<Clock> clock)
{
    return std::make_unique<HeadlessMachine>(std::move(clock));
}

} // namespace ambrelle
