#include "desktop/WidgetMenu.h"

#include "desktop/QuickMenu.h"
#include "desktop/WidgetManager.h"

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
    ActionItem item{.title = u"Size"_s};
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
    return {.title = pinned ? u"Unpin"_s : u"Pin Above Windows"_s,
        .symbol = pinned ? u"pin.slash"_s : u"pin"_s,
        .handler = act(widget, [pinned](WidgetController& target) { target.setPinned(!pinned); })};
}

} // namespace

QList<ActionItem> widgetMenu(WidgetController& widget, WidgetManager& manager, const QuickMenu& quick)
{
    const Widget target(&widget);
    QList<ActionItem> items;
    items += {.title = u"Widget Settings…"_s,
        .symbol = u"paintpalette.fill"_s,
        .handler = act(target, [](WidgetController& controller) { controller.requestSettings(); })};
    items += sizeItem(target);
    items += pinItem(target);
    items += ActionItem::separator();
    items += quick.editItem();
    items += quick.lockItem();
    items += quick.openItem();
    items += ActionItem::separator();
    items += {.title = u"Remove Widget"_s,
        .symbol = u"trash"_s,
        .handler = act(target, [&manager](WidgetController& c) { manager.remove(&c); })};
    return items;
}

} // namespace ambrelle
