// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <QRegion>

#include <memory>
#include <tuple>
#include <type_traits>
#include <typeinfo>

namespace ambrelle {

/// One mark of a scene: what it is called, where it lies, how it moves, if it does, and how it is drawn. A value: two
/// marks that are equal look equal, whatever they are called, so that whoever shows them paints only what is another
/// one.
class SceneSprite {
public:
    /// `place` holds all that `draw` paints. `draw` is called with a canvas and the values, and captures nothing:
    /// the values are all that the mark depends on, and tell it from others.
    ///
    ///     SceneSprite(u"sun"_s, area, [](Canvas& canvas, const Box& box, const QColor& colour) {
    ///         canvas.fill(box, colour); }, box, style.accent)
    template <typename Draw, typename... Values>
    SceneSprite(QString name, const QRectF& place, Draw draw, Values... values)
        : SceneSprite(std::move(name), QList{place}, draw, std::move(values)...)
    {
    }
    /// A mark with much air in it: `areas` hold all of it, and leave most of the air out.
    template <typename Draw, typename... Values>
    requires(!std::is_same_v<Draw, Motion>)
        SceneSprite(QString name, const QList<QRectF>& areas, Draw draw, Values... values)
        : m_name(std::move(name))
        , m_areas(areas)
        , m_mark(std::make_shared<const MarkOf<Draw, false, Values...>>(draw, std::move(values)...))
    {
    }
    /// A mark that moves inside `areas`, which hold all of it. `draw` is given the time after the canvas, in seconds
    /// since 2001-01-01 00:00 UTC; at 0 the mark looks complete.
    template <typename Draw, typename... Values>
    SceneSprite(QString name, const QList<QRectF>& areas, const Motion& motion, Draw draw, Values... values)
        : m_name(std::move(name))
        , m_areas(areas)
        , m_mark(std::make_shared<const MarkOf<Draw, true, Values...>>(draw, std::move(values)...))
    {
        for (const QRectF& area : areas)
            m_moving.append({area, motion});
    }

    const QString& name() const { return m_name; }
    const QList<QRectF>& areas() const { return m_areas; } ///< points of the screen, y down
    QRectF place() const; ///< all of them
    const QList<Canvas::MovingArea>& moving() const { return m_moving; } ///< nothing while it stands still
    void draw(Canvas& canvas, double time) const { m_mark->draw(canvas, time); }

    bool operator==(const SceneSprite& other) const
    {
        return m_areas == other.m_areas && m_moving == other.m_moving
            && (m_mark == other.m_mark || m_mark->equals(*other.m_mark));
    }

private:
    struct Mark {
        Mark() = default;
        virtual ~Mark() = default;
        Q_DISABLE_COPY_MOVE(Mark)
        virtual void draw(Canvas& canvas, double time) const = 0;
        virtual bool equals(const Mark& other) const = 0;
    };

    template <typename Draw, bool Moves, typename... Values> struct MarkOf final : Mark {
        static_assert(std::is_empty_v<Draw>, "what a mark depends on is given as values, not captured");

        explicit MarkOf(Draw function, Values... given)
            : drawing(function)
            , values(std::move(given)...)
        {
        }
        void draw(Canvas& canvas, [[maybe_unused]] double time) const override
        {
            const auto with = [&](const Values&... each) {
                if constexpr (Moves)
                    drawing(canvas, time, each...);
                else
                    drawing(canvas, each...);
            };
            std::apply(with, values);
        }
        bool equals(const Mark& other) const override
        {
            return typeid(other) == typeid(MarkOf) && static_cast<const MarkOf&>(other).values == values;
        }

        Draw drawing;
        std::tuple<Values...> values;
    };

    QString m_name;
    QList<QRectF> m_areas;
    QList<Canvas::MovingArea> m_moving;
    std::shared_ptr<const Mark> m_mark;
};

/// The decorations of one screen, between the desktop and its widgets.
struct Scene {
    QList<SceneSprite> sprites; ///< the last lies above the others
    Finish finish = Finish::smooth;
    StrokeManner manner = StrokeManner::plain;

    bool operator==(const Scene&) const = default;

    QRectF bounds() const; ///< of all places; null where there are none
    QList<Canvas::MovingArea> moving() const; ///< where its marks move, and how
    /// Draws what meets `area`, in points of the screen; what moves as at `time`, 0 while it rests.
    void draw(QPainter& painter, const QRectF& area, double time = 0) const;
    /// Where the one looks different from the other.
    static QList<QRectF> changes(const Scene& before, const Scene& after);
    /// The squares of `cell` points that hold marks, or where one may move to, joined to rectangles, in points of the
    /// screen.
    QList<QRectF> inked(double cell) const;
    /// The same of the marks' places, which is soon found.
    QRegion covered(int cell) const;
};

} // namespace ambrelle
