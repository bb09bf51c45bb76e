// SPDX-License-Identifier: MIT

#include "window/CityChooser.h"

#include "foundation/Wording.h"
#include "model/WorldCities.h"

#include <QCompleter>
#include <QLineEdit>

namespace ambrelle {

namespace {

constexpr int citiesShown = 14;

} // namespace

CityChooser::CityChooser(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(citiesShown);
    addItem(Wording::tr("Local Time"));
    for (const WorldCity& city : worldCities())
        addItem(Wording::tr(city.name), QString(city.zone));
    completer()->setCompletionMode(QCompleter::InlineCompletion);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    connect(this, &QComboBox::activated, this, &CityChooser::take);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &CityChooser::take);
}

void CityChooser::setChosen(const std::optional<QString>& name, const std::optional<QString>& zone)
{
    const QSignalBlocker quiet(this);
    m_shown = name && !name->isEmpty() ? *name : zone && !zone->isEmpty() ? *zone : itemText(0);
    setCurrentIndex(findText(m_shown, Qt::MatchFixedString));
    setEditText(m_shown);
    lineEdit()->setCursorPosition(0);
}

/// Takes over what was typed if it names an entry; anything else gives way to what was there.
void CityChooser::take()
{
    const QString typed = currentText().trimmed();
    const int index = findText(typed, Qt::MatchFixedString);
    if (index < 0 || itemText(index) == m_shown) {
        setEditText(m_shown);
        return;
    }
    m_shown = itemText(index);
    setEditText(m_shown);
    if (index == 0)
        Q_EMIT chose(std::nullopt);
    else
        Q_EMIT chose(City{m_shown, itemData(index).toString()});
}

} // namespace ambrelle
