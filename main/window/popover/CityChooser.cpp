// SPDX-License-Identifier: MIT

#include "window/popover/CityChooser.h"

#include "foundation/Wording.h"
#include "model/WorldCities.h"

#include <QCompleter>
#include <QLineEdit>
#include <QToolTip>

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
    connect(lineEdit(), &QLineEdit::textEdited, this, [] { QToolTip::hideText(); });
}

void CityChooser::setChosen(const std::optional<QString>& name, const std::optional<QString>& zone)
{
    const QSignalBlocker quiet(this);
    m_shown = name && !name->isEmpty() ? *name : zone && !zone->isEmpty() ? *zone : itemText(0);
    setCurrentIndex(findText(m_shown, Qt::MatchFixedString));
    setEditText(m_shown);
    lineEdit()->setCursorPosition(0);
}

/// Takes over what was typed or chosen if it names an entry.
void CityChooser::take()
{
    const QString typed = currentText().trimmed();
    const int index = findText(typed, Qt::MatchFixedString);
    if (index < 0 && typed.compare(m_shown, Qt::CaseInsensitive) != 0)
        refuse(typed);
    if (index >= 0 && itemText(index) != m_shown) {
        m_shown = itemText(index);
        if (index == 0)
            Q_EMIT chose(std::nullopt);
        else
            Q_EMIT chose(City{m_shown, itemData(index).toString()});
    }
    setEditText(m_shown);
    if (lineEdit()->hasFocus())
        lineEdit()->selectAll(); // what is typed next replaces it
}

void CityChooser::refuse(const QString& typed)
{
    if (typed.isEmpty())
        return;
    constexpr int mostLetters = 40;
    const QString name = typed.size() > mostLetters ? typed.first(mostLetters) + u'…' : typed;
    QToolTip::showText(mapToGlobal(rect().bottomLeft()),
        Wording::tr("No city called “%1” is in the list.").arg(name.toHtmlEscaped()), this);
}

} // namespace ambrelle
