// SPDX-License-Identifier: MIT

#include "window/widgets/DesktopEdits.h"

#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "placement/ScreenPlacement.h"
#include "window/frame/Sheets.h"
#include "window/frame/Undo.h"

#include <QHash>

#include <algorithm>

namespace ambrelle {

namespace {

WidgetController* widgetOf(const WidgetManager& manager, const QUuid& id)
{
    const auto isIt = [&](const WidgetController* each) { return each->config().id == id; };
    const auto found = std::ranges::find_if(manager.controllers(), isIt);
    return found == manager.controllers().end() ? nullptr : *found;
}

/// What brings back widgets that are about to go, each to its place among the others.
std::function<void()> bringingBack(WidgetManager& manager, const QList<WidgetController*>& going)
{
    QList<std::pair<qsizetype, StoredWidget>> gone;
    for (qsizetype place = 0; place < manager.controllers().size(); ++place) {
        if (going.contains(manager.controllers()[place]))
            gone.append({place, manager.controllers()[place]->record()});
    }
    return [&manager, gone] {
        for (const auto& [place, widget] : gone)
            manager.reinsert(widget, place);
    };
}

QString removedText(const QList<WidgetController*>& widgets)
{
    if (widgets.size() == 1)
        return Wording::tr("%1 removed", "a widget").arg(title(widgets.first()->config().kind));
    return Wording::tr("%n widgets removed", nullptr, static_cast<int>(widgets.size()));
}

} // namespace

WidgetController* DesktopEdits::find(const QUuid& id) const
{
    return widgetOf(m_with.manager, id);
}

QList<WidgetController*> DesktopEdits::on(const ScreenInfo& screen) const
{
    QList<WidgetController*> widgets = m_with.manager.controllers();
    widgets.removeIf([&](const WidgetController* widget) {
        const auto showing = ScreenPlacement::screenNear(widget->widgetFrame(), m_with.host.screens());
        return !showing || showing->id != screen.id;
    });
    return widgets;
}

WidgetController* DesktopEdits::add(WidgetKind kind, std::optional<QPointF> centre)
{
    WidgetController* added = m_with.manager.add(kind, std::nullopt, centre);
    added->locate();
    m_with.undo.offer(
        {Wording::tr("%1 added", "a widget").arg(title(kind)), [&manager = m_with.manager, id = added->config().id] {
             if (WidgetController* widget = widgetOf(manager, id))
                 manager.remove(widget);
         }});
    return added;
}

void DesktopEdits::remove(const QList<WidgetController*>& widgets)
{
    if (widgets.isEmpty())
        return;
    const Undo undo{removedText(widgets), bringingBack(m_with.manager, widgets)};
    m_with.manager.remove(widgets);
    m_with.undo.offer(undo);
}

void DesktopEdits::askToRemoveAll()
{
    const auto answered = [with = m_with](const SheetAnswer& answer) {
        const QList<WidgetController*>& all = with.manager.controllers();
        if (answer.button != sheets::accept || all.isEmpty())
            return;
        const Undo undo{removedText(all),
            [&manager = with.manager, before = with.manager.stored()] { manager.replaceAll(before); }};
        with.manager.removeAll();
        with.undo.offer(undo);
    };
    m_with.sheets.ask(sheets::removeAll(static_cast<int>(m_with.manager.controllers().size()), {}), answered);
}

void DesktopEdits::askToRemoveAll(const ScreenInfo& screen, const QString& name)
{
    const auto answered = [edits = *this, screen](const SheetAnswer& answer) mutable {
        if (answer.button == sheets::accept)
            edits.remove(edits.on(screen));
    };
    m_with.sheets.ask(sheets::removeAll(static_cast<int>(on(screen).size()), name), answered);
}

void DesktopEdits::useSkinForAll()
{
    const Skin skin = m_with.settings.defaultSkin();
    QHash<QUuid, Skin> before;
    for (const WidgetController* widget : m_with.manager.controllers())
        before.insert(widget->config().id, widget->config().skin);
    const auto back = [&manager = m_with.manager, before, skin] {
        QList<StoredWidget> widgets = manager.stored();
        for (StoredWidget& widget : widgets) {
            if (widget.config.skin == skin) // else it was changed since
                widget.config.skin = before.value(widget.config.id, skin);
        }
        manager.replaceAll(widgets);
    };
    m_with.manager.applySkinToAll(skin);
    m_with.undo.offer({Wording::tr("All widgets use %1", "a skin").arg(title(skin)), back});
}

} // namespace ambrelle
