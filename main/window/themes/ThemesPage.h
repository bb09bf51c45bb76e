// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/Page.h"
#include "window/themes/ThemeFileDialogs.h"
#include "window/themes/ThemesModel.h"

class QStackedLayout;

namespace ambrelle {

struct ActionItem;
class CardView;
class EmptyState;
class PageTransition;
class ThemePage;
class ThemesScope;
class Welcome;

/// All themes as a grid, or the page of the one that is open.
class ThemesPage final : public Page {
    Q_OBJECT
public:
    explicit ThemesPage(const WindowContext& context);

    void takeFocus(bool first) override;
    QList<QWidget*> areas() override;

    CardView& grid() { return *m_grid; }
    /// What can be done with a theme, as lines of a menu.
    QList<ActionItem> menuOf(const ThemeChoice& theme);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeOverview();
    void connectGrid();
    void makeKeys();
    void showModel();
    void turnTo(QWidget& page);
    std::optional<QRectF> pictureArea();
    ThemePage& page();
    void showWelcome();
    void showChosen();
    void showEmptyState();
    void openMenu(const QModelIndex& index, const QPoint& globalPosition);
    void choose(const QModelIndex& index);
    const QUuid* chosenOwn() const;

    WindowContext m_with;
    ThemesModel m_themes;
    ThemeFileDialogs m_files;
    ThemesScope* m_scope;
    CardView* m_grid;
    EmptyState* m_empty;
    QWidget* m_overview;
    Welcome* m_welcome = nullptr; ///< in the grid
    ThemePage* m_page = nullptr; ///< of the one that is open; made when the first is opened
    QStackedLayout* m_pages;
    PageTransition* m_transition; ///< from one of them to the other
    QString m_emptiness; ///< what the empty state is about
    bool m_isChanging = false; ///< the list, which chooses nothing
    bool m_wasOpen = false;
};

} // namespace ambrelle
