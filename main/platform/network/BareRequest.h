// SPDX-License-Identifier: MIT

#pragma once

#include <QNetworkRequest>

namespace ambrelle {

inline constexpr int mostRedirects = 5;

/// A request for one document, without cookies, stored passwords, or redirects followed unseen.
QNetworkRequest bareRequest(const QUrl& url);

} // namespace ambrelle
