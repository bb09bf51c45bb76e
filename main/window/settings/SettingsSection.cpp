// SPDX-License-Identifier: MIT

#include "window/settings/SettingsSection.h"

#include "window/look/Button.h"
#include "window/look/Segments.h"
#include "window/settings/SettingsFields.h"
#include "window/settings/SettingsIndex.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr int groupGap = 22;

} // namespace

SettingsSection::SettingsSection(AppSettings& settings, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(groupGap);
    connect(&settings, &AppSettings::changed, this, [this](const QString& key) {
        const auto [first, last] = m_shows.equal_range(key);
        for (auto entry = first; entry != last; ++entry)
            entry->second();
    });
}

SettingsGroup* SettingsSection::addGroup(const QString& title)
{
    auto* group = new SettingsGroup(title);
    m_groups.append(group);
    layout()->addWidget(group);
    return group;
}

void SettingsSection::addNote(QWidget* note)
{
    m_notes.append(note);
    layout()->addWidget(note);
}

int SettingsSection::showFound(const SearchWords& words, const QString& title)
{
    m_words = words;
    m_title = title;
    showFound();
    return static_cast<int>(std::ranges::count_if(m_rows, [](const SettingsRow* row) { return !row->isHidden(); }));
}

void SettingsSection::showFound()
{
    const bool everything = m_words.isEmpty();
    for (SettingsRow* row : m_rows)
        row->setVisible(everything || SettingsIndex::matches(row->text(), m_title, m_words));
    for (SettingsGroup* group : m_groups)
        group->arrange(everything);
    for (QWidget* note : m_notes)
        note->setVisible(everything);
}

bool SettingsSection::focusFirst()
{
    for (const SettingsRow* row : m_rows) {
        if (!row->control() || row->isHidden() || !row->control()->isEnabled())
            continue;
        row->control()->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

void SettingsSection::clear()
{
    for (QWidget* part : m_notes + QList<QWidget*>(m_groups.begin(), m_groups.end())) {
        layout()->removeWidget(part);
        part->hide();
        part->deleteLater(); // a button of it may be what is pressed
    }
    m_notes.clear();
    m_groups.clear();
    m_rows.clear();
    m_shows.clear();
}

void SettingsSection::remake(const std::function<void()>& make)
{
    const QWidget* focus = QApplication::focusWidget();
    const auto focused = std::ranges::find_if(m_rows, [&](const SettingsRow* row) { return row->isAncestorOf(focus); });
    const std::optional<QString> name = focused == m_rows.end() ? std::nullopt : std::optional((*focused)->text().name);
    clear();
    make();
    showFound();
    Q_EMIT remade();
    if (!name)
        return;
    const auto same = std::ranges::find_if(m_rows, [&](const SettingsRow* row) { return row->text().name == *name; });
    if (same != m_rows.end() && (*same)->control())
        (*same)->control()->setFocus(Qt::OtherFocusReason);
    else
        focusFirst();
}

void SettingsSection::follow(const QString& key, std::function<void()> show)
{
    show();
    m_shows.emplace(key, std::move(show));
}

SettingsRow* SettingsSection::addRow(
    const RowText& text, QWidget* control, const QString& key, std::function<void()> show)
{
    if (m_groups.isEmpty())
        addGroup();
    auto* row = new SettingsRow(text, control);
    m_groups.last()->add(row);
    m_rows.append(row);
    if (show)
        follow(key, std::move(show));
    return row;
}

SettingsRow* SettingsSection::addSwitch(const RowText& text, Setting<bool>& setting)
{
    auto* box = new QCheckBox;
    connect(box, &QCheckBox::toggled, this, [&setting](bool on) { setting.set(on); });
    return addRow(text, box, setting.key(), [box, &setting] {
        const QSignalBlocker quiet(box);
        box->setChecked(setting());
    });
}

SettingsRow* SettingsSection::addChoiceRow(const RowText& text, const QString& key, const QStringList& titles,
    std::function<int()> index, std::function<QString()> other, std::function<void(int)> choose)
{
    auto* box = new QComboBox;
    box->addItems(titles);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const int known = static_cast<int>(titles.size());
    connect(box, &QComboBox::currentIndexChanged, this, [known, choose = std::move(choose)](int chosen) {
        if (chosen >= 0 && chosen < known) // another value is stored already
            choose(chosen);
    });
    return addRow(text, box, key, [box, known, titles, index = std::move(index), other = std::move(other)] {
        const QSignalBlocker quiet(box);
        int stored = index();
        QString title = stored < 0 ? other() : QString();
        if (const auto same = title.isEmpty() ? -1 : titles.indexOf(title); same >= 0) {
            stored = static_cast<int>(same); // another value, and called the same
            title.clear();
        }
        if (box->count() > known && (title.isEmpty() || box->itemText(known) != title))
            box->removeItem(known);
        if (!title.isEmpty() && box->count() == known)
            box->addItem(title);
        box->setCurrentIndex(stored >= 0 ? stored : title.isEmpty() ? -1 : known);
    });
}

SettingsRow* SettingsSection::addSegmentsRow(const RowText& text, const QString& key, const QStringList& titles,
    std::function<int()> index, std::function<void(int)> choose)
{
    auto* segments = new Segments(titles);
    segments->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(segments, &Segments::chose, this, std::move(choose));
    return addRow(text, segments, key, [segments, index = std::move(index)] { segments->setChosen(index()); });
}

SettingsRow* SettingsSection::addNumber(const RowText& text, Setting<int>& setting, const RowRange& range)
{
    auto* number = new NumberField(range);
    connect(number, &NumberField::valueChanged, this, [&setting](int value) { setting.set(value); });
    connect(number, &NumberField::confirmed, this, [number, &setting] {
        if (number->value() != setting()) // which is out of range, and was not shown as it is
            setting.set(number->value());
    });
    return addRow(text, number, setting.key(), [number, &setting] {
        const QSignalBlocker quiet(number);
        number->setValue(setting());
    });
}

SettingsRow* SettingsSection::addText(
    const RowText& text, Setting<QString>& setting, const QString& placeholder, const QString& button)
{
    auto* entry = new TextEntry(placeholder, button);
    connect(entry, &TextEntry::entered, this, [&setting](const QString& entered) { setting.set(entered); });
    return addRow(text, entry, setting.key(), [entry, &setting] { entry->setStored(setting()); });
}

SettingsRow* SettingsSection::addButton(const RowText& text, Button* button, std::function<void()> press)
{
    connect(button, &Button::clicked, this, std::move(press));
    return addRow(text, button);
}

} // namespace ambrelle
