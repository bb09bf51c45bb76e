// SPDX-License-Identifier: MIT

#include "platform/linux/bus/AssistanceSwitch.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QEvent>
#include <QTimer>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto assistanceBus = u"org.a11y.Bus"_s;
const auto assistancePath = u"/org/a11y/bus"_s;
const auto assistanceStatus = u"org.a11y.Status"_s;

} // namespace

AssistanceSwitch::AssistanceSwitch(OpenBus openBus)
    : m_openBus(std::move(openBus))
{
    QCoreApplication::instance()->installEventFilter(this);
    QTimer::singleShot(0, this, [this] {
        m_openBus().connect(assistanceBus, assistancePath, propertiesInterface, u"PropertiesChanged"_s, this,
            SLOT(propertiesChanged(QDBusMessage)));
    });
}

/// The toolkit shows its bridge to nobody; but it gets children when it is made, and this tells the application. Where
/// another toolkit calls it otherwise, nothing is found, and all is as without this.
bool AssistanceSwitch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded && qstrcmp(watched->metaObject()->className(), "DBusConnection") == 0) {
        m_bridge = watched;
        QCoreApplication::instance()->removeEventFilter(this);
    }
    return false;
}

void AssistanceSwitch::propertiesChanged(const QDBusMessage& message)
{
    const QVariantList arguments = message.arguments();
    if (!m_bridge || arguments.size() < 2 || arguments.at(0).toString() != assistanceStatus)
        return;
    const auto changed = qdbus_cast<QVariantMap>(arguments.at(1));
    // As if its bus had just appeared; it does not connect to it twice.
    if (changed.value(u"IsEnabled"_s).toBool() || changed.value(u"ScreenReaderEnabled"_s).toBool())
        QMetaObject::invokeMethod(m_bridge, "serviceRegistered");
}

} // namespace ambrelle
