// SPDX-License-Identifier: MIT

#include "platform/network/BareRequest.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

QNetworkRequest bareRequest(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Ambrelle"_s);
    // Followed by whoever asks, one request each: the module's own way loses the answer when the server closes the
    // connection.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // Single documents gain nothing by it.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    for (const auto attribute : {QNetworkRequest::CookieLoadControlAttribute,
             QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    return request;
}

} // namespace ambrelle
