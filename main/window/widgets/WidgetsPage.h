// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"
#include "foundation/Ticket.h"
#include "window/frame/Page.h"
#include "window/frame/WindowContext.h"
#include "window/widgets/DesktopEdits.h"
#include "window/widgets/WidgetsModel.h"

namespace ambrelle {

class CardView;
class DesktopPane;
class EmptyState;
class FaceTiles;
class WidgetDrag;
class WidgetsScope;

/// The gallery of widgets to add, beside the list of those on the desktop; in a narrow window one of the two.
class WidgetsPage final : public Page {
public:
    explicit WidgetsPage(const WindowContext& context);

    void takeFocus(bool first) override;
    bool leave() override;
    QList<QWidget*> areas() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectGallery();
    void showModel();
    void showSkin();
    void arrange();
    void add(WidgetKind kind, std::optional<QPointF> centre = std::nullopt);
    QList<ActionItem> menuOf(WidgetKind kind);
    void pull(const QModelIndex& index);

    WindowContext m_with;
    DesktopEdits m_edits;
    WidgetsModel m_model;
    WidgetsScope* m_scope;
    QWidget* m_gallery;
    CardView* m_view;
    EmptyState* m_nothing;
    DesktopPane* m_pane;
    FaceTiles* m_tiles;
    WidgetDrag* m_drag;
    Ticket m_badge;
};

} // namespace ambrelle
