// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/ActionMenu.h"

#include <QWidget>

namespace ambrelle {

class Button;
class MainWindowModel;
class SearchField;
class TabStrip;

/// The upper edge of the main window: the way back from a theme's page, the tabs, the search and the menu.
class ToolBar final : public QWidget {
    Q_OBJECT
public:
    /// The model outlives this.
    ToolBar(MainWindowModel& model, ActionMenu::Items more, QWidget* parent = nullptr);

    void takeFocus(); ///< the chosen tab has it, or the search that stands over the tabs
    void search(); ///< the keyboard goes to the search
    void openMenu();
    void setNews(const QString& news); ///< a dot at the menu's button and what it means; empty: none

Q_SIGNALS:
    void leftDownwards(); ///< from the search to what was found
    void searchEntered();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeTabs();
    void showModel();
    void arrange();

    MainWindowModel& m_model;
    ActionMenu m_menu;
    Button* m_back;
    TabStrip* m_tabs;
    Button* m_openSearch;
    SearchField* m_search;
    Button* m_more;
};

} // namespace ambrelle
