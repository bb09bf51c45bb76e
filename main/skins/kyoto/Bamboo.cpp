// SPDX-License-Identifier: MIT

#include "skins/kyoto/Bamboo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace ambrelle {

namespace {

/// All in units of the height.
struct Stalk {
    double foot; ///< x at the bottom
    double lean; ///< how far the top stands to the right
    double width;
    double ink;
    std::vector<double> joints; ///< upwards

    /// The middle at a height; the stalk bends a little.
    double middle(double y) const { return foot + lean * y * y; }
};

void drawJoints(Stalk& stalk, double shortest, SeededRandom& random)
{
    for (double y = random.in(-0.08, 0.02); y < 1.2; y += shortest + random.in(0, 0.07))
        stalk.joints.push_back(y);
}

/// The stretch between two joints: wider at its ends, with a sliver of bare paper above and below.
QPainterPath stretch(const Stalk& stalk, double from, double to)
{
    const double half = stalk.width / 2;
    const double gap = 0.0022;
    const double low = from + gap;
    const double high = to - gap;
    const double middle = (low + high) / 2;
    const auto left = [&](double y) { return stalk.middle(y) - half; };
    const auto right = [&](double y) { return stalk.middle(y) + half; };
    const double waist = 0.22 * half;
    QPainterPath path(QPointF(left(low), low));
    path.quadTo(left(middle) + 2 * waist, middle, left(high), high);
    path.quadTo(stalk.middle(high), high + 0.0016, right(high), high);
    path.quadTo(right(middle) - 2 * waist, middle, right(low), low);
    path.quadTo(stalk.middle(low), low - 0.0016, left(low), low);
    path.closeSubpath();
    return path;
}

/// The dark stroke of the brush over a joint, its ends turned up.
QPainterPath joint(const Stalk& stalk, double y)
{
    const double half = 0.62 * stalk.width;
    const double x = stalk.middle(y);
    QPainterPath path(QPointF(x - half, y + 0.003));
    path.quadTo(x, y - 0.0045, x + half, y + 0.003);
    path.quadTo(x, y - 0.0005, x - half, y + 0.003);
    return path;
}

/// Round by its wash: dark at both sides, thin along the middle.
void paintStalk(Painting& painting, const Stalk& stalk, const RGBA& ink)
{
    const double h = painting.height();
    const QTransform toPixels = QTransform::fromScale(h, h);
    QPainterPath body;
    QPainterPath joints;
    for (std::size_t i = 0; i + 1 < stalk.joints.size(); ++i) {
        body.addPath(stretch(stalk, stalk.joints[i], stalk.joints[i + 1]));
        joints.addPath(joint(stalk, stalk.joints[i]));
    }
    const double half = stalk.width * h / 2;
    const QPointF middle(stalk.middle(0.5) * h, h / 2);
    const QPointF across(half, -stalk.lean * half); // square to the stalk
    const auto wash = [&](double strength) { return ink.withAlpha(strength * stalk.ink); };
    painting.fill(toPixels.map(body),
        Ink::linear(middle - across, middle + across,
            {{0, wash(1)}, {0.18, wash(0.7)}, {0.5, wash(0.36)}, {0.8, wash(0.62)}, {1, wash(0.95)}}));
    painting.fill(toPixels.map(joints), ink.withAlpha(std::min(1.0, 1.7 * stalk.ink)));
}

struct Leaf {
    QPointF root;
    double angle;
    double length;
};

/// One press and lift of the brush: thin at the root, full at a third, a long point.
QPainterPath blade(const Leaf& leaf)
{
    const double width = 0.075 * leaf.length;
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(0.12 * leaf.length, 0.2 * width, 0.22 * leaf.length, 1.5 * width, 0.45 * leaf.length, 1.05 * width);
    path.cubicTo(0.65 * leaf.length, 0.6 * width, 0.85 * leaf.length, -0.1 * width, leaf.length, -0.6 * width);
    path.cubicTo(0.8 * leaf.length, -0.75 * width, 0.6 * leaf.length, -0.95 * width, 0.42 * leaf.length, -0.9 * width);
    path.cubicTo(0.22 * leaf.length, -0.85 * width, 0.1 * leaf.length, -0.3 * width, 0, 0);
    return QTransform().translate(leaf.root.x(), leaf.root.y()).rotate(leaf.angle).map(path);
}

/// Leaves hang in fans of four from twigs at the joints.
void paintLeaves(Painting& painting, const std::array<Stalk, 2>& stalks, const RGBA& ink, SeededRandom& random)
{
    constexpr int fans = 4;
    constexpr int leavesPerFan = 4;
    constexpr std::array<double, fans> heights{0.93, 0.8, 0.6, 0.38};
    const double h = painting.height();
    for (int fan = 0; fan < fans; ++fan) {
        const Stalk& stalk = stalks[static_cast<std::size_t>(fan) % stalks.size()];
        const auto wanted = heights[static_cast<std::size_t>(fan)];
        const double y =
            *std::ranges::min_element(stalk.joints, {}, [=](double each) { return std::abs(each - wanted); });
        const QPointF start(stalk.middle(y), y);
        const QPointF tip = start + QPointF(0.055 + 0.012 * fan, 0.018);
        QPainterPath twig(start * h);
        twig.quadTo((start + QPointF(0.02, 0.024)) * h, tip * h);
        painting.stroke(twig, std::max(1.0, 0.0016 * h), ink.withAlpha(0.4));
        for (int number = 0; number < leavesPerFan; ++number) {
            const double spread = random.in(-9, 9);
            const double length = random.in(0.06, 0.115);
            const double tone = random.in(0.26, 0.6);
            const double along = 0.55 + 0.15 * number;
            const Leaf leaf{start + (tip - start) * along, -92 + 33 * number + spread, length};
            painting.fill(QTransform::fromScale(h, h).map(blade(leaf)), ink.withAlpha(tone));
        }
    }
}

} // namespace

void paintBamboo(Painting& painting, const RGBA& ink, SeededRandom& random)
{
    std::array<Stalk, 2> stalks{{
        {0.075, 0.012, 0.017, 0.32, {}},
        {0.032, -0.008, 0.026, 0.5, {}},
    }};
    drawJoints(stalks[0], 0.13, random);
    drawJoints(stalks[1], 0.16, random);
    for (const Stalk& stalk : stalks)
        paintStalk(painting, stalk, ink);
    paintLeaves(painting, stalks, ink, random);
}

} // namespace ambrelle
