// SPDX-License-Identifier: MIT

#include "window/themes/ThemesModel.h"

#include "foundation/Wording.h"
#include "model/ThemeAccent.h"
#include "model/ThemeStore.h"
#include "skins/SkinRegistry.h"
#include "window/cards/CardLayout.h"
#include "window/cards/PictureShelf.h"
#include "window/frame/SearchWords.h"
#include "window/themes/ThemeActions.h"
#include "window/themes/ThemeTexts.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array themeSections{
    ThemesSection::concept_, ThemesSection::minimal, ThemesSection::modern, ThemesSection::mine};

/// None: the user's own.
std::optional<ThemeGroup> groupOf(ThemesSection section)
{
    switch (section) {
    case ThemesSection::concept_: return ThemeGroup::concept_;
    case ThemesSection::minimal: return ThemeGroup::minimal;
    case ThemesSection::modern: return ThemeGroup::modern;
    case ThemesSection::all:
    case ThemesSection::mine: break;
    }
    return std::nullopt;
}

/// The accent in use, then the others to choose.
QList<QColor> dotsOf(Skin skin, const ThemeAccent& accents)
{
    if (!supportsAccent(skin))
        return {};
    QStringList dots{hexText(accents.color(skin).value_or(originalAccent(skin)))}; // as it is stored: in eight bits
    for (const AccentChoice& choice : accentChoices(skin))
        dots.append(hexText(choice.color.value_or(originalAccent(skin))));
    dots.removeDuplicates();
    const QStringList shown = dots.first(std::min<qsizetype>(dots.size(), CardLayout::mostDots));
    return {shown.begin(), shown.end()};
}

/// What is seen as long as a card is at work.
QString withNotice(const QString& description, const Card& card)
{
    return card.state == Card::State::working ? description + u' ' + card.notice : description;
}

} // namespace

ThemesModel::ThemesModel(const WindowContext& context, QObject* parent)
    : QAbstractListModel(parent)
    , m_with(context)
{
    m_rows = rows(context.model.themesSection());
    follow();
}

void ThemesModel::follow()
{
    connect(&m_with.model, &MainWindowModel::changed, this, &ThemesModel::refresh);
    connect(&m_with.themes, &ThemeStore::changed, this, &ThemesModel::renewPictures);
    connect(&m_with.accents, &ThemeAccent::changed, this, &ThemesModel::renewPictures);
    connect(&m_with.themeActions, &ThemeActions::workingChanged, this, &ThemesModel::refresh);
    connect(&m_with.themeActions.applied(), &AppliedThemes::changed, this, &ThemesModel::refresh);
    connect(&m_with.shelf, &PictureShelf::arrived, this, [this](const PictureKey& key) {
        const bool failed = m_with.shelf.hasFailed(key);
        const auto isOutdated = [&](const Row& row) {
            return row.card.picture == key.name && (row.card.state == Card::State::failed) != failed;
        };
        if (std::ranges::any_of(m_rows, isOutdated))
            refresh();
    });
}

int ThemesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ThemesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Row& row = m_rows[index.row()];
    if (role == pictureKeyRole)
        return row.theme ? QVariant::fromValue(pictureOf(*row.theme)) : QVariant();
    return cardData(row.card, role);
}

Qt::ItemFlags ThemesModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? cardFlags(m_rows[index.row()].card) : Qt::NoItemFlags;
}

bool ThemesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const std::optional<ThemeChoice> theme = themeAt(index);
    const QUuid* own = theme ? std::get_if<QUuid>(&*theme) : nullptr;
    if (!own || role != Qt::EditRole)
        return false;
    m_with.themeActions.rename(*own, value.toString());
    return true;
}

QList<ThemeChoice> ThemesModel::themes() const
{
    QList<ThemeChoice> themes;
    for (const Row& row : m_rows) {
        if (row.theme)
            themes.append(*row.theme);
    }
    return themes;
}

std::optional<ThemeChoice> ThemesModel::themeAt(const QModelIndex& index) const
{
    return index.isValid() ? m_rows[index.row()].theme : std::nullopt;
}

QModelIndex ThemesModel::indexOf(const ThemeChoice& theme) const
{
    const auto found = std::ranges::find(m_rows, std::optional(theme), &Row::theme);
    return found == m_rows.end() ? QModelIndex() : index(static_cast<int>(found - m_rows.begin()));
}

int ThemesModel::countOf(ThemesSection section) const
{
    if (section == ThemesSection::mine)
        return static_cast<int>(m_with.themes.themes().size());
    const std::optional<ThemeGroup> wanted = groupOf(section);
    return static_cast<int>(
        std::ranges::count_if(allCases<Skin>(), [&](Skin skin) { return !wanted || group(skin) == *wanted; }));
}

bool ThemesModel::hasHitsElsewhere() const
{
    return m_with.model.themesSection() != ThemesSection::all && !rows(ThemesSection::all).isEmpty();
}

