// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"
#include "scenes/Scene.h"
#include "scenes/SceneLayout.h"

#include <QHash>

#include <optional>

namespace ambrelle {

/// A scene in the making: how its items lie, and the pieces that many skins' scenes are made of. What is given to a
/// piece is in points of the screen; a skin passes its measures through scaled().
///
/// Pieces keep the rule of all scenes: strong marks stay out of the items and inside the screen. A strong line is cut,
/// a strong dot, a label or an icon that finds no room is left out, and false given.
class SceneOrnament : public SceneLayout {
public:
    using Item = SceneItem;
    static constexpr double strong = 0.35; ///< a mark inside an item has at most this opacity

    SceneOrnament(QList<Item> items, const QSizeF& size, const std::optional<QColor>& accent);

    const std::optional<QColor>& accent() const { return m_accent; } ///< the user's, where it is not the skin's own
    const Scene& scene() const { return m_scene; } ///< as far as it is made
    void drawLike(const SkinStyle& style); ///< in the skin's finish and manner

    /// Adds a mark of any other kind: `mark` is what SceneSprite's constructors take after the name, which gets a
    /// number. It keeps the rule by itself.
    template <typename... Mark> void add(const QString& name, Mark... mark)
    {
        m_scene.sprites.append(SceneSprite(numbered(name), std::move(mark)...));
    }

    /// The same for a mark along a line: it reaches so far beyond the path.
    template <typename Draw, typename... Values>
    void addAlong(const QString& name, const QPainterPath& path, double reach, Draw draw, Values... values)
    {
        add(name, areasAlong(path, reach), draw, std::move(values)...);
    }

    bool dot(const QString& name, QPointF centre, double radius, const QColor& colour);
    bool line(const QString& name, QPointF from, QPointF to, const QPen& pen);
    bool line(const QString& name, const QPainterPath& path, const QPen& pen);
    /// One line of text with the face, size, colour and alignment of the style; nothing stands on it, before or after.
    bool label(const QString& name, const Box& box, const QString& text, const TextStyle& style);
    bool icon(const QString& name, QPointF centre, const QString& symbol, double size, const QColor& colour);
    /// Dots of a grid that belongs to the screen, in `area` outside the items; they fade over the outer `fade` points.
    void dotGrid(
        const QString& name, const QRectF& area, double pitch, double radius, const QColor& colour, double fade);

    using SceneLayout::edge;

private:
    QString numbered(const QString& name);
    QList<QRectF> areasAlong(const QPainterPath& path, double reach) const;
    bool isFreeOfLines(const QRectF& area) const;

    struct Drawn {
        QPainterPath path;
        double reach; ///< half its width
    };

    std::optional<QColor> m_accent;
    Scene m_scene;
    QList<Drawn> m_lines;
    QHash<QString, int> m_numbers; ///< of marks of one name
};

} // namespace ambrelle
