// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/ShelfPictures.h"
#include "window/frame/MainWindowModel.h"
#include "window/frame/WindowContext.h"

#include <map>

namespace ambrelle {

class SearchWords;
struct SavedTheme;

/// The cards of the themes that the section and the search of the main window let through, under their headings.
/// Desktops that the user saved come last, the newest first.
class ThemesModel final : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ThemesModel(const WindowContext& context, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The new name of a saved desktop.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// The themes in their order, without headings.
    QList<ThemeChoice> themes() const;
    std::optional<ThemeChoice> themeAt(const QModelIndex& index) const; ///< none: a heading
    QModelIndex indexOf(const ThemeChoice& theme) const; ///< invalid: it is not shown
    /// How many themes a section has, whatever is searched for.
    int countOf(ThemesSection section) const;
    /// Whether the search finds something in other sections than the chosen one.
    bool hasHitsElsewhere() const;

private:
    struct Row {
        std::optional<ThemeChoice> theme; ///< none: a heading
        Card card;

        bool operator==(const Row&) const = default;
    };

    void follow();
    void refresh();
    void renewPictures();
    QList<Row> rows(ThemesSection shown) const;
    QList<Row> rowsOf(ThemesSection section, const SearchWords& words) const;
    Row catalogueRow(Skin skin) const;
    Row savedRow(const SavedTheme& theme) const;
    void addCommon(Card& card, const ThemeChoice& theme, Skin skin) const;
    PictureKey pictureOf(const ThemeChoice& theme) const;

    WindowContext m_with;
    QList<Row> m_rows;
    mutable std::map<ThemeChoice, PictureKey> m_pictures; // a long record is not read again at each letter typed
};

} // namespace ambrelle
