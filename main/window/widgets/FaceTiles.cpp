// SPDX-License-Identifier: MIT

#include "window/widgets/FaceTiles.h"

#include "desktop/WidgetManager.h"
#include "foundation/BackgroundThread.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "offline/DesktopSnapshots.h"
#include "offline/SampleData.h"
#include "offline/SampleWorld.h"
#include "services/LiveServices.h"
#include "wallpapers/WallpaperStore.h"

#include <QAbstractItemView>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr int keptLayers = 2 * 1024; // kilobytes

std::optional<WidgetKind> kindOnCard(const QModelIndex& index)
{
    return parse<WidgetKind>(cardAt(index).picture);
}

} // namespace

FaceTiles::FaceTiles(const WindowContext& context, QAbstractItemView& view)
    : CardPictures(&view)
    , m_with(context)
    , m_view(view)
    , m_skin(context.settings.defaultSkin())
    , m_layers(std::make_shared<LayerCache>(keptLayers))
{
    view.installEventFilter(this);
    connect(&m_with.feed, &ReadingFeed::changed, this, &FaceTiles::markStale);
    connect(&m_with.accents, &ThemeAccent::changed, this, &FaceTiles::redoAll);
    connect(&m_with.thumbnails, &WallpaperStore::changed, this, [this](Skin skin) {
        if (skin == m_skin)
            drawNext();
    });
}

bool FaceTiles::isActive() const
{
    return m_view.isVisible() && !m_view.window()->isMinimized();
}

bool FaceTiles::isSeen(WidgetKind kind) const
{
    return std::ranges::any_of(m_wanted, [&](const QPersistentModelIndex& index) {
        return kindOnCard(index) == kind && m_view.visualRect(index).intersects(m_view.viewport()->rect());
    });
}

bool FaceTiles::looksOutdated(WidgetKind kind) const
{
    return contains(m_outdated, kind) || !m_shown.value(kind).reading; // one that could not be drawn is no reason
}

void FaceTiles::setSkin(Skin skin)
{
    if (std::exchange(m_skin, skin) == skin)
        return;
    m_wallpaper = {};
    redoAll();
}

void FaceTiles::redoAll()
{
    ++m_edition;
    m_outdated.set();
    m_layers = std::make_shared<LayerCache>(keptLayers);
    refreshSoon();
}

/// Nothing where the sample says more: there is a notice, or nobody measures.
std::optional<Reading> FaceTiles::live(WidgetKind kind) const
{
    const bool stops = contains(kindSet({WidgetKind::processes, WidgetKind::activity, WidgetKind::nowPlaying}), kind);
    const auto shows = [kind](const WidgetController* widget) { return widget->config().kind == kind; };
    if (stops && std::ranges::none_of(m_with.manager.controllers(), shows))
        return std::nullopt;
    if (kind == WidgetKind::sky && !m_with.services.weather.snapshot())
        return std::nullopt;
    WidgetConfig config(kind, m_skin);
    config.id = {};
    Reading reading = m_with.feed.readingFor(config);
    return noticeOf(reading) ? std::nullopt : std::optional(std::move(reading));
}

std::shared_ptr<const Reading> FaceTiles::reading(WidgetKind kind) const
{
    if (std::optional<Reading> now = live(kind))
        return std::make_shared<const Reading>(*std::move(now));
    return m_samples.value(kind);
}

void FaceTiles::borrowSamples()
{
    if (!m_samples.isEmpty() || m_samplesComing)
        return;
    m_samplesComing = m_with.snapshots.borrowSamples([this](const SampleWorld& world) {
        for (const WidgetKind kind : allCases<WidgetKind>())
            m_samples[kind] = std::make_shared<const Reading>(world.readingFor(SampleData::widget(kind), false));
        refreshSoon();
    });
}

QPixmap FaceTiles::picture(const QModelIndex& index, QSize devicePixels)
{
    const std::optional<WidgetKind> kind = kindOnCard(index);
    if (!kind)
        return {};
    const QPixmap& pixmap = m_shown[*kind].pixmap;
    if (pixmap.isNull() || pixmap.size() != devicePixels || contains(m_stale, *kind))
        refreshSoon(); // it may have just come into view
    return pixmap;
}

void FaceTiles::want(const QList<QModelIndex>& indexes, QSize devicePixels)
{
    m_wanted = {indexes.begin(), indexes.end()};
    for (const WidgetKind kind : std::exchange(m_due, {})) // in the order of what is seen now
        m_stale.set(static_cast<std::size_t>(kind));
    if (std::exchange(m_pixels, devicePixels) != devicePixels)
        redoAll();
    refreshSoon();
}

