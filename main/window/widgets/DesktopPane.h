// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/ActionMenu.h"
#include "window/widgets/DesktopEdits.h"
#include "window/widgets/DesktopWidgetsModel.h"

#include <QWidget>

namespace ambrelle {

class Button;
class DesktopList;
class EmptyState;
class TextLabel;

/// The widgets on the desktop in a list, and what can be done with the chosen ones and with all of them.
class DesktopPane final : public QWidget {
    Q_OBJECT
public:
    explicit DesktopPane(const WindowContext& context, QWidget* parent = nullptr);

    DesktopList& list() const { return *m_list; }
    void choose(const QUuid& id); ///< and nothing else, in view; nothing while it is not there

    QSize minimumSizeHint() const override { return {0, 0}; }

private:
    QWidget* makeSurface();
    QList<WidgetController*> chosen() const;
    QList<ActionItem> removals() const;
    QList<ActionItem> rowItems();
    void locate();
    void refresh();
    void refreshSoon();
    void showButtons();

    WindowContext m_with;
    DesktopEdits m_edits;
    DesktopWidgetsModel m_model;
    bool m_isRefreshing = false; // soon
    TextLabel* m_count;
    DesktopList* m_list;
    EmptyState* m_nothing;
    Button* m_locate;
    Button* m_settings;
    Button* m_remove;
    Button* m_more;
    Button* m_useSkin;
    Button* m_edit;
    ActionMenu m_removals;
};

} // namespace ambrelle
