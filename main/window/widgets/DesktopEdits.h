// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"
#include "window/frame/WindowContext.h"

#include <QPointF>
#include <QUuid>

#include <optional>

namespace ambrelle {

class WidgetController;
struct ScreenInfo;

/// What the main window does to the widgets on the desktop. Each can be undone for a moment, also when the page that
/// asked for it is gone.
class DesktopEdits {
public:
    explicit DesktopEdits(const WindowContext& context)
        : m_with(context)
    {
    }

    /// In the skin of new widgets, in a free spot of the main screen or around `centre` (global points); it is pointed
    /// out.
    WidgetController* add(WidgetKind kind, std::optional<QPointF> centre = std::nullopt);
    void remove(const QList<WidgetController*>& widgets); ///< stored once
    /// Asks before it removes all widgets, or all of `screen`, which is called `name`.
    void askToRemoveAll();
    void askToRemoveAll(const ScreenInfo& screen, const QString& name);
    /// Gives all widgets the skin of new ones.
    void useSkinForAll();

    WidgetController* find(const QUuid& id) const; ///< null: it is gone
    QList<WidgetController*> on(const ScreenInfo& screen) const;

private:
    WindowContext m_with;
};

} // namespace ambrelle
