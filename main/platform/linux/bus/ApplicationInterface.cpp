// SPDX-License-Identifier: MIT

#include "platform/linux/bus/ApplicationInterface.h"

#include "platform/linux/bus/ApplicationDoor.h"

#include <QDir>
#include <QUrl>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString tokenIn(const QVariantMap& platformData)
{
    const QString token = platformData.value(u"activation-token"_s).toString();
    return token.isEmpty() ? platformData.value(u"desktop-startup-id"_s).toString() : token;
}

/// Empty for what does not lie on this machine.
QString localPath(const QString& uri)
{
    QUrl url(uri, QUrl::StrictMode);
    if (url.host() == "localhost"_L1)
        url.setHost({});
    const QString path = url.isLocalFile() && url.host().isEmpty() ? url.toLocalFile() : QString();
    return QDir::isAbsolutePath(path) ? path : QString();
}

} // namespace

ApplicationInterface::ApplicationInterface(ApplicationDoor& door)
    : QDBusAbstractAdaptor(&door)
    , m_door(door)
{
}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    Q_EMIT m_door.activated(tokenIn(platformData));
}

void ApplicationInterface::Open(const QStringList& uris, const QVariantMap& platformData)
{
    QStringList files;
    for (const QString& uri : uris.first(std::min(uris.size(), ApplicationDoor::mostFiles))) {
        if (const QString path = localPath(uri); !path.isEmpty())
            files.append(path);
    }
    Q_EMIT m_door.filesGiven(files, tokenIn(platformData));
}

void ApplicationInterface::ActivateAction(
    const QString& name, const QVariantList& /*parameters*/, const QVariantMap& platformData)
{
    Q_EMIT m_door.actionWanted(name, tokenIn(platformData));
}

} // namespace ambrelle
