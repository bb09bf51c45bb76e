// SPDX-License-Identifier: MIT

#include "window/themes/ThemeDetails.h"

#include "foundation/Wording.h"
#include "placement/ScreenNames.h"
#include "window/look/Button.h"
#include "window/look/SymbolIcon.h"
#include "window/look/TextLabel.h"
#include "window/themes/AccentPicker.h"
#include "window/themes/KindTiles.h"
#include "window/themes/ThemeFacts.h"
#include "window/themes/ThemeHead.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int partGap = 14;
constexpr int partTitleGap = 6; // below the heading of a part
constexpr int mainScreen = 0; // entries of the list of screens, before each screen
constexpr int everyScreen = 1;
constexpr int firstScreen = 2;

/// A heading with something below it.
QWidget* partOf(TextLabel* title, QWidget* content)
{
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(ThemeDetails::inset, partGap, ThemeDetails::inset, 0);
    column->setSpacing(partTitleGap);
    column->addWidget(title);
    column->addWidget(content);
    return part;
}

TextLabel* partTitle(const QString& text)
{
    return new TextLabel(TextRole::cardTitle, text);
}

} // namespace

ThemeDetails::ThemeDetails(ThemeAccent& accents, Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_head(new ThemeHead)
    , m_counterpart(new Button({}, Button::Kind::link))
    , m_accent(new AccentPicker(accents, clock))
    , m_count(partTitle({}))
    , m_kinds(new KindTiles)
    , m_target(new QComboBox)
{
    m_accentPart = partOf(partTitle(Wording::tr("Accent")), m_accent);
    TextLabel* place = partTitle(Wording::tr("Put widgets on"));
    place->setBuddy(m_target); // a drop-down's own name is its value
    m_targetPart = partOf(place, m_target);
    m_target->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_head->setContentsMargins(inset, 0, inset, 0);
    column->addWidget(m_head);
    auto* link = new QHBoxLayout;
    link->setContentsMargins(0, 0, 0, 0); // a link has that room within
    link->addWidget(m_counterpart);
    link->addStretch();
    column->addLayout(link);
    column->addWidget(m_accentPart);
    column->addWidget(partOf(m_count, m_kinds));
    column->addWidget(m_targetPart);
    column->addStretch();
    connect(m_counterpart, &Button::clicked, this, [this] {
        if (m_partner)
            Q_EMIT counterpartWanted(*m_partner);
    });
    setScreens({});
}

void ThemeDetails::setTheme(const ThemeFacts& facts, bool isOnDesktop)
{
    m_head->setTheme(facts, isOnDesktop);
    m_partner = facts.skin ? appearancePartner(*facts.skin) : std::nullopt;
    m_counterpart->setVisible(m_partner.has_value());
    if (m_partner) {
        const QString words =
            facts.isLight ? Wording::tr("Dark counterpart: %1") : Wording::tr("Light counterpart: %1");
        m_counterpart->setText(words.arg(title(*m_partner)));
    }
    m_accentPart->setVisible(facts.skin.has_value());
    if (facts.skin)
        m_accent->setSkin(*facts.skin);
    m_count->setText(Wording::tr("%n widgets", nullptr, static_cast<int>(facts.kinds.size())));
    m_kinds->setKinds(facts.kinds);
}

void ThemeDetails::setScreens(const QList<ScreenInfo>& screens)
{
    const ThemeTarget before = target();
    m_screens.clear();
    std::ranges::transform(screens, std::back_inserter(m_screens), &ScreenInfo::id);
    const QSignalBlocker quiet(m_target);
    m_target->clear();
    m_targetPart->setVisible(screens.size() > 1);
    if (screens.size() < 2)
        return;
    m_target->addItem(symbolIcon(u"desktopcomputer"_s), Wording::tr("Main screen"));
    m_target->addItem(symbolIcon(u"display.2"_s), Wording::tr("Every screen"));
    for (const QString& name : screenNames(screens))
        m_target->addItem(symbolIcon(u"display"_s), Wording::tr("Only %1").arg(name));
    const qsizetype chosen = before.kind == ThemeTarget::Kind::one ? m_screens.indexOf(before.screen) : -1;
    m_target->setCurrentIndex(before.kind == ThemeTarget::Kind::every ? everyScreen
            : chosen >= 0                                             ? static_cast<int>(firstScreen + chosen)
                                                                      : mainScreen);
}

ThemeTarget ThemeDetails::target() const
{
    const int chosen = m_target->currentIndex();
    if (m_screens.size() < 2 || chosen <= mainScreen)
        return {};
    if (chosen == everyScreen)
        return {.kind = ThemeTarget::Kind::every};
    return {.kind = ThemeTarget::Kind::one, .screen = m_screens[chosen - firstScreen]};
}

} // namespace ambrelle
