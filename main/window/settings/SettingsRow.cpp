// SPDX-License-Identifier: MIT

#include "window/settings/SettingsRow.h"

#include "window/look/Segments.h"
#include "window/look/TextLabel.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace ambrelle {

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

/// A line of one device pixel on screens up to ratio 1.75, else of one point.
double hairlineWidth(const QPainter& painter)
{
    const double ratio = painter.device()->devicePixelRatioF();
    return ratio <= 1.75 ? 1 / ratio : 1;
}

} // namespace

SettingsRow::SettingsRow(RowText text, QWidget* control, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
    , m_control(control)
    , m_line(new QHBoxLayout(this))
    , m_name(new TextLabel(TextRole::name, m_text.name))
    , m_caption(new TextLabel(TextRole::caption))
{
    m_line->setContentsMargins(rowSide, rowVertical, rowSide, rowVertical);
    m_line->setSpacing(rowGap);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(captionGap);
    texts->addStretch(1);
    for (TextLabel* label : {m_name, m_caption}) {
        label->setWordWrap(true);
        texts->addWidget(label);
    }
    texts->addStretch(1);
    m_line->addLayout(texts, 1);
    m_line->addWidget(m_control, 0, Qt::AlignVCenter);
    connect(&AppLook::shared(), &AppLook::changed, this, &SettingsRow::dress);
    if (!qobject_cast<QPushButton*>(m_control)) {
        const QString& name = m_text.spoken.isEmpty() ? m_text.name : m_text.spoken;
        if (auto* segments = qobject_cast<Segments*>(m_control))
            segments->setAccessibleName(name);
        else
            spokenControl()->setAccessibleName(name);
    }
    setCaption(m_text.caption);
}

void SettingsRow::setCaption(const QString& caption, bool failure)
{
    m_text.caption = caption;
    m_caption->setText(caption);
    m_caption->setTone(failure ? TextLabel::Tone::danger : TextLabel::Tone::soft);
    m_caption->setVisible(!caption.isEmpty());
    spokenControl()->setAccessibleDescription(caption);
    dress();
}

/// What assistive technology meets: of several parts the one that is typed into.
QWidget* SettingsRow::spokenControl() const
{
    return m_control->focusProxy() && !qobject_cast<Segments*>(m_control) ? m_control->focusProxy() : m_control;
}

void SettingsRow::dress()
{
    setMinimumHeight(AppLook::shared().scaled(m_text.caption.isEmpty() ? leastRow : leastCaptionedRow));
}

void SettingsRow::setUnavailable(const QString& why)
{
    m_control->setEnabled(why.isEmpty());
    m_control->setToolTip(why);
    m_name->setToolTip(why);
}

void SettingsRow::work()
{
    if (!m_control->isEnabled())
        return;
    if (auto* button = qobject_cast<QAbstractButton*>(m_control)) {
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
    auto* heading = new TextLabel(TextRole::heading, title);
    heading->setContentsMargins(2, 0, 0, headingBelow);
    m_column->addWidget(heading);
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
    const double line = hairlineWidth(painter);
    painter.setBrush(colours.surface);
    painter.setPen(QPen(colours.hairline, line));
    painter.drawRoundedRect(plate.adjusted(line / 2, line / 2, -line / 2, -line / 2), groupCorner, groupCorner);
    for (const QWidget* row : m_rows) {
        if (!row->isHidden() && row->y() > qRound(plate.top()))
            painter.fillRect(QRectF(plate.left(), row->y(), plate.width(), line), colours.hairline);
    }
}

} // namespace ambrelle
