// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QList>
#include <QPixmap>
#include <QString>

namespace ambrelle {

/// What one row of a grid shows: a card, or a heading over the cards below it.
struct Card {
    enum class State {
        idle,
        working, ///< darkened, with a turning ring and `notice`
        failed, ///< no picture: `noticeSymbol` and `notice` stand in its place
        tile, ///< a dashed outline to drop things on, with `noticeSymbol` and `notice`
    };

    bool isHeading = false; ///< has a title and a caption, nothing else
    QString title;
    bool elidesMiddle = false; ///< as names of files are shortened
    QString caption;
    QString symbol; ///< beside the title
    QString symbolTip;
    QList<QColor> dots; ///< at most five are shown
    QString pill; ///< on the picture, with a check; empty: none
    QString picture; ///< what `CardPictures` knows it by; empty: there is none
    QColor ground; ///< mixed into the placeholder; invalid: not
    State state = State::idle;
    QString noticeSymbol;
    QString notice;
    QString primary; ///< the words on the chief button; empty: `primarySymbol` in a circle, or no button
    QString primarySymbol;
    QString primaryTip;
    bool hasMenu = true;
    bool menuBadge = true; ///< a badge opens the menu, too
    bool usable = true; ///< a click does something; `toolTip` says why not
    bool renames = false;
    QString toolTip;
    QString description; ///< for those who cannot see the card

    bool operator==(const Card&) const = default;
};

/// The role under which a model gives the `Card` of a row.
constexpr int cardRole = Qt::UserRole + 1;
/// How long a name that is typed into a card may be.
constexpr int longestCardName = 60;

/// What a model of cards answers for `role`: names and descriptions as lists, assistive technology and typing ask.
QVariant cardData(const Card& card, int role);
/// Headings cannot be chosen.
Qt::ItemFlags cardFlags(const Card& card);
/// The card of a row, an empty one for an invalid index.
Card cardAt(const QModelIndex& index);

/// Where the pictures of cards come from.
class CardPictures : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The picture of the card in exactly `devicePixels`, its corners cut round; null when it is still to come. Asked
    /// only for cards that are seen, and those of the line below them.
    virtual QPixmap picture(const QModelIndex& index, QSize devicePixels) = 0;
    /// All cards with pictures that are seen now, then those of the line below; told when they are others.
    virtual void want(const QList<QModelIndex>& indexes, QSize devicePixels)
    {
        for (const QModelIndex& index : indexes)
            picture(index, devicePixels);
    }

Q_SIGNALS:
    void arrived(const QString& key); ///< `Card::picture` of the one that is there, or is another, from now on
};

} // namespace ambrelle

Q_DECLARE_METATYPE(ambrelle::Card)
