// SPDX-License-Identifier: MIT

#include "window/look/Segments.h"

#include "drawing/Colours.h"
#include "window/look/WindowStyle.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = 2; // between the track and a segment
constexpr int textMargin = 8;

} // namespace

Segments::Segments(const QStringList& titles, QWidget* parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(inset, inset, inset, inset);
    row->setSpacing(0);
    for (const QString& title : titles) {
        auto* segment = new Segment(title, this);
        m_group->addButton(segment, static_cast<int>(m_group->buttons().size()));
        row->addWidget(segment, 1);
        setFocusProxy(m_group->button(0));
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Arrow keys check a button without clicking it, so the change itself is what counts.
    connect(m_group, &QButtonGroup::idToggled, this, [this](int index, bool checked) {
        if (checked)
            Q_EMIT chose(index);
    });
}

void Segments::setChosen(int index)
{
    QAbstractButton* button = m_group->button(index);
    if (!button || button->isChecked())
        return;
    const QSignalBlocker quiet(this);
    button->setChecked(true);
    setFocusProxy(button);
}

int Segments::chosen() const
{
    return m_group->checkedId();
}

void Segments::setAccessibleName(const QString& name)
{
    QWidget::setAccessibleName(name);
    for (QAbstractButton* button : m_group->buttons())
        button->setAccessibleName(u"%1: %2"_s.arg(name, button->text()));
}

void Segments::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(WindowStyle::track(palette()));
    painter.drawRoundedRect(rect(), WindowStyle::corner, WindowStyle::corner);
}

QSize Segment::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * textMargin, WindowStyle::controlHeight - 2 * inset};
}

void Segment::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double corner = WindowStyle::corner - inset;
    const QPalette colours = palette();
    if (isChecked() || underMouse()) {
        const QColor ground =
            colours.color(QPalette::Base).lightness() > 128 ? colours.color(QPalette::Base) : QColor(0x5d, 0x58, 0x67);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? ground : faded(ground, 0.4));
        painter.drawRoundedRect(rect(), corner, corner);
    }
    painter.setPen(colours.color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (hasFocus())
        WindowStyle::drawRing(painter, rect(), corner, colours);
}

} // namespace ambrelle
