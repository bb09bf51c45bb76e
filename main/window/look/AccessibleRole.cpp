// SPDX-License-Identifier: MIT

#include "window/look/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace ambrelle {

namespace {

constexpr auto roleProperty = "ambrelleRole";

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
    widget.setProperty(roleProperty, static_cast<int>(role));
}

} // namespace ambrelle
