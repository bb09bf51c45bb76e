// SPDX-License-Identifier: MIT

#include "window/settings/UpdatesSection.h"

#include "desktop/QuickMenu.h"
#include "foundation/Wording.h"
#include "updates/Updater.h"
#include "window/frame/ProgramFacts.h"
#include "window/look/Button.h"
#include "window/look/Progress.h"
#include "window/settings/ButtonRow.h"

#include <QLayout>

namespace ambrelle {

using Kind = Updater::Phase::Kind;

UpdatesSection::UpdatesSection(const WindowContext& context, QWidget* parent)
    : SettingsSection(context.settings, parent)
    , m_updater(context.updater)
    , m_clock(context.clock)
{
    addGroup();
    const QString version = Wording::tr("Version %1").arg(context.facts.version);
    if (!m_updater.isEnabled()) {
        addTold({.name = version,
            .caption = context.facts.isOfSystem ? Wording::tr("This copy is kept up to date by the system it came with")
                                                : QString()});
        return;
    }
    addStatus(version);
    addSwitches();
}

void UpdatesSection::addStatus(const QString& version)
{
    m_check = new Button(QuickMenu::checkTitle());
    m_install = new Button({}, Button::Kind::primary);
    m_progress = new Progress(Progress::Shape::bar, Wording::tr("Update"));
    connect(m_check, &Button::clicked, this, [this] { m_updater.check(); });
    connect(m_install, &Button::clicked, this, [this] { m_updater.install(); });
    QWidget* controls = makeButtonRow({m_check, m_install});
    controls->layout()->addWidget(m_progress);
    m_row = addRow({.name = m_updater.status(), .caption = version}, controls);
    connect(&m_updater, &Updater::changed, this, &UpdatesSection::showStatus);
    showStatus();
}

void UpdatesSection::showStatus()
{
    const Updater::Phase& phase = m_updater.phase();
    const std::optional<Release> found = m_updater.available();
    const bool installs = phase.kind == Kind::downloading || phase.kind == Kind::installing;
    m_row->setName(m_updater.status(), phase.kind == Kind::failed);
    m_check->setVisible(!installs);
    m_check->setEnabled(!m_updater.isBusy());
    m_install->setVisible(found && !installs);
    m_install->setEnabled(!m_updater.isBusy());
    if (found)
        m_install->setText(QuickMenu::updateTitle(found->version));
    m_progress->setVisible(installs);
    m_row->arrange();
}

void UpdatesSection::showEvent(QShowEvent* event)
{
    SettingsSection::showEvent(event);
    if (!m_row)
        return;
    showStatus();
    m_minutes = m_clock.everyMinute([this] { showStatus(); });
}

void UpdatesSection::hideEvent(QHideEvent* event)
{
    m_minutes.reset();
    SettingsSection::hideEvent(event);
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
