// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/DesktopThemes.h"
#include "desktop/DragHelp.h"
#include "desktop/EditBackdrop.h"
#include "desktop/OverlapWatcher.h"
#include "desktop/SceneController.h"
#include "desktop/WidgetController.h"
#include "desktop/WidgetDemand.h"
#include "desktop/WidgetReadings.h"
#include "desktop/WidgetStage.h"
#include "desktop/WidgetStore.h"
#include "drawing/LayerCache.h"
#include "faces/ReadingFeed.h"

#include <QList>

#include <optional>

namespace ambrelle {

class ThemeAccent;

/// The widgets on the desktop. Everything that adds, removes or changes them goes through here, and every change is
/// stored at once. Main thread only.
class WidgetManager : public QObject {
    Q_OBJECT
public:
    struct Collaborators {
        WindowHost& host;
        OverlapWatcher::Senses senses;
        UserDefaults& defaults;
        AppSettings& settings;
        ThemeAccent& accents;
        SystemMonitor& monitor;
        LiveServices& services;
        ReadingFeed& feed;
        Clock& clock;
        SystemAppearance& appearance;
        DesktopWallpaper& wallpaper;
    };

    explicit WidgetManager(const Collaborators& collaborators);

    /// In the order of creation; controllersChanged() and configChanged() tell of every change. The windows of a huge
    /// desktop appear one after the other.
    const QList<WidgetController*>& controllers() const { return m_controllers; }
    QList<StoredWidget> stored() const; ///< their records with their places, to be brought back some day

    /// Opens the stored widgets; records that cannot be read are left out, and what is stored stays until the next
    /// change.
    void load();
    void save();

    /// A widget in the default skin unless `skin` says otherwise, in a free spot of the main screen unless its centre
    /// is given (global points).
    WidgetController* add(
        WidgetKind kind, std::optional<Skin> skin = std::nullopt, std::optional<QPointF> centeredAt = std::nullopt);
    void remove(WidgetController* controller) { remove(QList{controller}); }
    void remove(const QList<WidgetController*>& controllers); ///< stored once
    void removeAll();
    void removeAll(const ScreenInfo& screen);

    /// Brings back a removed widget as number `index`, or as the last one where there are fewer; the widget that is
    /// there already if none was removed.
    WidgetController* reinsert(const StoredWidget& widget, qsizetype index);
    /// Makes the desktop be as stored() said some time, and the skin of new widgets that one if given; stored once.
    /// Widgets that are there stay, with the records that they had.
    void replaceAll(QList<StoredWidget> widgets, std::optional<Skin> defaultSkin = std::nullopt);
    /// Replaces the widgets of `screen` (none: of all screens) by others, which get identifiers of their own where
    /// others have theirs; stored once with the skin of new widgets, if given.
    void replace(const std::optional<ScreenInfo>& screen, QList<StoredWidget> widgets, std::optional<Skin> defaultSkin);
    /// Makes all that `changes` does one change: stored once, together with whatever else it puts into the store, and
    /// shown after that.
    void asOne(const std::function<void()>& changes);

    void applySkinToAll(Skin skin); ///< new widgets get it too
    /// Gives every widget the skin that `choose` names for its own; stored once.
    void changeSkins(const std::function<Skin(Skin)>& choose);
    /// Replaces the widgets of `screen` (none: of all screens) by the skin's own layout on it (none: on the main
    /// screen), and the desktop picture likewise by the skin's if asked to. It is the skin's partner where that fits
    /// the desktop's appearance. Nothing is replaced, and false given, while that screen, or any, is not connected.
    bool applyPreset(Skin skin, bool withWallpaper, const std::optional<ScreenInfo>& screen = std::nullopt,
        const DesktopThemes::Done& done = {});
    /// The same for a saved desktop; a theme without a wallpaper leaves the picture as it is.
    bool apply(const SavedTheme& theme, bool withWallpaper, const std::optional<ScreenInfo>& screen = std::nullopt,
        const DesktopThemes::Done& done = {})
    {
        return m_themes.apply(theme, withWallpaper, screen, done);
    }
    /// The widgets of `screen` (none: of the main one) as they stand there, and the skin whose wallpaper shows on it.
    SavedTheme snapshot(const QString& named, const std::optional<ScreenInfo>& screen = std::nullopt) const
    {
        return m_themes.snapshot(named, screen);
    }
    /// The skin of most widgets on that screen; none where there are no widgets.
    std::optional<Skin> dominantSkin(const ScreenInfo& screen) const { return m_themes.dominantSkin(screen); }

    void applyLayer();
    const SceneController& scenes() const { return m_scenes; } ///< the decorations behind the widgets
    void demandChanged() { m_demand.update(); } ///< tells the services which widgets exist
    void ensureAllVisible(); ///< after the screens changed
    /// Edit mode: widgets come above everything else, with a backdrop on every screen that ends it.
    void setEditing(bool editing);

Q_SIGNALS:
    void controllersChanged(); ///< widgets came or went, and that is stored
    /// The record of a widget in the list changed, by the user or with the screens; stored, unless it is one of several
    /// that change together.
    void configChanged(ambrelle::WidgetController* controller);
    void presetApplied(); ///< the widgets are there
    void clicked(ambrelle::WidgetController* controller, const ambrelle::FaceAction& action);
    void settingsRequested(ambrelle::WidgetController* controller);
    void menuRequested(ambrelle::WidgetController* controller);

private:
    class Change;

    void open(QList<StoredWidget> widgets);
    WidgetController* open(const StoredWidget& widget);
    void removeIf(const std::function<bool(const WidgetController&)>& goes);
    QRectF roomOfMainScreen() const;
    void touched(WidgetController* controller);
    void listChanged();
    void recordsChanged(const QList<WidgetController*>& controllers);
    void settingChanged(const QString& key);

    Collaborators m_with;
    LayerCache m_layers;
    QList<WidgetController*> m_controllers; // children of this
    QList<WidgetController*> m_stacking; // the same, the one touched last at the end
    WidgetStage m_stage;
    WidgetStore m_store;
    DragHelp m_drags;
    EditBackdrops m_editBackdrops;
    SceneController m_scenes;
    OverlapWatcher m_overlap;
    WidgetReadings m_readings;
    WidgetDemand m_demand;
    DesktopThemes m_themes;
    int m_openChanges = 0;
};

} // namespace ambrelle
