// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleObject>
#include <QList>

namespace ambrelle {

class PanelSurface;

/// A panel as assistive technology sees it: a window with the delegate's name, and its buttons as children. Made by the
/// toolkit when somebody asks for it, and gone with the surface.
class PanelAccess final : public QAccessibleObject {
public:
    explicit PanelAccess(PanelSurface& surface);
    ~PanelAccess() override;

    static void install(); ///< makes panels known to the toolkit; more than once does nothing
    void tellNewNames(); ///< of what has another name than when this was last called, or made

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::Window; }
    QAccessible::State state() const override;
    QRect rect() const override;

private:
    QStringList names() const; ///< the panel's first, then its buttons'

    PanelSurface& m_surface;
    mutable QList<QAccessible::Id> m_children; // of the buttons, as far as they were asked for
    QStringList m_told;
};

} // namespace ambrelle
