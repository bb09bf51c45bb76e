// SPDX-License-Identifier: MIT

#include "offline/SiteExporter.h"

#include "model/Composition.h"
#include "model/ThemeAccent.h"
#include "offline/BatchOutput.h"
#include "offline/DesktopCanvas.h"
#include "offline/SampleWorld.h"
#include "offline/SiteGallery.h"
#include "offline/SiteLosses.h"
#include "offline/SitePictures.h"
#include "offline/SiteTexts.h"
#include "skins/SkinRegistry.h"
#include "wallpapers/Wallpaper.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace ambrelle::SiteExporter {

using namespace Qt::StringLiterals;

namespace {

constexpr int photoQuality = 82; // percent: of WebP pictures of whole screens
constexpr int faceQuality = 90; // of those with fine text
constexpr qsizetype sceneColours = 4;

/// The text as part of a file's name.
QString slug(const QString& text)
{
    static const QRegularExpression others(u"[^a-z0-9]+"_s);
    const QString lower = text.toLower().replace(others, u"-"_s);
    return lower.startsWith(u'-') ? lower.mid(1) : lower;
}

/// A hundredth of a point is far less than a pixel, and short to write.
double rounded(double points)
{
    return std::round(points * 100) / 100;
}

void placeIn(QJsonObject& entry, const QRectF& place)
{
    entry.insert("x"_L1, rounded(place.x()));
    entry.insert("y"_L1, rounded(place.y()));
    entry.insert("width"_L1, rounded(place.width()));
    entry.insert("height"_L1, rounded(place.height()));
}

class Export {
public:
    Export(BatchOutput& output, const SampleWorld& samples, const Wallpaper& wallpaper)
        : m_output(output)
        , m_samples(samples)
        , m_wallpaper(wallpaper)
    {
    }

    QJsonObject theme(Skin skin);
    QJsonObject accentDemo(Skin skin);

private:
    QJsonObject screenPicture(const QString& name, const QImage& picture);
    QJsonArray layout(Skin skin);
    QJsonArray sprites(Skin skin, const Scene& scene, SitePictures::ColourCount& colours);
    std::shared_ptr<const Reading> reading(const WidgetConfig& config, const FaceView& face) const
    {
        return std::make_shared<const Reading>(m_samples.readingFor(config, face.showsSeconds()));
    }
    void addPng(const QString& name, const QImage& picture)
    {
        m_output.add(name, [picture] { return BatchOutput::png(picture); });
    }

    BatchOutput& m_output;
    const SampleWorld& m_samples;
    const Wallpaper& m_wallpaper;
};

/// As PNG, and with half as many pixels each way as WebP.
QJsonObject Export::screenPicture(const QString& name, const QImage& picture)
{
    const QSize half = picture.size() / 2;
    addPng(name + u".png"_s, picture);
    m_output.add(name + u".webp"_s, [picture, half] {
        return BatchOutput::webp(picture.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), photoQuality);
    });
    return {{u"file"_s, name + u".png"_s}, {u"width"_s, picture.width()}, {u"height"_s, picture.height()},
        {u"webp"_s, name + u".webp"_s}, {u"webpWidth"_s, half.width()}, {u"webpHeight"_s, half.height()}};
}

QJsonArray Export::layout(Skin skin)
{
    QJsonArray entries;
    for (const PlacedWidget& widget : Composition::frames(skin, DesktopCanvas::size)) {
        const WidgetKind kind = widget.config.kind;
        const QString file = u"themes/%1/widgets/%2.png"_s.arg(rawValue(skin), rawValue(kind));
        const FaceView face = view(skin, kind);
        addPng(file, SitePictures::face(face, FaceLook::of(widget.config), reading(widget.config, face)));
        QJsonObject entry{{u"kind"_s, rawValue(kind)}, {u"title"_s, title(kind)}, {u"file"_s, file}};
        placeIn(entry, widget.frame);
        entries.append(entry);
    }
    return entries;
}

QJsonArray Export::sprites(Skin skin, const Scene& scene, SitePictures::ColourCount& colours)
{
    QJsonArray entries;
    for (qsizetype i = 0; i < scene.sprites.size() && !m_output.isStopped(); ++i) {
        const std::optional<SitePictures::Mark> mark = SitePictures::mark(scene, i, DesktopCanvas::size);
        if (!mark)
            continue;
        colours.add(mark->picture);
        const QString& name = scene.sprites[i].name();
        const QString file = u"themes/%1/sprites/%2.png"_s.arg(rawValue(skin), slug(name));
        addPng(file, mark->picture);
        QJsonObject entry{{u"name"_s, name}, {u"file"_s, file}};
        placeIn(entry, mark->place);
        entries.append(entry);
    }
    return entries;
}

