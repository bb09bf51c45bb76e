// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/WallpaperShuffle.h"
#include "window/cards/Card.h"
#include "window/frame/MainWindowModel.h"
#include "window/wallpapers/PictureFiles.h"

#include <QAbstractListModel>
#include <QSet>

#include <optional>
#include <variant>

namespace ambrelle {

/// A skin's wallpaper, a shipped picture, or one of the user's own.
using WallpaperChoice = WallpaperShuffle::Candidate;

/// What people call it: a skin's title or a file's name.
QString wallpaperTitle(const WallpaperChoice& wallpaper);

/// What the grid of wallpapers is about.
struct WallpaperShelf {
    WallpapersScope scope = WallpapersScope::all;
    QString search{}; ///< as typed
    QStringList own{}; ///< paths
    QStringList photographs{}; ///< likewise
    QHash<QString, PictureFiles::Facts> facts{}; ///< of files, as far as they are known
    QSet<QString> withoutPreview{}; ///< `PictureKey::name` of pictures that cannot be shown
    QList<WallpaperChoice> shown{}; ///< on some screen
    std::optional<WallpaperChoice> working{}; ///< about to be shown
    int screens = 1; ///< that it is made for
    bool isForOneScreen = false; ///< themes are set on one of several screens

    bool operator==(const WallpaperShelf&) const = default;
};

/// All wallpapers under their headings, as cards.
class WallpapersModel final : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Rows that stay keep what is chosen among them.
    void setShelf(const WallpaperShelf& shelf);
    const WallpaperShelf& shelf() const { return m_shelf; }

    std::optional<WallpaperChoice> wallpaper(const QModelIndex& index) const; ///< none: it is none
    bool isTile(const QModelIndex& index) const; ///< where pictures can be added
    QModelIndex indexOf(const WallpaperChoice& wallpaper) const; ///< invalid: it is not shown
    QModelIndex firstWallpaper() const;
    /// Whether what is searched for is found in other sections than those of the scope.
    bool hasHitsElsewhere() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Tile {
        bool operator==(const Tile&) const = default;
    };
    struct Heading {
        WallpapersScope section;
        qsizetype count; ///< of wallpapers below

        bool operator==(const Heading&) const = default;
    };
    using Row = std::variant<Heading, WallpaperChoice, Tile>;

    static QList<WallpaperChoice> found(const WallpaperShelf& shelf, WallpapersScope section);
    static QList<Row> rowsOf(const WallpaperShelf& shelf);
    Card card(const Row& row) const;
    Card cardOf(const WallpaperChoice& wallpaper) const;
    void describeFile(Card& card, const QString& path) const;
    void replaceRows(const QList<Row>& rows);

    WallpaperShelf m_shelf;
    QList<Row> m_rows;
};

} // namespace ambrelle
