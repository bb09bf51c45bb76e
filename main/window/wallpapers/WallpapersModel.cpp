// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpapersModel.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "skins/SkinRegistry.h"
#include "window/cards/ShelfPictures.h"
#include "window/frame/SearchWords.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array wallpaperSections{WallpapersScope::mine, WallpapersScope::photographs, WallpapersScope::themes};

QString pathOf(const WallpaperChoice& wallpaper)
{
    if (const auto* own = std::get_if<WallpaperShuffle::Custom>(&wallpaper))
        return own->path;
    if (const auto* extra = std::get_if<WallpaperShuffle::Extra>(&wallpaper))
        return extra->path;
    return {};
}

Card headingCard(WallpapersScope section, qsizetype count)
{
    Card card;
    card.isHeading = true;
    const int number = static_cast<int>(count);
    switch (section) {
    case WallpapersScope::mine: card.title = Wording::tr("My Wallpapers"); break;
    case WallpapersScope::photographs: card.title = Wording::tr("Photographs"); break;
    default: card.title = Wording::tr("Themes"); break;
    }
    card.caption = section == WallpapersScope::themes
        ? Wording::tr("%n wallpapers, painted for your screens", nullptr, number)
        : Wording::tr("%n pictures", nullptr, number);
    return card;
}

Card tileCard()
{
    Card card;
    card.state = Card::State::tile;
    card.noticeSymbol = u"folder.badge.plus"_s;
    card.notice = Wording::tr("Drop pictures here");
    card.description = Wording::tr("Add Pictures…");
    card.hasMenu = false;
    return card;
}

} // namespace

QString wallpaperTitle(const WallpaperChoice& wallpaper)
{
    if (const Skin* skin = std::get_if<Skin>(&wallpaper))
        return title(*skin);
    return foreignText(QFileInfo(pathOf(wallpaper)).fileName());
}

void WallpapersModel::setShelf(const WallpaperShelf& shelf)
{
    if (shelf == m_shelf && !m_rows.isEmpty())
        return;
    m_shelf = shelf;
    replaceRows(rowsOf(shelf));
}

QList<WallpaperChoice> WallpapersModel::found(const WallpaperShelf& shelf, WallpapersScope section)
{
    QList<WallpaperChoice> all;
    switch (section) {
    case WallpapersScope::mine: {
        QStringList own = shelf.own;
        own.removeDuplicates();
        for (const QString& path : std::as_const(own))
            all.append(WallpaperShuffle::Custom{path});
        break;
    }
    case WallpapersScope::photographs:
        for (const QString& path : shelf.photographs)
            all.append(WallpaperShuffle::Extra{path});
        break;
    default:
        for (const Skin skin : allCases<Skin>())
            all.append(skin);
    }
    const SearchWords words(shelf.search);
    all.removeIf([&](const WallpaperChoice& wallpaper) { return !words.occurIn(wallpaperTitle(wallpaper)); });
    return all;
}

QList<WallpapersModel::Row> WallpapersModel::rowsOf(const WallpaperShelf& shelf)
{
    const bool searches = !SearchWords(shelf.search).isEmpty();
    QList<Row> rows;
    for (const WallpapersScope section : wallpaperSections) {
        if (shelf.scope != WallpapersScope::all && shelf.scope != section)
            continue;
        const bool hasTile = section == WallpapersScope::mine && !searches;
        const QList<WallpaperChoice> hits = found(shelf, section);
        if (hits.isEmpty() && !hasTile)
            continue;
        rows.append(Heading{section, hits.size()});
        for (const WallpaperChoice& wallpaper : hits)
            rows.append(wallpaper);
        if (hasTile)
            rows.append(Tile{});
    }
    return rows;
}

bool WallpapersModel::hasHitsElsewhere() const
{
    return m_shelf.scope != WallpapersScope::all && !SearchWords(m_shelf.search).isEmpty()
        && std::ranges::any_of(wallpaperSections,
            [this](WallpapersScope section) { return section != m_shelf.scope && !found(m_shelf, section).isEmpty(); });
}

