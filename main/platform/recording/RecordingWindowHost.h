// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QImage>
#include <QPointer>

#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

class RecordingWindowHost;

/// A window that exists in memory only: it remembers what it was told and can be looked at.
class RecordingPanel final : public PanelWindow {
public:
    RecordingPanel(RecordingWindowHost& host, PanelDelegate& delegate);
    ~RecordingPanel() override;

    void setFrame(const QRectF& frame) override { m_frame = frame; }
    QRectF frame() const override { return m_frame; }
    void show() override { m_visible = true; }
    void hide() override { m_visible = false; }
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override { m_opacity = opacity; }
    void setClickThrough(bool through) override { m_clickThrough = through; }
    void setInputArea(const QRectF& area) override { m_inputArea = area; }
    void setOutline(const QList<RoundedArea>& areas) override { m_outline = areas; }
    void update(const QRectF& area) override { m_updates.append(area); }
    /// The ratio of the screen under the middle of the window, else of the main screen, else 1.
    double pixelRatio() const override;
    void namesChanged() override { ++m_renamings; }

    bool isVisible() const { return m_visible; }
    WindowLevel level() const { return m_level; }
    double opacity() const { return m_opacity; }
    bool isClickThrough() const { return m_clickThrough; }
    std::optional<QRectF> inputArea() const { return m_inputArea; } ///< none: the whole window
    QList<RoundedArea> outline() const { return m_outline; }

    QList<QRectF> updates() const { return m_updates; } ///< every area asked for since the last clearUpdates()
    void clearUpdates() { m_updates.clear(); }

    int renamings() const { return m_renamings; } ///< how often the names were said to have changed

    PanelDelegate& delegate() const { return m_delegate; }
    /// What the delegate paints for the whole window, on a transparent ground.
    QImage picture(double ratio = 1) const;
    bool hears(const QPointF& global) const; ///< a click there would come to this window
    QPointF toLocal(const QPointF& global) const;

private:
    QPointer<RecordingWindowHost> m_host;
    PanelDelegate& m_delegate;
    QRectF m_frame;
    bool m_visible = false;
    WindowLevel m_level = WindowLevel::desktop;
    double m_opacity = 1;
    bool m_clickThrough = false;
    std::optional<QRectF> m_inputArea;
    QList<RoundedArea> m_outline;
    QList<QRectF> m_updates;
    int m_renamings = 0;
};

/// A backdrop that exists in memory only. Any call of the delegate may be the end of it.
class RecordingBackdrop final : public BackdropWindow {
public:
    RecordingBackdrop(RecordingWindowHost& host, BackdropDelegate& delegate);
    ~RecordingBackdrop() override;

    void setFrame(const QRectF& screen) override { m_frame = screen; }
    QRectF frame() const override { return m_frame; }
    void show() override { m_visible = true; }
    void takeFocus() override;
    void update() override { }

    bool isVisible() const { return m_visible; }
    bool hasFocus() const;
    BackdropDelegate& delegate() const { return m_delegate; }
    QImage picture(double ratio = 1) const; ///< what the delegate paints, on a transparent ground

private:
    QPointer<RecordingWindowHost> m_host;
    BackdropDelegate& m_delegate;
    QRectF m_frame;
    bool m_visible = false;
};

/// The decorations' window, in memory only.
class RecordingScene final : public SceneWindow {
public:
    RecordingScene(RecordingWindowHost& host, OrnamentDelegate& delegate);
    ~RecordingScene() override;

    void setFrame(const QRectF& frame) override { m_frame = frame; }
    QRectF frame() const override { return m_frame; }
    void show() override { m_visible = true; }
    void update(const QRectF& area) override { m_updates.append(area); }
    void setOutline(const QList<QRectF>& areas) override { m_outline = areas; }

