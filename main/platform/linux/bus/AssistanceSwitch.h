// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"

#include <QDBusMessage>
#include <QObject>
#include <QPointer>

namespace ambrelle {

/// Lets assistive technology find the program when it is switched on while that runs. The toolkit itself asks only when
/// its bus appears, which may be long before. Needs the application object, and to be made before the first window.
class AssistanceSwitch final : public QObject {
    Q_OBJECT
public:
    explicit AssistanceSwitch(OpenBus openBus = &QDBusConnection::sessionBus);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void propertiesChanged(const QDBusMessage& message);

private:
    OpenBus m_openBus;
    QPointer<QObject> m_bridge; ///< what the toolkit watches the bus of assistive technology with
};

} // namespace ambrelle
