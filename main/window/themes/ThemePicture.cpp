// SPDX-License-Identifier: MIT

#include "window/themes/ThemePicture.h"

#include "drawing/Colours.h"
#include "foundation/Clock.h"
#include "foundation/Wording.h"
#include "window/cards/PictureShelf.h"
#include "window/look/AccessibleRole.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"

#include <QPainter>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds settleTime{200}; // after the last change of the size
constexpr int arrivalTime = 250; // milliseconds
constexpr double failedSymbol = 24;

bool isSameDesktop(const DesktopSnapshots::Wish& one, const DesktopSnapshots::Wish& other)
{
    const auto* saved = std::get_if<SavedTheme>(&one.desktop);
    const auto* otherSaved = std::get_if<SavedTheme>(&other.desktop);
    if (saved && otherSaved)
        return saved->id == otherSaved->id;
    return one.desktop == other.desktop;
}

PictureOrder miniatureOf(const DesktopSnapshots::Wish& wish)
{
    return {PictureKey::desktop(wish), DesktopSnapshots::pixels, 0};
}

} // namespace

ThemePicture::ThemePicture(PictureShelf& shelf, DesktopSnapshots& snapshots, Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_shelf(shelf)
    , m_snapshots(snapshots)
    , m_clock(clock)
    , m_arrival(new QVariantAnimation(this))
{
    setAccessibleRole(*this, QAccessible::Graphic);
    m_arrival->setStartValue(0.0);
    m_arrival->setEndValue(1.0);
    m_arrival->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_arrival, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_shelf, &PictureShelf::arrived, this, [this](const PictureKey& key) {
        if (wanted() && key.name == wanted()->key)
            update();
    });
}

ThemePicture::~ThemePicture() = default;

const DesktopSnapshots::Wish* ThemePicture::wanted() const
{
    return m_trial ? &*m_trial : m_wish ? &*m_wish : nullptr;
}

QSize ThemePicture::pixels() const
{
    const QSizeF size = QSizeF(this->size()) * devicePixelRatioF();
    return {static_cast<int>(size.width()), static_cast<int>(size.height())};
}

void ThemePicture::setDesktop(const DesktopSnapshots::Wish& wish, const QColor& ground)
{
    if (!m_wish || !isSameDesktop(*m_wish, wish)) {
        m_last = {};
        m_waited = false;
        m_arrival->stop();
    }
    m_wish = wish;
    m_ground = ground;
    request();
    update();
}

void ThemePicture::setTrial(const std::optional<DesktopSnapshots::Wish>& wish)
{
    m_trial = wish;
    request();
    update();
}

const ThemePicture::Exact* ThemePicture::exact() const
{
    const auto found = std::ranges::find_if(m_exact, [&](const Exact& each) { return each.key == wanted()->key; });
    return found == m_exact.end() ? nullptr : &*found;
}

bool ThemePicture::isExact() const
{
    return wanted() && exact() && exact()->pixmap.size() == pixels();
}

/// Has drawn what is wanted and not there.
void ThemePicture::request()
{
    if (!isVisible() || !wanted() || pixels().isEmpty())
        return;
    const DesktopSnapshots::Wish& wish = *wanted();
    // A trial is drawn once only, while the desktop's own picture is still shown.
    if (m_trial)
        m_shelf.setWanted(*this, {});
    else
        m_shelf.setWanted(*this, {miniatureOf(wish)});
    const bool isThere = exact() && (exact()->pixmap.isNull() || isExact());
    if (isThere) {
        m_drawnKey.clear();
        m_drawing.reset();
        return;
    }
    if (m_drawing && m_drawnKey == wish.key && m_drawnPixels == pixels())
        return;
    m_drawnKey = wish.key;
    m_drawnPixels = pixels();
    m_drawing.reset();
    m_drawing =
        m_snapshots.draw(wish, m_drawnPixels, [this, key = wish.key](const QImage& image) { receive(key, image); });
}

