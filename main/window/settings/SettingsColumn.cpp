// SPDX-License-Identifier: MIT

#include "window/settings/SettingsColumn.h"

#include "window/look/AppLook.h"
#include "window/look/EmptyState.h"
#include "window/look/Measures.h"
#include "window/look/TextLabel.h"
#include "window/settings/SettingsSection.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int columnWidth = 700; // at most
constexpr int narrowColumn = 708; // what is left of a window of 900
constexpr int columnTop = 22;
constexpr int sectionGap = 26;
constexpr int titleGap = 10;
constexpr int lineStep = 32; // a notch of a wheel is three of them

} // namespace

SettingsColumn::SettingsColumn(QWidget* parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
    , m_rows(new QVBoxLayout(m_content))
    , m_nothing(new EmptyState)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->setSingleStep(lineStep);
    m_content->setAutoFillBackground(false);
    setWidget(m_content);
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false); // setWidget() has it filled
    m_rows->setSpacing(0);
    m_rows->addWidget(m_nothing, 1);
    m_rows->addStretch(0); // what is left by rows, nothing of the other's
    setNothing({});
    connect(m_nothing, &EmptyState::cleared, this, &SettingsColumn::searchCleared);
    connect(&AppLook::shared(), &AppLook::changed, this, &SettingsColumn::fit);
}

void SettingsColumn::insert(int place, SettingsSection* section, const QString& title)
{
    auto* heading = new TextLabel(TextRole::title, title);
    heading->setContentsMargins(2, 0, 2, titleGap);
    const auto next = std::ranges::upper_bound(m_entries, place, {}, &Entry::place);
    const int row = static_cast<int>(next - m_entries.begin()) * 2;
    m_entries.insert(next, {place, section, heading});
    m_rows->insertWidget(row, heading);
    m_rows->insertWidget(row + 1, section);
    heading->hide();
    section->hide();
}

void SettingsColumn::showSection(const SettingsSection* section, bool shown, bool withTitle)
{
    bool first = true;
    for (const Entry& entry : m_entries) {
        if (entry.section == section) {
            entry.title->setContentsMargins(2, first ? 0 : sectionGap, 2, titleGap);
            entry.title->setVisible(shown && withTitle);
            entry.section->setVisible(shown);
        }
        first = first && entry.section->isHidden();
    }
}

/// Sections are made in any order, and rows later than others.
void SettingsColumn::orderTabs()
{
    QWidget* last = nullptr;
    for (const Entry& entry : m_entries) {
        for (QWidget* part : entry.section->findChildren<QWidget*>()) {
            if ((part->focusPolicy() & Qt::TabFocus) == 0 || part->focusProxy() || part->window() != window())
                continue;
            if (last)
                QWidget::setTabOrder(last, part);
            last = part;
        }
    }
}

void SettingsColumn::setNothing(const QString& heading)
{
    m_nothing->setSearch(heading, false);
    m_nothing->setVisible(!heading.isEmpty());
}

void SettingsColumn::toTop()
{
    verticalScrollBar()->setValue(0);
}

bool SettingsColumn::focusFirst()
{
    for (const Entry& entry : m_entries) {
        if (!entry.section->isHidden() && entry.section->focusFirst()) {
            if (const QWidget* focused = m_content->focusWidget())
                ensureWidgetVisible(const_cast<QWidget*>(focused));
            return true;
        }
    }
    if (m_nothing->isHidden())
        return false;
    m_nothing->setFocus(Qt::TabFocusReason);
    return true;
}

void SettingsColumn::focusInEvent(QFocusEvent*)
{
    focusFirst();
}

void SettingsColumn::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

/// In the middle, and no wider than lines are read easily.
void SettingsColumn::fit()
{
    const int margin = width() < narrowColumn ? measures::narrowMargin : measures::wideMargin;
    const int room = viewport()->width() - AppLook::shared().scaled(columnWidth);
    const int left = std::max(margin, room / 2);
    m_rows->setContentsMargins(left, columnTop, std::max(margin, room - left), columnTop);
}

} // namespace ambrelle
