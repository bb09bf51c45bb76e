// SPDX-License-Identifier: MIT

#include "window/popover/DateField.h"

#include "foundation/Wording.h"
#include "window/look/SymbolIcon.h"
#include "window/look/WindowStyle.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// As the language writes dates and times, to the minute.
QString momentFormat(const QLocale& locale)
{
    QString date = locale.dateFormat(QLocale::ShortFormat);
    if (!date.contains("yyyy"_L1))
        date.replace("yy"_L1, "yyyy"_L1); // of two digits the toolkit makes a year of the last century
    return date + "  "_L1 + locale.timeFormat(QLocale::ShortFormat).remove(":ss"_L1);
}

/// In the colours of the palette, whatever the toolkit likes for weekends.
void dress(QCalendarWidget& calendar)
{
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        calendar.setWeekdayTextFormat(day, {});
    const QColor ink = calendar.palette().color(QPalette::HighlightedText);
    const bool mirrored = calendar.isRightToLeft();
    for (const auto& [name, symbol] :
        {std::pair("qt_calendar_prevmonth", mirrored ? u"chevron.right"_s : u"chevron.left"_s),
            std::pair("qt_calendar_nextmonth", mirrored ? u"chevron.left"_s : u"chevron.right"_s)}) {
        if (auto* button = calendar.findChild<QToolButton*>(QString::fromLatin1(name)))
            button->setIcon(symbolIcon(symbol, ink));
    }
}

} // namespace

DateField::DateField(const QString& invitation, std::function<QDateTime()> fresh, QWidget* parent)
    : QStackedWidget(parent)
    , m_set(new QPushButton(invitation))
    , m_edit(new QDateTimeEdit)
    , m_clear(new QPushButton)
{
    m_edit->setCalendarPopup(true);
    m_edit->setDisplayFormat(momentFormat(m_edit->locale()));
    dress(*m_edit->calendarWidget());
    m_clear->setIcon(symbolIcon(u"xmark"_s));
    m_clear->setFixedSize(WindowStyle::controlHeight, WindowStyle::controlHeight);
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(m_edit, 1);
    row->addWidget(m_clear);
    addWidget(m_set);
    addWidget(both);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_set, &QPushButton::clicked, this, [this, fresh = std::move(fresh)] {
        Q_EMIT chose(fresh());
        m_edit->setFocus();
    });
    connect(m_edit, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& moment) { Q_EMIT chose(moment); });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        Q_EMIT chose(std::nullopt);
        m_set->setFocus();
    });
}

void DateField::setMoment(const std::optional<QDateTime>& moment)
{
    if (moment && moment->isValid()) {
        const QSignalBlocker quiet(m_edit);
        if (m_edit->dateTime() != *moment) // the same again would end what is being typed
            m_edit->setDateTime(moment->toLocalTime());
    }
    setCurrentIndex(moment && moment->isValid() ? 1 : 0);
}

void DateField::setAccessibleName(const QString& name)
{
    QWidget::setAccessibleName(name);
    m_set->setAccessibleName(Wording::tr("%1: %2").arg(name, m_set->text()));
    m_edit->setAccessibleName(name);
    m_clear->setAccessibleName(Wording::tr("%1: Clear").arg(name));
}

} // namespace ambrelle
