// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/LayerRole.h"

#include <QList>
#include <QTimer>

class QScreen;

namespace ambrelle {

/// A surface among others of a layer.
class LayerMember {
public:
    virtual ShellLayer layer() const = 0;
    virtual const QScreen* screen() const = 0;
    virtual bool staysLow() const = 0; ///< below all that do not
    /// Leaves its layer and comes back at once. False: it cannot now, and tells the order once it has done so.
    virtual bool joinAgain() = 0;

protected:
    ~LayerMember() = default;
};

/// Where a compositor puts a surface that joins a layer.
enum class Joining {
    above, ///< all others there
    below, ///< all others there
    anew, ///< above, but only if it comes from nowhere: one from another layer keeps its place among all
};

/// The windows that have to leave their layer and join it again, in that order, until all stand in theirs: `standing`
/// are their places in the wanted order (0: the lowest), from the lowest that stands there now. None where it is so.
QList<qsizetype> rejoining(const QList<qsizetype>& standing, Joining joining);

/// Which of this program's windows in a layer stand above which. No request asks for that; what there is is joining the
/// layer anew.
class LayerOrder {
public:
    LayerOrder();

    void setJoining(Joining joining); ///< of this compositor; `anew` does for all that join above
    Joining joining() const { return m_joining; }
    /// The window has come to its layer: above all others there, or, if it stays low, below them.
    void joined(LayerMember& window);
    void raise(LayerMember& window); ///< it is to come above the others of its layer, unless it stays low
    void left(LayerMember& window);

private:
    void insert(QList<LayerMember*>& order, LayerMember& window, bool below) const;
    void arrange();
    void arrangeLike(const LayerMember& window);

    Joining m_joining = Joining::anew;
    QList<LayerMember*> m_wanted; ///< the lowest first, those of all layers together
    QList<LayerMember*> m_standing; ///< likewise
    QTimer m_soon; ///< what joins in one turn of the event loop is arranged together
};

} // namespace ambrelle