void ThemePicture::receive(const QString& key, const QImage& image)
{
    m_exact.removeIf([&](const Exact& each) {
        return each.key == key || !((m_wish && each.key == m_wish->key) || (m_trial && each.key == m_trial->key));
    });
    m_exact.append({key, QPixmap::fromImage(image)});
    m_drawnKey.clear();
    update();
}

QPixmap ThemePicture::shown()
{
    if (!wanted())
        return {};
    if (const Exact* drawn = exact(); drawn && !drawn->pixmap.isNull())
        return drawn->pixmap;
    const PictureOrder miniature = miniatureOf(*wanted());
    QPixmap whole =
        m_trial ? m_shelf.standIn(miniature.key) : m_shelf.picture(miniature.key, miniature.pixels, miniature.corner);
    if (!whole.isNull())
        return whole;
    if (!m_last.isNull())
        return m_last; // in other accents
    return m_shelf.standIn(miniature.key);
}

void ThemePicture::setHeldBack(bool heldBack)
{
    if (std::exchange(m_isHeldBack, heldBack) != heldBack)
        parentWidget()->update(); // its shadow too
}

void ThemePicture::drop()
{
    m_drawing.reset();
    m_settling.reset();
    m_drawnKey.clear();
    m_exact.clear();
    m_last = {};
    m_waited = false;
    m_arrival->stop();
    m_shelf.setWanted(*this, {});
}

void ThemePicture::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    request();
}

void ThemePicture::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        drop();
}

void ThemePicture::resizeEvent(QResizeEvent*)
{
    m_settling.reset();
    if (m_last.isNull())
        request();
    else
        m_settling = m_clock.after(settleTime, [this] { request(); });
}

void ThemePicture::paintEvent(QPaintEvent*)
{
    if (std::exchange(m_pixelRatio, devicePixelRatioF()) != devicePixelRatioF())
        request(); // another screen, or this one in another scale
    if (m_isHeldBack)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const AppLook& look = AppLook::shared();
    const QPixmap picture = shown();
    const bool moves = m_waited && !picture.isNull() && look.milliseconds(arrivalTime) > 0;
    if (moves) {
        m_arrival->setDuration(arrivalTime);
        m_arrival->start();
    }
    m_waited = picture.isNull();
    const QRectF area(rect());
    if (picture.isNull() || m_arrival->state() == QAbstractAnimation::Running) {
        const QColor& plain = look.colours().placeholder;
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_ground.isValid() ? blended(plain, m_ground, 0.5) : plain);
        painter.drawRoundedRect(area, corner, corner);
    }
    const bool failed = picture.isNull() && wanted() && exact();
    setToolTip(failed ? Wording::tr("No preview") : QString());
    if (failed) {
        QRectF symbol(0, 0, failedSymbol, failedSymbol);
        symbol.moveCenter(area.center());
        paintSymbol(painter, symbol, u"photo"_s, look.colours().soft);
    } else if (!picture.isNull()) {
        m_last = picture;
        const bool arriving = m_arrival->state() == QAbstractAnimation::Running;
        painter.setOpacity(arriving ? m_arrival->currentValue().toDouble() : 1);
        paintPicture(painter, picture);
        painter.setOpacity(1);
    }
    paintPictureEdge(painter, area, corner);
}

/// Cut round; one that was drawn for these pixels is not scaled.
void ThemePicture::paintPicture(QPainter& painter, const QPixmap& pixmap) const
{
    const double ratio = devicePixelRatioF();
    const QPointF corner = painter.deviceTransform().map(QPointF());
    const QPointF whole = QPointF(std::round(corner.x()), std::round(corner.y())) - corner;
    painter.save();
    painter.translate(whole / ratio);
    painter.scale(1 / ratio, 1 / ratio);
    const QSize area = pixels();
    QBrush brush(pixmap);
    brush.setTransform(QTransform::fromScale(
        static_cast<double>(area.width()) / pixmap.width(), static_cast<double>(area.height()) / pixmap.height()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(QRect(QPoint(), area), ThemePicture::corner * ratio, ThemePicture::corner * ratio);
    painter.restore();
}

} // namespace ambrelle