    bool isVisible() const { return m_visible; }
    QList<QRectF> updates() const { return m_updates; } ///< every area asked for since the last clearUpdates()
    void clearUpdates() { m_updates.clear(); }
    QList<QRectF> outline() const { return m_outline; }
    OrnamentDelegate& delegate() const { return m_delegate; }
    /// What the delegate paints in `area` (window points), on a transparent ground as large as the window.
    QImage picture(const std::optional<QRectF>& area = std::nullopt) const;

private:
    QPointer<RecordingWindowHost> m_host;
    OrnamentDelegate& m_delegate;
    QRectF m_frame;
    bool m_visible = false;
    QList<QRectF> m_updates;
    QList<QRectF> m_outline;
};

/// A machine for tests: its screens and its pointer are what the test says, and its windows can be inspected. A
/// window that changes its level comes to the top of the new one. The pointer goes to the topmost window that hears it,
/// enters and leaves as it moves, and stays with the pressed window until release.
class RecordingWindowHost final : public WindowHost {
public:
    RecordingWindowHost(); ///< with one screen of 1440 × 900 points, 40 of them taken by a bar at the top

    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    QList<ScreenInfo> screens() const override { return m_screens; }
    QPointF pointer() const override { return m_pointer; }
    QRectF toolkitRect(const QRectF& rect) const override; ///< the main screen's upper left corner is 0, 0
    bool isComposited() const override { return m_composited; }
    std::unique_ptr<DropSpotter> makeDropSpotter() override;
    std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) override;
    std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) override;
    std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) override;

    bool admit(QWindow&, const QString& token) override
    {
        m_tokens.append(u"admit "_s + token);
        return false;
    }
    void dismiss(const QString& token) override { m_tokens.append(u"dismiss "_s + token); }
    QStringList tokens() const { return m_tokens; } ///< what was done with them, in order

    void setScreens(const QList<ScreenInfo>& screens); ///< tells screensChanged() if the list differs
    QList<RecordingPanel*> panels() const { return m_panels; } ///< those alive, in the order they were made
    QList<RecordingBackdrop*> backdrops() const { return m_backdrops; } ///< likewise
    QList<RecordingScene*> scenes() const { return m_scenes; } ///< likewise
    void setComposited(bool composited) { m_composited = composited; } ///< tells nobody
    /// From now on only this tells where a button was let go.
    void setDropSpot(const std::optional<QPointF>& place) { m_dropSpot = place; }
    RecordingBackdrop* focused() const { return m_focused; }
    void pressKey(Qt::Key key); ///< for the backdrop with the focus, if there is one

    void movePointer(const QPointF& global, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void press(const QPointF& global, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPointF& global, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPointF& global, Qt::MouseButton button = Qt::LeftButton);
    void drag(const QPointF& from, const QPointF& to, int steps = 4);
    /// The panel that would get a click there; null where only a backdrop or the desktop is.
    RecordingPanel* panelAt(const QPointF& global) const;

private:
    friend class RecordingPanel;
    friend class RecordingBackdrop;
    friend class RecordingScene;
    void forget(RecordingPanel* panel);
    void raise(RecordingPanel* panel);
    void forget(RecordingBackdrop* backdrop);
    RecordingBackdrop* backdropAt(const QPointF& global) const;
    void hover(RecordingPanel* panel);
    PointerEvent eventFor(const RecordingPanel& panel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) const;

    QList<ScreenInfo> m_screens;
    QPointF m_pointer;
    QStringList m_tokens;
    QList<RecordingPanel*> m_panels;
    QList<RecordingPanel*> m_stacking; ///< the same from bottom to top, within each level
    QList<RecordingBackdrop*> m_backdrops;
    QList<RecordingScene*> m_scenes;
    bool m_composited = true;
    std::optional<std::optional<QPointF>> m_dropSpot; ///< none: the pointer is known
    RecordingBackdrop* m_focused = nullptr;
    RecordingBackdrop* m_pressedBackdrop = nullptr;
    RecordingPanel* m_hovered = nullptr;
    RecordingPanel* m_pressed = nullptr;
    Qt::MouseButton m_heldButton = Qt::NoButton;
};

} // namespace ambrelle
