// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/ManualClock.h"
#include "placement/PanelGeometry.h"
#include "platform/recording/RecordingWindowHost.h"
#include "support/DeskOf.h"

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Beside the screen that a desktop begins with.
inline const ScreenInfo rightScreen{
    .id = u"second"_s, .connector = u"second"_s, .frame = {1440, 0, 1920, 1080}, .visibleFrame = {1440, 0, 1920, 1080}};

/// A whole desktop in memory.
struct Desk : DeskOf<ManualClock, RecordingWindowHost> {
    using DeskOf::DeskOf;

    QList<WidgetConfig> live() const
    {
        QList<WidgetConfig> configs;
        for (const WidgetController* controller : manager.controllers())
            configs.append(controller->config());
        return configs;
    }
    QList<WidgetConfig> stored() const
    {
        return WidgetConfig::decodeList(defaults.data(u"widgets.v2"_s).value_or("[]")).value_or(QList<WidgetConfig>());
    }
    QList<RecordingPanel*> panels() const ///< on the screen, in the order of the widgets
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return host.panels();
    }
    WidgetController* add(WidgetKind kind, QPointF origin, Skin skin = Skin::glass)
    {
        const QSizeF size = WidgetConfig(kind, skin).size();
        return manager.add(kind, skin, origin + QPointF(size.width() / 2, size.height() / 2));
    }
    /// Screens come and go.
    void show(const QList<ScreenInfo>& screens)
    {
        host.setScreens(screens);
        manager.ensureAllVisible();
    }
    /// Clicks a button of the toolbar as a user does: the pointer is over the widget first.
    void useToolbar(const WidgetController& widget, WidgetToolbar::Button button)
    {
        host.movePointer(widget.widgetFrame().center());
        WidgetToolbar toolbar;
        toolbar.setArea(PanelGeometry::toolbarArea(widget.widgetFrame(), host.screens().first().visibleFrame));
        const QRectF panel = PanelGeometry::panelFrame(widget.widgetFrame());
        const QPointF point = toolbar.buttonArea(button).center();
        host.click({panel.x() + point.x(), panel.bottom() - point.y()});
    }
    void paintAll() const
    {
        for (RecordingPanel* panel : host.panels()) {
            panel->picture();
            panel->clearUpdates();
        }
    }
};

/// Called with something to do, it gives what the manager told of it: "list 3" of three widgets, or a widget's kind.
class ManagerListener : public QObject {
public:
    explicit ManagerListener(Desk& desk)
    {
        connect(&desk.manager, &WidgetManager::controllersChanged, this, [this, &desk] {
            EXPECT_EQ(desk.stored(), desk.live());
            m_told += u"list %1"_s.arg(desk.live().size());
        });
        connect(&desk.manager, &WidgetManager::configChanged, this,
            [this](const WidgetController* widget) { m_told += rawValue(widget->config().kind); });
    }
    std::string operator()(const std::function<void()>& act)
    {
        m_told.clear();
        act();
        return m_told.join(u' ').toStdString();
    }

private:
    QStringList m_told;
};

struct DeskTest : testing::Test {
    UserDefaults store = UserDefaults::temporary();
    Desk desk{store};
};

} // namespace ambrelle
