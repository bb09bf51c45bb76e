// SPDX-License-Identifier: MIT

#include "window/themes/AccentPicker.h"

#include "foundation/Clock.h"
#include "foundation/Wording.h"
#include "model/ThemeAccent.h"
#include "skins/SkinRegistry.h"
#include "window/look/AccessibleRole.h"
#include "window/look/FocusRing.h"
#include "window/look/TextLabel.h"
#include "window/themes/AccentSwatch.h"
#include "window/themes/FlowLayout.h"

#include <QColorDialog>
#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds restTime{150}; // on a swatch, before it is tried

} // namespace

AccentPicker::AccentPicker(ThemeAccent& accents, Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_accents(accents)
    , m_clock(clock)
    , m_sentence(new TextLabel(TextRole::caption, Wording::tr("This theme keeps its own colours")))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(Wording::tr("Accent"));
    m_sentence->setWordWrap(true);
    auto* line = new FlowLayout(0, 0, this);
    line->addWidget(m_sentence);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(&m_accents, &ThemeAccent::changed, this, &AccentPicker::showStored);
    setSkin(m_skin);
}

AccentSwatch* AccentPicker::addSwatch()
{
    auto* swatch = new AccentSwatch(this);
    swatch->installEventFilter(this);
    layout()->addWidget(swatch);
    swatch->show();
    connect(swatch, &AccentSwatch::toggled, this, [this, swatch](bool checked) {
        if (!checked || m_isShowing)
            return;
        choose(*swatch);
        showStored(); // from the wheel nothing is chosen yet
    });
    connect(swatch, &AccentSwatch::clicked, this, [this, swatch] {
        if (swatch->isWheel() && swatch->isChecked())
            openDialog(); // another colour than the one in it
    });
    connect(swatch, &AccentSwatch::moveWanted, this, [this, swatch](int steps) { moveFocus(swatch, steps); });
    return swatch;
}

void AccentPicker::setSkin(Skin skin)
{
    if (m_dialog && skin != m_skin)
        m_dialog->reject();
    if (std::exchange(m_skin, skin) != skin)
        consider(std::nullopt);
    const qsizetype count = supportsAccent(skin) ? accentChoices(skin).size() + 1 : 0;
    while (m_swatches.size() > count)
        delete m_swatches.takeLast();
    while (m_swatches.size() < count)
        m_swatches.append(addSwatch());
    m_sentence->setVisible(count == 0);
    showStored();
}

void AccentPicker::showStored()
{
    if (m_swatches.isEmpty())
        return;
    const std::optional<QColor> stored = m_accents.color(m_skin);
    const QList<AccentChoice> choices = accentChoices(m_skin);
    AccentSwatch* chosen = m_swatches.last();
    for (qsizetype index = 0; index < choices.size(); ++index) {
        const AccentChoice& choice = choices[index];
        AccentSwatch* swatch = m_swatches[index];
        swatch->setAccent(choice.name, choice.color, choice.color.value_or(originalAccent(m_skin)));
        const bool isStored =
            choice.color && stored ? hexText(*choice.color) == hexText(*stored) : choice.color == stored;
        if (isStored && chosen == m_swatches.last())
            chosen = swatch;
    }
    m_swatches.last()->setWheel(
        Wording::tr("Custom colour"), chosen == m_swatches.last() ? stored : std::optional<QColor>());
    {
        const QScopedValueRollback showing(m_isShowing, true);
        chosen->setChecked(true);
    }
    const bool hasFocus = std::ranges::any_of(m_swatches, &QWidget::hasFocus);
    for (AccentSwatch* swatch : std::as_const(m_swatches)) {
        if (!hasFocus) // the row is one stop
            swatch->setFocusPolicy(swatch == chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
    judge();
}

void AccentPicker::moveFocus(const AccentSwatch* from, int steps)
{
    const qsizetype next = m_swatches.indexOf(from) + steps;
    if (next >= 0 && next < m_swatches.size())
        m_swatches[next]->setFocus(steps > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void AccentPicker::choose(const AccentSwatch& swatch)
{
    if (swatch.isWheel())
        openDialog();
    else
        store(swatch.accent(), m_skin);
}

void AccentPicker::store(const std::optional<QColor>& accent, Skin skin)
{
    const QColor none;
    if (hexText(accent.value_or(none)) == hexText(m_accents.color(skin).value_or(none)))
        return;
    Q_EMIT storing();
    m_accents.set(accent, skin);
}

void AccentPicker::openDialog()
{
    if (m_dialog)
        return;
    m_dialog = new QColorDialog(m_accents.color(m_skin).value_or(originalAccent(m_skin)), this);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setOption(QColorDialog::DontUseNativeDialog);
    m_dialog->setWindowTitle(Wording::tr("Custom colour"));
    connect(m_dialog, &QColorDialog::currentColorChanged, this, [this](const QColor& colour) {
        if (m_dialog)
            consider(Trial{colour});
    });
    connect(m_dialog, &QColorDialog::colorSelected, this,
        [this, skin = m_skin](const QColor& colour) { store(colour, skin); });
    connect(m_dialog, &QColorDialog::finished, this, [this] {
        m_dialog = nullptr;
        consider(std::nullopt);
    });
    m_dialog->open();
}

bool AccentPicker::eventFilter(QObject* watched, QEvent* event)
{
    auto* swatch = qobject_cast<AccentSwatch*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (!FocusRing::shared().isShown())
            break;
        [[fallthrough]];
    case QEvent::Enter: m_at = swatch; break;
    case QEvent::Leave:
    case QEvent::FocusOut:
        if (m_at == watched)
            m_at = nullptr;
        break;
    default: return QWidget::eventFilter(watched, event);
    }
    // From one to the next nothing is left.
    QMetaObject::invokeMethod(this, &AccentPicker::judge, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void AccentPicker::hideEvent(QHideEvent* event)
{
    consider(std::nullopt);
    QWidget::hideEvent(event);
}

/// Tries what pointer or keyboard have come to last.
void AccentPicker::judge()
{
    if (m_dialog)
        return; // its own colours are tried
    const auto* at = qobject_cast<AccentSwatch*>(m_at);
    const bool counts = isVisible() && at && !at->isWheel() && !at->isChecked();
    consider(counts ? std::optional(Trial{at->accent()}) : std::nullopt);
}

void AccentPicker::consider(const std::optional<Trial>& accent)
{
    if (accent == m_considered)
        return;
    m_considered = accent;
    m_soon.reset();
    if (accent)
        m_soon = m_clock.after(restTime, [this] { tryOut(m_considered); });
    else
        tryOut(std::nullopt);
}

void AccentPicker::tryOut(const std::optional<Trial>& trial)
{
    if (std::exchange(m_trial, trial) != trial)
        Q_EMIT trialChanged();
}

} // namespace ambrelle
