// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

#include <QObject>

#include <memory>

namespace ambrelle {

class WidgetController;
class WindowHost;

/// A sentence beside a widget, for some seconds or until the widget goes. It never takes the keyboard, and clicks go
/// through it.
class WidgetTip final : public QObject {
public:
    static constexpr std::chrono::milliseconds duration{4000};

    WidgetTip(WindowHost& host, Clock& clock);
    ~WidgetTip() override;

    /// In place of any sentence that is shown already.
    void show(const WidgetController& widget, const QString& text);
    void hide();

private:
    class Panel;

    WindowHost& m_host;
    Clock& m_clock;
    std::unique_ptr<Panel> m_panel;
    QMetaObject::Connection m_end;
    Ticket m_time;
};

} // namespace ambrelle
