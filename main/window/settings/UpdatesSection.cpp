// SPDX-License-Identifier: MIT

#include "window/settings/UpdatesSection.h"

#include "desktop/QuickMenu.h"
#include "foundation/Wording.h"
#include "window/frame/ProgramFacts.h"
#include "window/look/Button.h"
#include "window/settings/ButtonRow.h"

namespace ambrelle {

UpdatesSection::UpdatesSection(const WindowContext& context, QWidget* parent)
    : SettingsSection(context.settings, parent)
{
    addGroup();
    const QString version = Wording::tr("Version %1").arg(context.facts.version);
    const auto check = context.quickMenu.checkItem();
    if (!check) {
        addTold({.name = version, .caption = Wording::tr("This copy is kept up to date by the system it came with")});
        return;
    }
    QList<Button*> buttons;
    const auto addAction = [&](const ActionItem& item, Button::Kind kind) {
        auto* button = new Button(item.title, kind);
        connect(button, &Button::clicked, this, item.handler);
        buttons.append(button);
    };
    if (const auto update = context.quickMenu.updateItem())
        addAction(*update, Button::Kind::primary);
    addAction(*check, Button::Kind::plain);
    addRow({.name = version}, makeButtonRow(buttons));
    addSwitches();
}

void UpdatesSection::addSwitches()
{
    addGroup();
    addSwitch({.name = Wording::tr("Check automatically")}, settings().checkForUpdates);
    SettingsRow* install =
        addSwitch({.name = Wording::tr("Install automatically"),
                      .caption = Wording::tr("Ambrelle restarts by itself while you're not using it, "
                                             "and your widgets come straight back")},
            settings().installUpdates);
    follow(settings().checkForUpdates.key(), [this, install] {
        install->setUnavailable(
            settings().checkForUpdates() ? QString() : Wording::tr("New versions are not looked for"));
    });
}

} // namespace ambrelle
