// SPDX-License-Identifier: MIT

#include "window/frame/MoreMenu.h"

#include "desktop/QuickMenu.h"
#include "foundation/Wording.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

QList<ActionItem> moreItems(const QuickMenu& quick, const WindowActions& actions)
{
    QList<ActionItem> items;
    if (const std::optional<ActionItem> update = quick.updateItem())
        items += {*update, ActionItem::separator()};
    items += {quick.focusItem(), ActionItem::separator()};
    items += {quick.editItem(), quick.lockItem(), ActionItem::separator()};
    items += {.title = Wording::tr("Weather"),
        .symbol = u"cloud.sun"_s,
        .items = {{.title = Wording::tr("Set City…"), .handler = actions.setCity}}};
    items += {.title = Wording::tr("Save Current Desktop"),
        .symbol = u"plus"_s,
        .key = QKeySequence(Qt::CTRL | Qt::Key_S),
        .handler = actions.saveDesktop,
        .enabled = actions.saveDesktop != nullptr};
    items += {.title = Wording::tr("Import…"),
        .symbol = u"square.and.arrow.down"_s,
        .key = QKeySequence(Qt::CTRL | Qt::Key_O),
        .handler = actions.importThemes};
    items += ActionItem::separator();
    items += {.title = Wording::tr("Keyboard Shortcuts"),
        .symbol = u"keyboard"_s,
        .key = QKeySequence(Qt::CTRL | Qt::Key_Question),
        .handler = actions.showShortcuts};
    if (const std::optional<ActionItem> check = quick.checkItem())
        items += *check;
    items += quick.quitItem();
    return items;
}

} // namespace ambrelle
