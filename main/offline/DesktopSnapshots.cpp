// SPDX-License-Identifier: MIT

#include "offline/DesktopSnapshots.h"

#include "drawing/Kept.h"
#include "foundation/BackgroundThread.h"
#include "model/ThemeAccent.h"
#include "services/PictureDecoder.h"

#include <QCryptographicHash>
#include <QDataStream>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize mostOfPhoto{700, 340}; // pixels: a wide widget's twice over

QString fingerprint(const SavedTheme& theme)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    for (const SavedWidget& widget : theme.widgets)
        stream << WidgetConfig::encodeList({widget.config}) << widget.fx << widget.fy;
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
}

/// What the disk keeps of a drawn miniature, or would.
PackedPicture packedAt(const QString& url, const QImage& image)
{
    const QByteArray jpeg = ImageDiskCache::packed(image);
    return url.isEmpty() ? PackedPicture{jpeg} : ImageDiskCache::writePacked(jpeg, url);
}

DesktopSnapshots::Accents accentsIn(const DesktopSnapshots::Desktop& desktop, const ThemeAccent& all)
{
    DesktopSnapshots::Accents accents;
    if (const Skin* skin = std::get_if<Skin>(&desktop)) {
        accents[*skin] = all.color(*skin);
    } else {
        for (const SavedWidget& widget : std::get<SavedTheme>(desktop).widgets)
            accents[widget.config.skin] = all.color(widget.config.skin);
    }
    return accents;
}

QString keyOf(const DesktopSnapshots::Desktop& desktop)
{
    if (const Skin* skin = std::get_if<Skin>(&desktop))
        return u"preset-"_s + rawValue(*skin);
    const SavedTheme& theme = std::get<SavedTheme>(desktop);
    return u"saved-%1-%2"_s.arg(theme.id.toString(QUuid::WithoutBraces), fingerprint(theme));
}

/// Runs `body` while each of the skins shows that accent.
void withAccents(ThemeAccent& accents, DesktopSnapshots::Accents wanted, const std::function<void()>& body)
{
    if (wanted.isEmpty())
        return body();
    const Skin skin = wanted.firstKey();
    const std::optional<QColor> colour = wanted.take(skin);
    accents.withPreview(colour, skin, [&] { withAccents(accents, wanted, body); });
}

} // namespace

DesktopSnapshots::DesktopSnapshots(Collaborators with)
    : m_with(std::move(with))
{
}

DesktopSnapshots::~DesktopSnapshots() = default;

DesktopSnapshots::Wish DesktopSnapshots::wish(const Desktop& desktop) const
{
    Wish wish{keyOf(desktop), desktop, accentsIn(desktop, m_with.accents)};
    for (auto accent = wish.accents.cbegin(); accent != wish.accents.cend(); ++accent) {
        if (*accent)
            wish.key += u'-' + rawValue(accent.key()) + hexText(**accent);
    }
    return wish;
}

QString DesktopSnapshots::urlOf(const Wish& wish) const
{
    const Skin* skin = std::get_if<Skin>(&wish.desktop);
    return skin && !wish.accents.value(*skin) ? m_with.cache.url(wish.key) : QString();
}

QImage DesktopSnapshots::image(const Desktop& desktop)
{
    return ImageDiskCache::unpacked(packed(wish(desktop)));
}

QByteArray DesktopSnapshots::packed(const Wish& wish)
{
    if (!m_known.contains(wish.key)) {
        m_known.insert(wish.key);
        enqueue({wish, pixels});
    }
    return m_images.value(wish.key).jpeg;
}

void DesktopSnapshots::drop(const QString& key)
{
    const auto isDropped = [&](const Job& job) { return !job.done && job.wish.key == key; };
    if (m_queued.removeIf(isDropped) > 0)
        m_known.remove(key);
}

Ticket DesktopSnapshots::draw(const Wish& wish, const QSize& size, Done done)
{
    auto kept = std::make_shared<Done>(std::move(done));
    enqueue({wish, size, kept});
    return Ticket([kept] { *kept = nullptr; });
}

void DesktopSnapshots::renderPresetsNow()
{
    for (const Skin skin : allCases<Skin>()) {
        const Wish wanted = wish(skin);
        if (m_images.contains(wanted.key))
            continue;
        drop(wanted.key);
        const QString url = urlOf(wanted);
        PackedPicture packed = ImageDiskCache::readPacked(url, pixels);
        if (packed.jpeg.isEmpty()) {
            if (!m_world)
                makeWorld(PictureDecoder::covering(m_with.samplePhoto(), mostOfPhoto));
            packed = packedAt(url, canvasOf(wanted).picture(pixels, m_with.wallpaper));
        }
        keep(wanted.key, packed);
    }
}