void FaceTiles::markStale(const WidgetKinds& kinds)
{
    m_stale |= kinds;
    if (isActive() && std::ranges::any_of(m_wanted, [&](const QPersistentModelIndex& index) {
            const std::optional<WidgetKind> kind = kindOnCard(index);
            return kind && contains(kinds, *kind);
        }))
        refreshSoon();
}

/// Never within a paint. New data wait until the pictures are old enough, a new look does not.
void FaceTiles::refreshSoon()
{
    if (!isActive() || m_isRefreshing)
        return;
    const bool isOnlyData = std::ranges::all_of(m_wanted, [&](const QPersistentModelIndex& index) {
        const std::optional<WidgetKind> kind = kindOnCard(index);
        return !kind || !looksOutdated(*kind);
    });
    const auto age = std::chrono::milliseconds(qRound((m_with.clock.elapsed() - m_refreshed) * 1000));
    if (isOnlyData && age < leastAge) {
        if (!m_nextRefresh)
            m_nextRefresh = m_with.clock.after(leastAge - age, [this] { refresh(); });
        return;
    }
    m_isRefreshing = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRefreshing = false;
            refresh();
        },
        Qt::QueuedConnection);
}

void FaceTiles::refresh()
{
    m_nextRefresh.reset();
    if (!isActive() || m_wanted.isEmpty())
        return; // the view tells what it shows when it is painted
    m_refreshed = m_with.clock.elapsed();
    borrowSamples();
    for (const QPersistentModelIndex& index : std::as_const(m_wanted)) {
        const std::optional<WidgetKind> kind = kindOnCard(index);
        if (!kind || m_due.contains(*kind) || m_drawing == kind)
            continue;
        const Shown& shown = m_shown[*kind];
        const bool looksOther = looksOutdated(*kind);
        if (!looksOther && (!contains(m_stale, *kind) || !isSeen(*kind)))
            continue;
        const std::shared_ptr<const Reading> now = reading(*kind);
        if (!now)
            continue;
        m_stale.reset(static_cast<std::size_t>(*kind));
        if (looksOther || !shown.reading || *shown.reading != *now)
            m_due.append(*kind);
    }
    drawNext();
}

void FaceTiles::drawNext()
{
    if (m_drawing || m_due.isEmpty() || m_pixels.isEmpty() || !isActive())
        return;
    const QByteArray packed = m_wallpaper.isNull() ? m_with.thumbnails.packed(m_skin) : QByteArray();
    if (m_wallpaper.isNull() && packed.isEmpty())
        return; // it comes, and brings us back here
    const WidgetKind kind = m_due.takeFirst();
    const FaceTile tile = FaceTile::of(kind, m_skin, reading(kind));
    const bool failed = m_with.thumbnails.hasFailed(m_skin);
    const auto work = [tile, packed, failed, wallpaper = m_wallpaper, layers = m_layers, pixels = m_pixels,
                          ratio = m_view.devicePixelRatioF()] {
        yieldToOthers();
        const QImage behind = wallpaper.isNull() ? ImageDiskCache::unpacked(packed) : wallpaper;
        return Drawn{tile.picture(pixels, ratio, failed ? QImage() : behind, *layers), behind};
    };
    m_drawing = kind;
    m_worker.run(work, [this, kind, tile, edition = m_edition](const Drawn& result) {
        m_drawing.reset();
        drawn(kind, edition, tile, result);
        drawNext();
    });
}

void FaceTiles::drawn(WidgetKind kind, int edition, const FaceTile& tile, const Drawn& result)
{
    if (edition != m_edition)
        return refreshSoon(); // outdated while it was drawn
    if (isActive())
        m_wallpaper = result.wallpaper;
    m_outdated.reset(static_cast<std::size_t>(kind));
    m_shown[kind] = {QPixmap::fromImage(result.image), tile.reading};
    Q_EMIT arrived(rawValue(kind));
}

/// While nobody sees the pictures, they are all that is kept.
void FaceTiles::rest()
{
    m_nextRefresh.reset();
    m_due.clear();
    m_wallpaper = {};
    m_layers = std::make_shared<LayerCache>(keptLayers);
    m_stale.set();
}

bool FaceTiles::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        rest();
    else if (event->type() == QEvent::Show)
        refreshSoon();
    return CardPictures::eventFilter(watched, event);
}

} // namespace ambrelle
