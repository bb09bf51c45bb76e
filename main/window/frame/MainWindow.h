// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/ActionMenu.h"

#include <QWidget>

class QLabel;
class QTabBar;
class QToolButton;
class QVBoxLayout;

namespace ambrelle {

class MainWindowModel;

/// The window behind the tray item. Its tabs are still empty; beside them it offers the quick actions as buttons.
class MainWindow : public QWidget {
    Q_OBJECT
public:
    MainWindow(MainWindowModel& model, ActionMenu::Items actions);

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeTabs();
    void makePage(QVBoxLayout& page);
    void showModel();
    void makeButtons();

    MainWindowModel& m_model;
    ActionMenu m_actions; // never shown itself: it has the actions that the buttons carry
    QTabBar* m_tabs;
    QLabel* m_title;
    QLabel* m_sentence;
    QLabel* m_files;
    QVBoxLayout* m_column;
    QList<QToolButton*> m_buttons;
};

} // namespace ambrelle
