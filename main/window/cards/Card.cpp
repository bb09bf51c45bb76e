// SPDX-License-Identifier: MIT

#include "window/cards/Card.h"

#include "foundation/Wording.h"

namespace ambrelle {

QVariant cardData(const Card& card, int role)
{
    switch (role) {
    case cardRole: return QVariant::fromValue(card);
    case Qt::DisplayRole:
    case Qt::EditRole: return card.title.isEmpty() && card.state == Card::State::tile ? card.notice : card.title;
    case Qt::AccessibleTextRole:
        if (card.isHeading && !card.caption.isEmpty())
            return Wording::tr("%1, %2", "a heading and how many things stand below it").arg(card.title, card.caption);
        return cardData(card, Qt::DisplayRole);
    case Qt::AccessibleDescriptionRole: return card.description.isEmpty() ? QVariant() : card.description;
    default: return {};
    }
}

Qt::ItemFlags cardFlags(const Card& card)
{
    if (card.isHeading)
        return Qt::ItemNeverHasChildren;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsEditable, card.renames);
    return flags;
}

Card cardAt(const QModelIndex& index)
{
    return index.data(cardRole).value<Card>();
}

} // namespace ambrelle
