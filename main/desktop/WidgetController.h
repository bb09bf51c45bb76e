// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/Locating.h"
#include "desktop/WidgetPanel.h"
#include "desktop/WindowFade.h"
#include "placement/StoredWidget.h"

#include <QObject>

namespace ambrelle {

class AppSettings;
class DragHelp;
class SystemAppearance;

/// One live widget: its record, its panel, and every way of changing it. A change is stored by who hears
/// recordChanged(), then shown, and then told by changed(): what was seen is not lost, whenever the program is killed.
class WidgetController : public QObject {
    Q_OBJECT
public:
    struct Collaborators {
        WindowHost& host;
        AppSettings& settings;
        const SystemAppearance& appearance;
        Clock& clock;
        LayerCache& layers;
        DragHelp& drags;
    };

    /// It stands where `widget` says.
    WidgetController(const StoredWidget& widget, const Collaborators& collaborators, QObject* parent = nullptr);

    const WidgetConfig& config() const { return m_widget.config; }
    const StoredWidget& stored() const { return m_widget; } ///< the record with what ScreenPlacement knows
    StoredWidget record() const; ///< as it is to be stored; in the middle of a drag, where it is shown
    QRectF widgetFrame() const { return config().frame(); } ///< global points, y up
    bool isHovering() const { return m_panel.isHovering(); }
    bool moves() const { return m_panel.moves(); } ///< its face has moving parts, paused or not
    bool isOccluded() const { return m_occluded; }
    bool isFaded() const { return m_faded; } ///< or on its way there, as soon as it is not pointed out any more
    bool isRaised() const; ///< above normal windows for the user's sake, by its pin or by the layer
    WindowLevel level() const; ///< of the pin, of edit mode, of being pointed out or of the layer
    const QColor& accent() const { return m_panel.view().style().accent; }
    bool showsSeconds() const;
    bool isPainted() const { return m_panel.isPainted(); } ///< it has been seen once
    QImage picture() { return m_panel.picture(); } ///< as WidgetPanel::picture()
    double pixelRatio() const { return m_panel.pixelRatio(); } ///< pixels per point where it stands

    /// Any change of the record except its identity; an opacity beyond 0 to 1 is clamped, and one
    /// that is no number changes nothing.
    void change(const std::function<void(WidgetConfig&)>& edit);
    void setSkin(Skin skin);
    void setScale(WidgetScale scale);
    void setPinned(bool pinned);

    /// Nobody sees the widget as it is meant to be seen: nothing on it moves meanwhile.
    void setOccluded(bool occluded);
    /// Fades the widget to a ghost, or with `hide` out of sight, and back; meanwhile clicks reach what lies below it.
    void setFaded(bool faded, bool hide);
    void setReading(const std::shared_ptr<const Reading>& reading) { m_panel.setReading(reading); }

    /// Points the widget out for a moment: it comes above all windows, unfaded, with a ring round it, and then goes
    /// back to its level. The focus stays where it is.
    void locate();

    void show() { m_panel.show(); }
    void applyLayer(); ///< takes its level()
    void applySettings(); ///< takes over what the settings say about motion and edit mode
    void renewView(); ///< draws with the skin's colours of now
    void requestSettings() { Q_EMIT settingsRequested(); } ///< as its toolbar does

    void rememberDisplay(); ///< records which display the widget is on, unless that is known
    /// Puts the widget where it belongs on the screens of now, as ScreenPlacement has found; true when that changed it.
    bool syncDisplay(const StoredWidget& placed);
    void close(); ///< the widget goes for good

Q_SIGNALS:
    void recordChanged(); ///< nobody has seen it yet
    void changed();
    void touched(); ///< a button was pressed on it
    void closed(); ///< it went for good; the last signal
    void clicked(const ambrelle::FaceAction& action);
    void removeRequested();
    void settingsRequested();
    void menuRequested();
    void motionChanged(); ///< moves() has; told while painting

private:
    QPointF dragged(QPointF origin);
    void dragEnded(QPointF origin);
    void toolbarUsed(WidgetToolbar::Button button);
    void show(const WidgetConfig& before);
    void place();
    void showFade();
    void locatingChanged();
    FaceLook look() const;

    StoredWidget m_widget;
    std::optional<QPointF> m_draggedTo; // in a drag
    Collaborators m_with;
    bool m_occluded = false;
    bool m_faded = false;
    bool m_hides = false; // when faded
    Locating m_locating;
    WidgetPanel m_panel;
    WindowFade m_fade;
};

} // namespace ambrelle
