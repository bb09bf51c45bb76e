// SPDX-License-Identifier: MIT

#include "window/settings/FocusSection.h"

#include "faces/Units.h"
#include "foundation/Wording.h"
#include "services/LiveServices.h"
#include "window/look/Button.h"
#include "window/settings/ButtonRow.h"

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString stateOf(const FocusTimer& timer, const QDateTime& now)
{
    const double left = timer.remaining(now);
    const bool ready = !timer.isRunning() && left >= timer.duration(timer.phase());
    const QString state = ready ? Wording::tr("Ready") : Wording::tr("%1 left").arg(Units::clock(std::ceil(left)));
    const int done = timer.completedToday();
    return done > 0 ? state + u" · "_s + Wording::tr("%n sessions today", nullptr, done) : state;
}

} // namespace

FocusSection::FocusSection(const WindowContext& context, QWidget* parent)
    : SettingsSection(context.settings, parent)
    , m_timer(context.services.focus)
    , m_clock(context.clock)
{
    addTimer();
    addLengths();
    connect(&m_timer, &FocusTimer::changed, this, &FocusSection::showTimer);
    showTimer();
}

void FocusSection::addTimer()
{
    addGroup();
    m_toggle = new Button({});
    auto* skip = new Button(Wording::tr("Skip"));
    auto* reset = new Button(Wording::tr("Reset"));
    connect(m_toggle, &Button::clicked, this, [this] { m_timer.toggle(); });
    connect(skip, &Button::clicked, this, [this] { m_timer.skip(); });
    connect(reset, &Button::clicked, this, [this] { m_timer.reset(); });
    m_row = addRow({.name = title(m_timer.phase()), .keywords = {Wording::tr("timer"), Wording::tr("pomodoro")}},
        makeButtonRow({m_toggle, skip, reset}));
}

void FocusSection::addLengths()
{
    constexpr int longestFocus = 180;
    constexpr int longestBreak = 60;
    constexpr int longestLongBreak = 120;
    const QString minutes = Wording::tr("%1 min");
    addGroup();
    const auto addLength = [&](FocusTimer::Phase phase, const QString& caption, Setting<int>& setting, int most) {
        const QString name = title(phase);
        addNumber({.name = name,
                      .caption = caption,
                      .spoken = Wording::tr("%1, minutes", "what lasts so long").arg(name),
                      .keywords = {Wording::tr("minutes"), Wording::tr("length")}},
            setting, {1, most, minutes});
    };
    addLength(FocusTimer::Phase::focus, {}, settings().focusMinutes, longestFocus);
    addLength(FocusTimer::Phase::shortBreak, {}, settings().breakMinutes, longestBreak);
    addLength(FocusTimer::Phase::longBreak, Wording::tr("After every fourth session"), settings().longBreakMinutes,
        longestLongBreak);
    addGroup();
    addSwitch({.name = Wording::tr("Play a sound when time is up"), .keywords = {Wording::tr("chime")}},
        settings().focusSound);
}

void FocusSection::showTimer()
{
    const QString phase = title(m_timer.phase());
    m_row->setName(phase);
    m_row->setCaption(stateOf(m_timer, m_clock.now()));
    const QString action = (m_timer.isRunning() ? Wording::tr("Pause %1") : Wording::tr("Start %1")).arg(phase);
    if (m_toggle->title() != action)
        m_toggle->setText(action);
}

} // namespace ambrelle
