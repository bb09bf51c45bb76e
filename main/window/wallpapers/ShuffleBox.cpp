// SPDX-License-Identifier: MIT

#include "window/wallpapers/ShuffleBox.h"

#include "foundation/Wording.h"
#include "window/look/PeriodTitle.h"
#include "window/look/SymbolIcon.h"

#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int hourMinutes = 60;
constexpr int dayMinutes = 24 * hourMinutes;
constexpr std::array shuffleMinutes{0, 15, 30, hourMinutes, 3 * hourMinutes, 12 * hourMinutes, dayMinutes};

} // namespace

ShuffleBox::ShuffleBox(AppSettings& settings, QWidget* parent)
    : QComboBox(parent)
    , m_minutes(settings.wallpaperShuffleMinutes)
{
    setAccessibleName(Wording::tr("Shuffle"));
    setFocusPolicy(Qt::StrongFocus); // the wheel scrolls the page
    connect(&settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_minutes.key())
            showStored();
    });
    connect(this, &QComboBox::activated, this, [this](int index) { m_minutes.set(itemData(index).toInt()); });
    showStored();
}

void ShuffleBox::showStored()
{
    clear();
    const int stored = std::max(0, m_minutes());
    QList<int> choices(shuffleMinutes.begin(), shuffleMinutes.end());
    if (!choices.contains(stored))
        choices.append(stored); // from elsewhere
    for (const int minutes : choices)
        addItem(symbolIcon(u"shuffle"_s), periodTitle(minutes), minutes);
    setCurrentIndex(findData(stored));
}

} // namespace ambrelle