void DesktopSnapshots::release()
{
    m_queued.removeIf([this](const Job& job) { return !job.done && m_known.remove(job.wish.key); });
    for (const QString& key : m_images.keys()) {
        if (!m_images[key].isOnDisk)
            continue;
        m_images.remove(key);
        m_known.remove(key);
    }
    m_known.subtract(std::exchange(m_failed, {}));
    m_isReleased = true;
    if (!m_working)
        m_world.reset();
}

Ticket DesktopSnapshots::borrowSamples(std::function<void(const SampleWorld&)> done)
{
    m_isReleased = false;
    auto kept = std::make_shared<std::function<void(const SampleWorld&)>>(std::move(done));
    awaitWorld([this, kept] {
        if (const auto lend = *kept)
            lend(*m_world);
    });
    return Ticket([kept] { *kept = nullptr; });
}

void DesktopSnapshots::enqueue(Job job)
{
    m_isReleased = false;
    m_queued.append(std::move(job));
    drain();
}

void DesktopSnapshots::drain()
{
    if (m_working)
        return;
    m_queued.removeIf([](const Job& job) { return job.done && !*job.done; });
    if (m_queued.isEmpty()) {
        if (m_isReleased)
            m_world.reset();
        return;
    }
    m_working = m_queued.takeFirst();
    const QString url = urlOf(m_working->wish);
    if (m_working->done || url.isEmpty())
        return paint();
    m_worker.run(
        [url] {
            yieldToOthers();
            return ImageDiskCache::readPacked(url, pixels);
        },
        [this](const PackedPicture& kept) {
            if (kept.jpeg.isEmpty())
                paint();
            else
                finish({.packed = kept});
        });
}

// What is read and decided is done here, what takes long elsewhere: the faces draw from values.
void DesktopSnapshots::paint()
{
    if (!m_world)
        return awaitWorld([this] { paint(); });
    const auto work = [canvas = canvasOf(m_working->wish), wallpaper = m_with.wallpaper, size = m_working->pixels,
                          url = urlOf(m_working->wish), isKept = !m_working->done] {
        yieldToOthers();
        const QImage image = canvas.picture(size, wallpaper, 1);
        Made made = isKept ? Made{{}, packedAt(url, image)} : Made{image};
        forgetKept(); // the next desktop has other fonts and texts as a rule; else memory would stay in shreds
        return made;
    };
    m_worker.run(work, [this](const Made& made) { finish(made); });
}

void DesktopSnapshots::awaitWorld(std::function<void()> then)
{
    if (m_world)
        return then();
    m_awaitingWorld.append(std::move(then));
    if (m_awaitingWorld.size() > 1)
        return;
    const auto photo = [make = m_with.samplePhoto] {
        yieldToOthers();
        return PictureDecoder::covering(make(), mostOfPhoto);
    };
    m_worker.run(photo, [this](const QImage& image) {
        if (!m_world)
            makeWorld(image);
        for (const auto& each : std::exchange(m_awaitingWorld, {}))
            each();
        if (m_isReleased && !m_working)
            m_world.reset();
    });
}

void DesktopSnapshots::makeWorld(const QImage& photo)
{
    m_world = std::make_unique<SampleWorld>(m_with.makeMachine, photo);
}

DesktopCanvas DesktopSnapshots::canvasOf(const Wish& wish) const
{
    std::optional<DesktopCanvas> canvas;
    withAccents(m_with.accents, wish.accents, [&] {
        canvas = std::visit([&](const auto& desktop) { return DesktopCanvas::of(desktop, *m_world); }, wish.desktop);
    });
    return *canvas;
}

void DesktopSnapshots::finish(const Made& made)
{
    const Job job = *std::exchange(m_working, std::nullopt);
    drain();
    if (!job.done)
        keep(job.wish.key, made.packed);
    else if (const Done done = *job.done) // its ticket may go meanwhile
        done(made.image);
}

void DesktopSnapshots::keep(const QString& key, const PackedPicture& packed)
{
    if (m_images.contains(key))
        return; // made on this thread meanwhile
    m_known.insert(key);
    if (packed.jpeg.isEmpty())
        m_failed.insert(key);
    else
        m_images.insert(key, packed);
    Q_EMIT changed(key);
}

} // namespace ambrelle
