// SPDX-License-Identifier: MIT

#include "desktop/WidgetMenu.h"

#include "desktop/QuickMenu.h"
#include "desktop/WidgetManager.h"
#include "desktop/WidgetWording.h"

#include <QPointer>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using Widget = QPointer<WidgetController>;

std::function<void()> act(const Widget& widget, std::function<void(WidgetController&)> action)
{
    return [widget, action = std::move(action)] {
        if (widget)
            action(*widget);
    };
}

ActionItem sizeItem(const Widget& widget)
{
    ActionItem item{.title = WidgetWording::size()};
    for (const WidgetScale scale : allCases<WidgetScale>()) {
        item.items += {.title = title(scale),
            .checked = widget->config().scale == scale,
            .handler = act(widget, [scale](WidgetController& target) { target.setScale(scale); })};
    }
    return item;
}

ActionItem pinItem(const Widget& widget)
{
    const bool pinned = widget->config().pinned;
    return {.title = WidgetWording::pin(pinned),
        .symbol = pinned ? u"pin.slash"_s : u"pin"_s,
        .handler = act(widget, [pinned](WidgetController& target) { target.setPinned(!pinned); })};
}

} // namespace

QList<ActionItem> widgetMenu(WidgetController& widget, WidgetManager& manager, const QuickMenu& quick)
{
    const Widget target(&widget);
    QList<ActionItem> items;
    items += {.title = WidgetWording::settings(),
        .symbol = u"paintpalette.fill"_s,
        .handler = act(target, [](WidgetController& controller) { controller.requestSettings(); })};
    items += sizeItem(target);
    items += pinItem(target);
    items += ActionItem::separator();
    if (widget.config().kind == WidgetKind::focus) {
        items += quick.focusItems();
        items += ActionItem::separator();
    }
    items += quick.editItem();
    items += quick.lockItem();
    items += quick.openItem();
    items += ActionItem::separator();
    items += {.title = WidgetWording::remove(),
        .symbol = u"trash"_s,
        .handler = act(target, [&manager](WidgetController& c) { manager.remove(&c); })};
    return items;
}

} // namespace ambrelle
