// SPDX-License-Identifier: MIT

#include "window/look/Segments.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"
#include "window/look/Transitions.h"
#include "window/look/WindowStyle.h"

#include <QButtonGroup>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = 2; // between the track and a segment
constexpr int segmentMargin = 11; // left and right of what a segment shows
constexpr int leastSegmentMargin = 5;
constexpr int segmentGap = 6; // between symbol, word and count
constexpr int segmentSymbol = 16;
constexpr double trackCorner = 9;
constexpr double segmentCorner = 7;

QList<Segments::Item> itemsOf(const QStringList& titles)
{
    QList<Segments::Item> items;
    for (const QString& title : titles)
        items.append({title, {}, std::nullopt});
    return items;
}

} // namespace

Segments::Segments(const QList<Item>& items, QWidget* parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
    , m_leastHeight(WindowStyle::controlHeight)
{
    for (const Item& item : items) {
        auto* segment = new Segment(item, this);
        m_group->addButton(segment, static_cast<int>(m_segments.size()));
        m_segments.append(segment);
        setFocusProxy(m_segments.first());
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto dress = [this] { setFont(AppLook::shared().font(TextRole::name)); };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
    dress();
    // Arrow keys check a button without clicking it, so the change itself is what counts.
    connect(m_group, &QButtonGroup::idToggled, this, [this](int index, bool checked) {
        if (!checked)
            return;
        setFocusProxy(m_segments[index]);
        arrange();
        Q_EMIT chose(index);
    });
}

Segments::Segments(const QStringList& titles, QWidget* parent)
    : Segments(itemsOf(titles), parent)
{
}

void Segments::setChosen(int index)
{
    QAbstractButton* button = m_group->button(index);
    if (!button || button->isChecked())
        return;
    const QSignalBlocker quiet(this);
    button->setChecked(true);
}

int Segments::chosen() const
{
    return m_group->checkedId();
}

void Segments::setCount(int index, std::optional<int> count)
{
    if (!m_segments[index]->setCount(count))
        return;
    updateGeometry();
    arrange();
}

void Segments::setAccessibleName(const QString& name)
{
    QWidget::setAccessibleName(name);
    for (QAbstractButton* button : m_group->buttons())
        button->setAccessibleName(u"%1: %2"_s.arg(name, button->text()));
}

void Segments::setLeastHeight(int height)
{
    m_leastHeight = height;
    updateGeometry();
}

int Segments::widthOf(Fold fold) const
{
    int width = 2 * inset;
    for (const Segment* segment : m_segments)
        width += segment->widthOf({.word = fold != Fold::words || segment->isChecked() || !segment->folds(),
            .count = fold == Fold::none || segment->isChecked()});
    return width;
}

QSize Segments::sizeHint() const
{
    return {widthOf(Fold::none), std::max(m_leastHeight, fontMetrics().height() + 2 * WindowStyle::verticalPadding)};
}

QSize Segments::minimumSizeHint() const
{
    const int squeezed = 2 * (segmentMargin - leastSegmentMargin) * static_cast<int>(m_segments.size());
    return {widthOf(Fold::words) - squeezed, sizeHint().height()};
}

/// Shows as much as fits, and shares out what is left or lacking.
void Segments::arrange()
{
    const Fold fold = widthOf(Fold::none) <= width() ? Fold::none
        : widthOf(Fold::counts) <= width()           ? Fold::counts
                                                     : Fold::words;
    const int count = std::max(1, static_cast<int>(m_segments.size()));
    int left = inset;
    int spare = width() - widthOf(fold);
    for (qsizetype index = 0; index < m_segments.size(); ++index) {
        Segment* segment = m_segments[index];
        const Segment::Parts parts{.word = fold != Fold::words || segment->isChecked() || !segment->folds(),
            .count = fold == Fold::none || segment->isChecked()};
        const int share = spare / (count - static_cast<int>(index));
        spare -= share;
        const QRect place(left, inset, segment->widthOf(parts) + share, height() - 2 * inset);
        segment->show(parts);
        segment->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        left += place.width();
    }
}

void Segments::resizeEvent(QResizeEvent*)
{
    arrange();
}

void Segments::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        arrange();
    }
}

void Segments::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(AppLook::shared().colours().track);
    painter.drawRoundedRect(rect(), trackCorner, trackCorner);
}

Segment::Segment(const Segments::Item& item, QWidget* parent)
    : QRadioButton(item.title, parent)
    , m_symbol(item.symbol)
    , m_count(item.count)
{
    setAttribute(Qt::WA_Hover);
}

QString Segment::countText(Parts parts) const
{
    return parts.count && parts.word && m_count ? locale().toString(*m_count) : QString();
}

int Segment::widthOf(Parts parts) const
{
    int width = 2 * segmentMargin;
    if (!m_symbol.isEmpty())
        width += AppLook::shared().scaled(segmentSymbol) + (parts.word ? segmentGap : 0);
    if (parts.word)
        width += fontMetrics().horizontalAdvance(text());
    if (const QString count = countText(parts); !count.isEmpty())
        width += segmentGap + fontMetrics().horizontalAdvance(count);
    return width;
}

void Segment::show(Parts parts)
{
    m_parts = parts;
    setToolTip(parts.word ? QString() : text());
    update();
}

bool Segment::setCount(std::optional<int> count)
{
    return std::exchange(m_count, count) != count;
}

void Segment::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppColours& colours = AppLook::shared().colours();
    const double hovered = transition(this, MovingPart::hover, isEnabled() && underMouse() ? 1 : 0);
    if (isChecked() || hovered > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? colours.chosenSegment : faded(colours.text, 0.06 * hovered));
        painter.drawRoundedRect(rect(), segmentCorner, segmentCorner);
    }
    const QColor ink = isEnabled() ? colours.text : colours.faint;
    const int spare = width() - widthOf(m_parts); // below 0 where it is narrow
    int left = segmentMargin + spare / 2;
    const auto placed = [&](int wide) {
        const QRect place(left, 0, wide, height());
        left += wide + segmentGap;
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    if (!m_symbol.isEmpty()) {
        const int side = AppLook::shared().scaled(segmentSymbol);
        QRectF place(0, 0, side, side);
        place.moveCenter(QRectF(placed(side)).center());
        paintSymbol(painter, place, m_symbol, ink);
    }
    painter.setPen(ink);
    if (m_parts.word)
        painter.drawText(placed(fontMetrics().horizontalAdvance(text())),
            static_cast<int>(Qt::AlignCenter)
                | (text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight), // "°C" in Arabic too
            text());
    if (const QString count = countText(m_parts); !count.isEmpty()) {
        painter.setPen(isEnabled() ? colours.soft : colours.faint);
        painter.drawText(placed(fontMetrics().horizontalAdvance(count)), Qt::AlignCenter, count);
    }
    if (hasFocus() && FocusRing::shared().isShown()) {
        const double width = AppLook::shared().ringWidth();
        WindowStyle::drawRing(
            painter, QRectF(rect()).adjusted(width, width, -width, -width), segmentCorner - width, colours.accent);
    }
}

} // namespace ambrelle
