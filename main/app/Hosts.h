// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "platform/HostOffer.h"

namespace ambrelle {

class UserDefaults;

/// The host that the program runs on.
struct HostChoice {
    HostOffer host;
    QByteArray plugin; ///< the toolkit's platform plugin to run on
    QString whyNot; ///< why no window can be shown; empty when one can
    std::shared_ptr<void> display{}; ///< that was started for it, and lasts as long
};

/// The hosts this program knows, the preferred one first.
QList<HostOffer> hostOffers();

/// The platform plugin that the user asks for: by the variable QT_QPA_PLATFORM, else by the setting "windowSystem",
/// which is a WindowSystem. Empty: none in particular.
QByteArray wishedPlugin(const UserDefaults& defaults);

/// Whether a wish changes anything here.
bool hasChoiceOfHosts(const QList<HostOffer>& offers);

/// The first of the offers that can show windows. `wished` is the user's plugin: where it is not empty, only
/// hosts that stand for that plugin count, and if none does, the program runs on that plugin without showing widgets.
HostChoice chooseHost(const QList<HostOffer>& offers, const QByteArray& wished);

/// What the user asks for. Where no such window can be shown the setting yields, as it was made in another session
/// perhaps, and the variable does not.
HostChoice chooseUsersHost(const QList<HostOffer>& offers, const UserDefaults& defaults);

/// The first of the offers that can show windows, else the first that brings up a display that nobody sees. Needs no
/// application object.
HostChoice chooseDisplay(const QList<HostOffer>& offers);

/// A machine that shows and tells nothing but the time of `clock`.
std::unique_ptr<Machine> makeHeadlessMachine(std::unique_ptr<Clock> clock);

} // namespace ambrelle
