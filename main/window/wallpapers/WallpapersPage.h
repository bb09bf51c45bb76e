// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"
#include "window/frame/Page.h"
#include "window/wallpapers/ScreenPreview.h"
#include "window/wallpapers/WallpaperActions.h"

namespace ambrelle {

class Button;
class CardView;
class EmptyState;
class ScreenStrip;
class Segments;

/// The pictures for the screens: painted ones, shipped ones and the user's own.
class WallpapersPage final : public Page {
    Q_OBJECT
public:
    explicit WallpapersPage(const WindowContext& context);

    void takeFocus(bool first) override;
    QList<QWidget*> areas() override;
    QString invitation(const QStringList& files) const override;
    void drop(const QStringList& files) override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeScope();
    void makeSegments();
    void makeGrid();
    void orderTabs();
    void follow();
    void look();
    void checkTarget();
    void refresh();
    void showStrip();
    void arrange();
    void use(const QModelIndex& index);
    void choosePictures();
    void showAdded(const QString& path);
    void takeOff(const QModelIndex& index);
    void openMenu(const QModelIndex& index, const QPoint& place);
    QList<ActionItem> menuOf(const WallpaperChoice& wallpaper);
    WallpapersScope scope() const;
    QSet<QString> withoutPreview() const;
    QList<WallpaperChoice> shown() const;
    WallpaperShelf shelf() const;
    ScreenSight sightOf(const ScreenInfo& screen, const QString& name, bool isMain) const;

    WindowContext m_with;
    PictureFiles m_files;
    WallpaperActions m_actions;
    WallpapersModel m_model;
    QStringList m_photographs;
    QList<WallpapersScope> m_scopes; ///< of the segments
    QWidget* m_scope;
    Segments* m_segments = nullptr;
    Button* m_bringBack;
    Button* m_add;
    ScreenStrip* m_strip;
    CardView* m_view;
    EmptyState* m_nothing;
};

} // namespace ambrelle
