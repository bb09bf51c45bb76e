// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "model/SavedTheme.h"
#include "model/ThemeStore.h"
#include "wallpapers/DesktopWallpaper.h"
#include "window/frame/WindowContext.h"
#include "window/frame/WorkNotice.h"
#include "window/themes/AppliedThemes.h"
#include "window/themes/ThemeWork.h"

namespace ambrelle {

/// Where a theme comes: widgets to the main screen, in place of all there are (the default), to every screen, or to one
/// only; its wallpaper to all screens or to that one.
struct ThemeTarget {
    enum class Kind { main, every, one };

    Kind kind = Kind::main;
    QString screen{}; ///< identifier of the one

    bool operator==(const ThemeTarget&) const = default;
};

/// All that is done with themes, from whatever page: with the questions before, failures and ways back. Outlives the
/// window. Of several wishes for the desktop the last one counts. Main thread only.
class ThemeActions final : public QObject {
    Q_OBJECT
public:
    /// `context.themeActions` is what is being made here.
    explicit ThemeActions(const WindowContext& context);
    ~ThemeActions() override;

    static QString title(ThemeOperation operation); ///< as its button has it

    QString title(const ThemeChoice& theme) const; ///< empty: there is no such theme any more
    const SavedTheme* saved(const QUuid& id) const; ///< null: none with that identifier; until the store changes
    std::optional<Skin> wallpaperOf(const ThemeChoice& theme) const; ///< none: it has no wallpaper
    AppliedThemes& applied() { return m_applied; }

    /// Asks first where widgets would be replaced. A theme without a wallpaper leaves the picture as it is.
    void apply(const ThemeChoice& theme, bool withWallpaper, const ThemeTarget& target = {});
    /// The same, and the question is also whether with the wallpaper.
    void applyFromCard(const ThemeChoice& theme);
    /// Nothing for a theme without a wallpaper.
    void setWallpaper(const ThemeChoice& theme, const ThemeTarget& target = {});
    /// Set while a wallpaper is painted that takes longer than a moment, then for a moment at least.
    const std::optional<ThemeWork>& working() const { return m_work.shown(); }

    bool canSave() const; ///< there are widgets
    void saveDesktop(); ///< asks for the name
    void rename(const QUuid& id, const QString& name);
    void remove(const QUuid& id); ///< asks first
    void exportTo(const QUuid& id, const QString& path);
    /// Takes what can be taken, shows it, and tells of each file that is no theme.
    void importFiles(const QStringList& paths);

Q_SIGNALS:
    void workingChanged();
    void windowWanted(); ///< something is to be shown, even if the window is closed

private:
    struct Wish;
    struct Before;
    struct ReadFile;

    QList<ScreenInfo> screensOf(const ThemeTarget& target) const;
    bool replacesWidgets(const ThemeTarget& target) const;
    bool isOneOfSeveral(const ThemeTarget& target) const;
    Wish wishFor(const ThemeChoice& theme, ThemeOperation operation, const ThemeTarget& target) const;
    void carryOut(Wish wish);
    QString placeWidgets(const Wish& wish);
    void paintAgain(Wish wish, Before before, std::optional<int> offer);
    void paint(const Wish& wish, const Before& before);
    void ended(const Wish& wish, const Before& before, const QString& error);
    void finished(const Wish& wish, const Before& before, const QString& error);
    void bringBack(const Before& before);

    void saveAs(const QString& name, const QString& screen);
    void addSaved(const QString& name, const QString& screen);
    void removeNow(const QUuid& id);
    void putBack(const ThemeStore::Taken& theme, const QUuid& id, const QString& name);
    void tellRefused();
    void take(const QList<ReadFile>& files);
    void showSaved(const QUuid& id);

    WindowContext m_with;
    AppliedThemes m_applied;
    WorkNotice<ThemeWork> m_work;
    int m_lastWish = 0;
    SerialWorker m_files{*this};
};

} // namespace ambrelle
