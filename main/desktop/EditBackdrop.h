// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/TextCapsule.h"
#include "platform/WindowHost.h"

#include <QObject>

#include <memory>
#include <vector>

namespace ambrelle {

class AppSettings;
class WidgetController;

/// Stands behind the widgets of one screen in edit mode: shades what is there, tells how to arrange widgets, and hears
/// the wish to finish, or to unlock widgets that cannot be moved.
class EditBackdrop final : public BackdropDelegate {
public:
    EditBackdrop(WindowHost& host, AppSettings& settings);

    /// Covers `screen` and puts the instruction where it is hidden least by `widgets` (global points).
    void cover(const ScreenInfo& screen, const QList<QRectF>& widgets);
    void show() { m_window->show(); }
    void takeFocus() { m_window->takeFocus(); }
    const ScreenInfo& screen() const { return m_screen; }
    const QRectF& instruction() const { return m_instruction; } ///< global points

    void paint(QPainter& painter, const QSizeF& size) override;
    void clicked() override { finish(); }
    void keyPressed(Qt::Key key) override;
    void closeRequested() override { finish(); }

private:
    void finish() const;

    AppSettings& m_settings;
    ScreenInfo m_screen;
    QRectF m_instruction;
    TextCapsule m_capsule;
    std::unique_ptr<BackdropWindow> m_window; // last: it calls back until it is gone
};

/// The backdrops of edit mode, one for each screen; any of them ends it.
class EditBackdrops : public QObject {
public:
    /// `widgets` may change; the instruction stays where it was found a place.
    EditBackdrops(WindowHost& host, AppSettings& settings, const QList<WidgetController*>& widgets);

    /// After the screens or the instruction changed: in edit mode opens the backdrops that are missing and closes those
    /// whose screen has gone. The keyboard goes to the screen with the pointer when they are opened, or when its
    /// backdrop went.
    void update();

private:
    void open();
    void focus();

    WindowHost& m_host;
    AppSettings& m_settings;
    const QList<WidgetController*>& m_widgets;
    std::vector<std::unique_ptr<EditBackdrop>> m_backdrops;
};

} // namespace ambrelle
