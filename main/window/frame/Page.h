// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

namespace ambrelle {

/// What one tab of the main window shows. Made when the tab is first shown; draws the model and calls it, and keeps no
/// state of the program.
class Page : public QWidget {
public:
    using QWidget::QWidget;

    /// The keyboard comes to what the page is about, on its first item if `first`: the first that was found while one
    /// searches.
    virtual void takeFocus(bool first) = 0;
    /// Escape: leaves what the page is in the middle of; false when there is nothing to leave.
    virtual bool leave() { return false; }
    /// F6: the parts of the page that the keyboard goes through, in reading order.
    virtual QList<QWidget*> areas() = 0;

    /// What would happen to these files when they are dropped here, as a sentence; empty: they are not wanted.
    virtual QString invitation(const QStringList& /*files*/) const { return {}; }
    virtual void drop(const QStringList& /*files*/) { }
};

} // namespace ambrelle