/// Tells the view of the rows between the first and the last that differ, and of new contents of the others.
void WallpapersModel::replaceRows(const QList<Row>& rows)
{
    const auto isSame = [](const Row& left, const Row& right) {
        const auto* old = std::get_if<Heading>(&left);
        const auto* heading = std::get_if<Heading>(&right);
        return left == right || (old && heading && old->section == heading->section);
    };
    const qsizetype shorter = std::min(m_rows.size(), rows.size());
    qsizetype head = 0;
    while (head < shorter && isSame(m_rows[head], rows[head]))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && isSame(m_rows[m_rows.size() - 1 - tail], rows[rows.size() - 1 - tail]))
        ++tail;
    const int first = static_cast<int>(head);
    const int gone = static_cast<int>(m_rows.size() - tail - head);
    const int come = static_cast<int>(rows.size() - tail - head);
    if (gone > 0) {
        beginRemoveRows({}, first, first + gone - 1);
        m_rows.remove(first, gone);
        endRemoveRows();
    }
    if (come > 0) {
        beginInsertRows({}, first, first + come - 1);
        m_rows = rows.first(first + come) + m_rows.sliced(first);
        endInsertRows();
    }
    m_rows = rows; // headings count anew
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

std::optional<WallpaperChoice> WallpapersModel::wallpaper(const QModelIndex& index) const
{
    const auto* wallpaper = index.isValid() ? std::get_if<WallpaperChoice>(&m_rows[index.row()]) : nullptr;
    return wallpaper ? std::optional(*wallpaper) : std::nullopt;
}

bool WallpapersModel::isTile(const QModelIndex& index) const
{
    return index.isValid() && std::holds_alternative<Tile>(m_rows[index.row()]);
}

QModelIndex WallpapersModel::indexOf(const WallpaperChoice& wallpaper) const
{
    const auto row = static_cast<int>(m_rows.indexOf(Row(wallpaper)));
    return row < 0 ? QModelIndex() : index(row);
}

QModelIndex WallpapersModel::firstWallpaper() const
{
    const auto first =
        std::ranges::find_if(m_rows, [](const Row& row) { return std::holds_alternative<WallpaperChoice>(row); });
    return first == m_rows.end() ? QModelIndex() : index(static_cast<int>(std::distance(m_rows.begin(), first)));
}

int WallpapersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant WallpapersModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role != pictureKeyRole)
        return cardData(card(m_rows[index.row()]), role);
    const std::optional<WallpaperChoice> choice = wallpaper(index);
    if (!choice)
        return {};
    if (const Skin* skin = std::get_if<Skin>(&*choice))
        return QVariant::fromValue(PictureKey::wallpaper(*skin));
    const QString path = pathOf(*choice);
    return QVariant::fromValue(PictureKey::file(path, m_shelf.facts.value(path).time));
}

Qt::ItemFlags WallpapersModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? cardFlags(card(m_rows[index.row()])) : Qt::NoItemFlags;
}

Card WallpapersModel::card(const Row& row) const
{
    if (const auto* heading = std::get_if<Heading>(&row))
        return headingCard(heading->section, heading->count);
    if (const auto* wallpaper = std::get_if<WallpaperChoice>(&row))
        return cardOf(*wallpaper);
    return tileCard();
}

Card WallpapersModel::cardOf(const WallpaperChoice& wallpaper) const
{
    Card card;
    card.title = wallpaperTitle(wallpaper);
    card.primary = Wording::tr("Set");
    QStringList facts;
    if (const Skin* skin = std::get_if<Skin>(&wallpaper)) {
        card.picture = rawValue(*skin);
        card.ground = styleOf(*skin).ground;
        facts.append(tagline(*skin));
    } else {
        describeFile(card, pathOf(wallpaper));
    }
    if (m_shelf.withoutPreview.contains(card.picture)) {
        card.state = Card::State::failed;
        card.noticeSymbol = u"photo"_s;
    }
    if (m_shelf.shown.contains(wallpaper)) {
        card.pill = Wording::tr("On Desktop");
        facts.append(Wording::tr("On your desktop"));
    }
    if (m_shelf.working == wallpaper) {
        card.state = Card::State::working;
        card.notice = Wording::tr("Painting for %n screens…", nullptr, m_shelf.screens);
        facts.append(card.notice);
    }
    if (!card.usable)
        facts.append(card.notice);
    card.description = facts.join(u". "_s);
    return card;
}

void WallpapersModel::describeFile(Card& card, const QString& path) const
{
    card.elidesMiddle = true;
    if (m_shelf.isForOneScreen)
        card.toolTip = card.primaryTip = Wording::tr("This picture is set on all screens");
    const auto known = m_shelf.facts.constFind(path);
    if (known == m_shelf.facts.cend())
        return; // its picture comes when it is known which one it is
    if (known->isThere) {
        card.picture = path;
        return;
    }
    card.usable = false;
    card.state = Card::State::failed;
    card.noticeSymbol = u"photo"_s;
    card.notice = card.toolTip = Wording::tr("File not found");
}

} // namespace ambrelle
