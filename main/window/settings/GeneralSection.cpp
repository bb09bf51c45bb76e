// SPDX-License-Identifier: MIT

#include "window/settings/GeneralSection.h"

#include "foundation/Wording.h"
#include "platform/LoginItem.h"
#include "window/frame/ProgramFacts.h"
#include "window/frame/Sheets.h"
#include "window/look/PeriodTitle.h"
#include "window/look/SkinChooser.h"

#include <QCheckBox>
#include <QLocale>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString intervalTitle(double seconds)
{
    const int whole = qRound(seconds);
    if (whole == seconds)
        return Wording::tr("%n seconds", nullptr, whole);
    return Wording::tr("%1 seconds").arg(QLocale().toString(seconds, 'g', 3));
}

QList<RowChoice<int>> periods(std::initializer_list<int> minutes)
{
    QList<RowChoice<int>> choices;
    for (const int each : minutes)
        choices.append({each, periodTitle(each)});
    return choices;
}

} // namespace

GeneralSection::GeneralSection(const WindowContext& context, QWidget* parent)
    : SettingsSection(context.settings, parent)
    , m_login(context.login)
    , m_sheets(context.sheets)
{
    addLogin();
    addSkins();
    addPeriods();
    addWindowSystem(context.facts);
}

void GeneralSection::addLogin()
{
    addGroup();
    m_loginSwitch = new QCheckBox;
    connect(m_loginSwitch, &QCheckBox::toggled, this, &GeneralSection::startAtLogin);
    m_loginRow = addRow({.name = Wording::tr("Start Ambrelle when you log in"),
                            .keywords = {Wording::tr("login"), Wording::tr("autostart")}},
        m_loginSwitch);
    showLogin();
}

void GeneralSection::startAtLogin(bool wanted)
{
    const QString refusal = m_login.setEnabled(wanted);
    showLogin();
    if (!refusal.isEmpty())
        m_sheets.ask(sheets::loginRefused(refusal));
}

/// As the system has it, whoever changed it.
void GeneralSection::showLogin()
{
    const LoginItem::Status status = m_login.status();
    const QSignalBlocker quiet(m_loginSwitch);
    m_loginSwitch->setChecked(status == LoginItem::Status::enabled);
    const QString why = status == LoginItem::Status::unavailable ? m_login.whyNot() : QString();
    m_loginRow->setUnavailable(why);
    m_loginRow->setCaption(why);
}

void GeneralSection::showEvent(QShowEvent* event)
{
    SettingsSection::showEvent(event);
    showLogin();
}

void GeneralSection::addSkins()
{
    addSwitch({.name = Wording::tr("Follow light and dark appearance"),
                  .caption = Wording::tr("Field, Lumen and Paper switch to Field Dark, Slate and Mono in Dark Mode"),
                  .keywords = {Wording::tr("night")}},
        settings().followAppearance);
    auto* chooser = new SkinChooser;
    connect(chooser, &SkinChooser::chose, this, [this](Skin skin) { settings().defaultSkin.set(skin); });
    addRow({.name = Wording::tr("New widgets use"), .keywords = {Wording::tr("theme"), Wording::tr("skin")}}, chooser,
        settings().defaultSkin.key(), [this, chooser] { chooser->setChosen(settings().defaultSkin()); });
}

void GeneralSection::addPeriods()
{
    addGroup();
    QList<RowChoice<double>> intervals;
    for (const int seconds : {1, 2, 3, 5, 10})
        intervals.append({static_cast<double>(seconds), intervalTitle(seconds)});
    addChoice<double>({.name = Wording::tr("Update figures every"),
                          .caption = Wording::tr("Longer intervals use less power"),
                          .keywords = {Wording::tr("battery"), Wording::tr("processor")}},
        settings().interval, intervals, intervalTitle);
    addChoice<int>({.name = Wording::tr("Restart the download count"), .keywords = {Wording::tr("network")}},
        settings().downloadResetMinutes, periods({0, 60, 360, 720, 1440, 10080, 43200}), periodTitle);
    addChoice<int>({.name = Wording::tr("Shuffle the wallpaper"),
                       .caption = Wording::tr("Among the themes', shipped and your own"),
                       .keywords = {Wording::tr("picture"), Wording::tr("background")}},
        settings().wallpaperShuffleMinutes, periods({0, 15, 30, 60, 180, 720, 1440}), periodTitle);
}

/// Last: it is there on few desktops, and hardly anybody looks for it.
void GeneralSection::addWindowSystem(const ProgramFacts& facts)
{
    if (!facts.hasWindowSystems || !facts.hasWindowSystems())
        return;
    addGroup();
    QList<RowChoice<WindowSystem>> choices;
    for (const auto& row : rawRows<WindowSystem>)
        choices.append({row.value, Wording::tr(row.title)});
    SettingsRow* row = addSegments({.name = Wording::tr("Show windows by"),
                                       .caption = Wording::tr("Holds from the next start"),
                                       .spoken = Wording::tr("Window system"),
                                       .keywords = {Wording::tr("display"), Wording::tr("compositor")}},
        settings().windowSystem, choices);
    if (!facts.isWindowSystemForced)
        return;
    const QString why = Wording::tr("The variable %1 decides while it is set").arg("QT_QPA_PLATFORM"_L1);
    row->setUnavailable(why);
    row->setCaption(why);
}

} // namespace ambrelle