QJsonObject Export::theme(Skin skin)
{
    const QString folder = u"themes/%1/"_s.arg(rawValue(skin));
    const DesktopCanvas canvas = DesktopCanvas::of(skin, m_samples);
    const QImage ground = m_wallpaper.picture(skin, (DesktopCanvas::size * SitePictures::scale).toSize());
    QJsonObject entry{
        {u"id"_s, rawValue(skin)},
        {u"title"_s, title(skin)},
        {u"tagline"_s, tagline(skin)},
        {u"group"_s, rawValue(group(skin))},
        {u"light"_s, isLight(skin)},
        {u"accent"_s, hexText(originalAccent(skin))},
        {u"partner"_s, QJsonValue()},
        {u"wallpaper"_s, screenPicture(folder + u"wallpaper"_s, ground)},
        {u"preset"_s, screenPicture(folder + u"preset"_s, canvas.on(ground))},
        {u"layout"_s, layout(skin)},
    };
    if (const std::optional<Skin> partner = appearancePartner(skin))
        entry[u"partner"_s] = QString(rawValue(*partner));
    QStringList kinds;
    for (const QJsonValue& widget : entry[u"layout"_s].toArray())
        kinds.append(widget[u"kind"_s].toString());
    kinds.removeDuplicates();
    entry[u"kinds"_s] = QJsonArray::fromStringList(kinds);

    SitePictures::ColourCount counted;
    entry[u"sprites"_s] = sprites(skin, canvas.scene(), counted);
    QStringList marks;
    for (const QColor& colour : counted.most(sceneColours))
        marks.append(hexText(colour));
    const SkinStyle style = styleOf(skin);
    entry[u"colors"_s] = QJsonObject{{u"ground"_s, hexText(style.ground)}, {u"ink"_s, hexText(style.ink)},
        {u"soft"_s, hexText(style.soft)}, {u"wallpaper"_s, hexText(SitePictures::mean(ground))},
        {u"scene"_s, QJsonArray::fromStringList(marks)}};
    return entry;
}

QJsonObject Export::accentDemo(Skin skin)
{
    const WidgetConfig config(WidgetKind::clock, skin);
    QJsonArray variants;
    for (const AccentChoice& choice : accentChoices(skin)) {
        QImage picture;
        ThemeAccent::shared().withPreview(choice.color, skin, [&] {
            const FaceView face = view(skin, config.kind);
            picture = SitePictures::face(face, FaceLook::of(config), reading(config, face));
        });
        const QString name = u"assets/img/accent/%1-%2"_s.arg(rawValue(skin), slug(choice.name));
        addPng(name + u".png"_s, picture);
        m_output.add(name + u".webp"_s, [picture] { return BatchOutput::webp(picture, faceQuality); });
        const QColor colour = choice.color.value_or(originalAccent(skin));
        variants.append(
            QJsonObject{{u"name"_s, choice.name}, {u"color"_s, hexText(colour)}, {u"file"_s, name + u".webp"_s}});
    }
    return {{u"theme"_s, rawValue(skin)}, {u"kind"_s, rawValue(config.kind)},
        {u"color"_s, variants.first()[u"color"_s]}, {u"file"_s, variants.first()[u"file"_s]},
        {u"variants"_s, variants}};
}

/// The featured themes among these; the first of them where none is.
QJsonArray heroes(const QList<Skin>& skins)
{
    QJsonArray names;
    for (const Skin skin : SiteTexts::heroThemes) {
        if (skins.contains(skin))
            names.append(rawValue(skin));
    }
    if (names.isEmpty())
        names.append(rawValue(skins.first()));
    return names;
}

QJsonObject headOf(const QList<Skin>& skins, const Release& release)
{
    QJsonObject blurbs;
    for (const WidgetKind kind : allCases<WidgetKind>())
        blurbs.insert(rawValue(kind), SiteTexts::blurb(kind));
    return {{u"exported"_s, release.exported.toUTC().toString(Qt::ISODate)}, {u"version"_s, release.version},
        {u"build"_s, release.build}, {u"heroThemes"_s, heroes(skins)}, {u"blurb"_s, blurbs},
        {u"canvas"_s,
            QJsonObject{{u"width"_s, DesktopCanvas::size.width()}, {u"height"_s, DesktopCanvas::size.height()},
                {u"scale"_s, SitePictures::scale}, {u"margin"_s, SitePictures::margin}}}};
}

} // namespace

int run(const QString& folder, const QList<Skin>& skins, const SampleWorld& samples, const Wallpaper& wallpaper,
    const Release& release, const SiteGallery::Material& material)
{
    BatchOutput output(folder, skins.size() + 1);
    if (!output.open())
        return output.finish();
    Export all(output, samples, wallpaper);
    QJsonArray themes;
    QJsonArray demos;
    for (const Skin skin : skins) {
        if (output.isStopped())
            return output.finish();
        output.begin(title(skin));
        themes.append(all.theme(skin));
        if (supportsAccent(skin))
            demos.append(all.accentDemo(skin));
    }
    output.begin(u"Pages"_s);
    QJsonObject site = headOf(skins, release);
    site[u"themes"_s] = themes;
    site[u"accentDemo"_s] = demos;
    output.flush();
    site = SiteLosses::without(site, output.failures());
    if (site[u"themes"_s].toArray().isEmpty())
        output.refuse(u"No theme could be rendered."_s);
    if (output.isStopped())
        return output.finish();
    output.add(u"themes.json"_s, QJsonDocument(site).toJson());
    output.flush();
    const auto add = [&output](const QString& name, BatchOutput::Pack pack) { output.add(name, std::move(pack)); };
    const QString fault = SiteGallery::writeGallery(folder, site, material, add);
    if (!fault.isEmpty())
        output.refuse(fault);
    return output.finish();
}

} // namespace ambrelle::SiteExporter