/// Only what is another changes, so that the view keeps its place and a name that is being typed.
void ThemesModel::refresh()
{
    const QList<Row> now = rows(m_with.model.themesSection());
    const auto isSame = [](const Row& one, const Row& other) {
        return one.theme == other.theme && (one.theme || one.card.title == other.card.title);
    };
    qsizetype head = 0;
    while (head < std::min(now.size(), m_rows.size()) && isSame(now[head], m_rows[head]))
        ++head;
    qsizetype tail = 0;
    while (tail < std::min(now.size(), m_rows.size()) - head
        && isSame(now[now.size() - 1 - tail], m_rows[m_rows.size() - 1 - tail]))
        ++tail;
    if (const qsizetype gone = m_rows.size() - head - tail; gone > 0) {
        beginRemoveRows({}, static_cast<int>(head), static_cast<int>(head + gone - 1));
        m_rows.remove(head, gone);
        endRemoveRows();
    }
    if (const qsizetype come = now.size() - head - tail; come > 0) {
        beginInsertRows({}, static_cast<int>(head), static_cast<int>(head + come - 1));
        for (qsizetype row = head; row < head + come; ++row)
            m_rows.insert(row, now[row]);
        endInsertRows();
    }
    for (qsizetype row = 0; row < now.size(); ++row) {
        if (m_rows[row] == now[row])
            continue;
        m_rows[row] = now[row];
        Q_EMIT dataChanged(index(static_cast<int>(row)), index(static_cast<int>(row)));
    }
}

void ThemesModel::renewPictures()
{
    m_pictures.clear();
    refresh();
}

QList<ThemesModel::Row> ThemesModel::rows(ThemesSection shown) const
{
    const SearchWords words(m_with.model.search(MainTab::themes));
    QList<Row> all;
    for (const ThemesSection section : themeSections) {
        if (shown == ThemesSection::all || shown == section)
            all += rowsOf(section, words);
    }
    return all;
}

/// With their heading; nothing without any.
QList<ThemesModel::Row> ThemesModel::rowsOf(ThemesSection section, const SearchWords& words) const
{
    QList<Row> cards;
    Row heading{.theme = std::nullopt, .card = {.isHeading = true}};
    const auto count = [&] { return static_cast<int>(cards.size()); };
    if (const std::optional<ThemeGroup> wanted = groupOf(section)) {
        for (const Skin skin : allCases<Skin>()) {
            if (group(skin) == *wanted && (words.isEmpty() || words.occurIn(searchedText(skin))))
                cards.append(catalogueRow(skin));
        }
        heading.card.title = title(*wanted);
        heading.card.caption = Wording::tr("%n themes", nullptr, count());
    } else {
        for (const SavedTheme& theme : m_with.themes.themes()) {
            if (words.isEmpty() || words.occurIn(searchedText(theme)))
                cards.append(savedRow(theme));
        }
        heading.card.title = Wording::tr("My Themes");
        heading.card.caption = Wording::tr("%n desktops", nullptr, count());
    }
    return cards.isEmpty() ? cards : QList<Row>{heading} + cards;
}

ThemesModel::Row ThemesModel::catalogueRow(Skin skin) const
{
    Card card;
    card.title = title(skin);
    card.caption = tagline(skin);
    card.dots = dotsOf(skin, m_with.accents);
    addCommon(card, skin, skin);
    card.description = withNotice(spokenOf(skin, !card.pill.isEmpty(), m_with.accents), card);
    return {skin, card};
}

ThemesModel::Row ThemesModel::savedRow(const SavedTheme& theme) const
{
    Card card;
    card.title = theme.name;
    card.caption = captionOf(theme);
    card.renames = true;
    addCommon(card, theme.id, theme.dominantSkin());
    card.description = withNotice(spokenOf(theme, !card.pill.isEmpty()), card);
    return {theme.id, card};
}

void ThemesModel::addCommon(Card& card, const ThemeChoice& theme, Skin skin) const
{
    const PictureKey key = pictureOf(theme);
    card.symbol = isLight(skin) ? u"sun.max"_s : u"moon.fill"_s;
    card.symbolTip = isLight(skin) ? Wording::tr("Light theme") : Wording::tr("Dark theme");
    card.picture = key.name;
    card.ground = styleOf(skin).ground;
    card.primary = Wording::tr("Apply");
    if (m_with.themeActions.applied().isOnDesktop(theme))
        card.pill = Wording::tr("On Desktop");
    const std::optional<ThemeWork>& working = m_with.themeActions.working();
    if (working && working->theme == theme) {
        card.state = Card::State::working;
        card.notice = Wording::tr("Painting the wallpaper…");
    } else if (m_with.shelf.hasFailed(key)) {
        card.state = Card::State::failed;
        card.noticeSymbol = u"rectangle.on.rectangle.angled"_s;
    }
}

PictureKey ThemesModel::pictureOf(const ThemeChoice& theme) const
{
    if (const auto found = m_pictures.find(theme); found != m_pictures.end())
        return found->second;
    const Skin* skin = std::get_if<Skin>(&theme);
    const SavedTheme* own = skin ? nullptr : m_with.themeActions.saved(std::get<QUuid>(theme));
    if (!skin && !own)
        return {};
    const DesktopSnapshots::Desktop desktop = skin ? DesktopSnapshots::Desktop(*skin) : DesktopSnapshots::Desktop(*own);
    return m_pictures.emplace(theme, PictureKey::desktop(m_with.snapshots.wish(desktop))).first->second;
}

} // namespace ambrelle
