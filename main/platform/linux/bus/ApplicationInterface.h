// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantMap>

namespace ambrelle {

class ApplicationDoor;

/// What others call on the session bus. The names of the functions are those of the interface.
class ApplicationInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit ApplicationInterface(ApplicationDoor& door);

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameters, const QVariantMap& platformData);

private:
    ApplicationDoor& m_door;
};

} // namespace ambrelle
