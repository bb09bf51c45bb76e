// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"
#include "window/look/ActionMenu.h"

#include <QWidget>

#include <functional>
#include <map>

class QStackedWidget;

namespace ambrelle {

class DropFrame;
class Page;
class ToolBar;

/// The window behind the tray item: a tool bar, below it the page of the chosen tab.
class MainWindow : public QWidget {
    Q_OBJECT
public:
    struct Parts {
        MainWindowModel& model;
        ActionMenu::Items more; ///< of the menu in the tool bar
        std::function<Page*(MainTab)> makePage; ///< the window owns it
    };

    static constexpr QSize firstSize{1120, 760};
    static constexpr QSize leastSize{720, 480};

    explicit MainWindow(const Parts& parts);

    /// Theme files may be dropped on every tab.
    std::function<QString(const QStringList& files)> themeInvitation;
    std::function<void(const QStringList& files)> dropThemes;
    std::function<void()> undo; ///< Ctrl+Z
    void addKey(const QKeySequence& key, const std::function<void()>& act); ///< that works on every tab
    void setNews(const QString& news); ///< of what the menu offers now; empty: none
    QList<QWidget*> overlays; ///< above the page; each sees to its own place

Q_SIGNALS:
    void closed();
    void resized();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeShortcuts();
    void showModel();
    Page& page();
    void escape();
    void nextTab(int steps);
    void nextArea();
    QString invitationTo(const QStringList& files);

    Parts m_parts;
    ToolBar* m_toolBar;
    QStackedWidget* m_stack;
    DropFrame* m_dropFrame;
    std::map<MainTab, Page*> m_pages;
    bool m_isMakingPage = false;
};

} // namespace ambrelle
