// SPDX-License-Identifier: MIT

#include "window/settings/SettingsRow.h"

#include "window/look/Measures.h"
#include "window/look/Segments.h"
#include "window/look/TextLabel.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int rowSide = 14; // points, left and right
constexpr int rowVertical = 8;
constexpr int rowGap = 14; // between texts and control
constexpr int captionGap = 1;
constexpr int leastRow = 46;
constexpr int leastCaptionedRow = 52;
constexpr int leastTextWidth = 190; // beside a control
constexpr int headingBelow = 12;
constexpr double groupCorner = 12;

/// Paths go on in the next line after a slash.
QString breakable(QString text)
{
    return text.replace(u'/', u"/\u200B"_s);
}

} // namespace

SettingsRow::SettingsRow(RowText text, QWidget* control, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
    , m_control(control)
    , m_line(new QHBoxLayout(this))
    , m_name(new TextLabel(TextRole::name, breakable(m_text.name)))
    , m_caption(new TextLabel(TextRole::caption))
{
    m_line->setContentsMargins(rowSide, rowVertical, rowSide, rowVertical);
    m_line->setSpacing(rowGap);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(captionGap);
    texts->addStretch(1);
    for (TextLabel* label : {m_name, m_caption}) {
        label->setWordWrap(true);
        label->setMinimumWidth(1); // less than a long word: the page never scrolls sideways
        texts->addWidget(label);
    }
    texts->addStretch(1);
    m_line->addLayout(texts, 1);
    if (m_control)
        m_line->addWidget(m_control, 0, Qt::AlignVCenter);
    connect(&AppLook::shared(), &AppLook::changed, this, &SettingsRow::dress);
    nameControl();
    setCaption(m_text.caption);
}

void SettingsRow::nameControl()
{
    QWidget* control = spokenControl();
    if (!control)
        return;
    // Buttons tell their own texts, and what these are about.
    for (QPushButton* button : m_control->findChildren<QPushButton*>())
        button->setAccessibleDescription(m_text.name);
    if (qobject_cast<QPushButton*>(control))
        return;
    const QString& name = m_text.spoken.isEmpty() ? m_text.name : m_text.spoken;
    if (auto* segments = qobject_cast<Segments*>(control))
        segments->setAccessibleName(name);
    else
        control->setAccessibleName(name);
    if (qobject_cast<QComboBox*>(control))
        m_name->setBuddy(control); // here a drop-down's own name is its value
}

void SettingsRow::setName(const QString& name, bool failure)
{
    m_name->setTone(failure ? TextLabel::Tone::danger : TextLabel::Tone::text);
    if (std::exchange(m_text.name, name) == name)
        return;
    m_name->setText(breakable(name));
    nameControl();
}

void SettingsRow::setLead(QWidget* lead)
{
    m_line->insertWidget(0, lead, 0, Qt::AlignVCenter);
}

void SettingsRow::setLeastHeight(int points)
{
    m_leastHeight = points;
    dress();
}

void SettingsRow::setCaption(const QString& caption, bool failure)
{
    m_text.caption = caption;
    m_caption->setText(breakable(caption));
    if (std::exchange(m_failure, failure) != failure)
        m_caption->setTone(failure ? TextLabel::Tone::danger : TextLabel::Tone::soft);
    m_caption->setVisible(!caption.isEmpty());
    QWidget* control = spokenControl();
    if (qobject_cast<QPushButton*>(m_control))
        control->setAccessibleDescription(caption.isEmpty() ? m_text.name : m_text.name + u", "_s + caption);
    else if (control && !qobject_cast<QPushButton*>(control))
        control->setAccessibleDescription(caption);
    dress();
}

/// What assistive technology meets: of several parts the first one, such as what is typed into.
QWidget* SettingsRow::spokenControl() const
{
    return m_control && m_control->focusProxy() && !qobject_cast<Segments*>(m_control) ? m_control->focusProxy()
                                                                                       : m_control;
}

void SettingsRow::dress()
{
    const int least = m_leastHeight > 0 ? m_leastHeight : m_text.caption.isEmpty() ? leastRow : leastCaptionedRow;
    setMinimumHeight(AppLook::shared().scaled(least));
}

void SettingsRow::setUnavailable(const QString& why)
{
    m_control->setEnabled(why.isEmpty());
    m_control->setToolTip(why);
    m_name->setToolTip(why);
}

void SettingsRow::work()
{
    if (!m_control || !m_control->isEnabled())
        return;
    if (auto* button = qobject_cast<QAbstractButton*>(spokenControl())) {
        button->click();
    } else if (auto* box = qobject_cast<QComboBox*>(m_control)) {
        box->setFocus(Qt::MouseFocusReason);
        box->showPopup();
    } else {
        m_control->setFocus(Qt::MouseFocusReason);
    }
}

void SettingsRow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    for (const TextLabel* label : {m_name, m_caption}) {
        if (label->isVisible() && label->geometry().contains(event->position().toPoint())) {
            work();
            return;
        }
    }
}

void SettingsRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void SettingsRow::arrange()
{
    if (!m_control)
        return;
    const int wanted = m_control->sizeHint().width() + 2 * rowSide + rowGap + AppLook::shared().scaled(leastTextWidth);
    const bool narrow = width() < wanted && !qobject_cast<QAbstractButton*>(m_control);
    m_line->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_line->setAlignment(m_control, narrow ? Qt::AlignLeft : Qt::AlignVCenter);
}

SettingsGroup::SettingsGroup(const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_title(title)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    if (title.isEmpty())
        return;
    m_heading = new TextLabel(TextRole::heading, title);
    m_heading->setContentsMargins(2, 0, 2, headingBelow);
    m_column->addWidget(m_heading);
}

void SettingsGroup::arrange(bool withTitle)
{
    if (m_heading)
        m_heading->setVisible(withTitle);
    setVisible(std::ranges::any_of(m_rows, [](const QWidget* row) { return !row->isHidden(); }));
    update();
}

void SettingsGroup::add(QWidget* row)
{
    m_rows.append(row);
    m_column->addWidget(row);
}

void SettingsGroup::paintEvent(QPaintEvent*)
{
    const AppColours& colours = AppLook::shared().colours();
    QRectF plate;
    for (const QWidget* row : m_rows)
        plate = row->isHidden() ? plate : plate.united(row->geometry());
    if (plate.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hairline(devicePixelRatioF());
    painter.setBrush(colours.surface);
    painter.setPen(QPen(colours.hairline, line));
    painter.drawRoundedRect(plate.adjusted(line / 2, line / 2, -line / 2, -line / 2), groupCorner, groupCorner);
    for (const QWidget* row : m_rows) {
        if (!row->isHidden() && row->y() > qRound(plate.top()))
            painter.fillRect(QRectF(plate.left(), row->y(), plate.width(), line), colours.hairline);
    }
}

} // namespace ambrelle
