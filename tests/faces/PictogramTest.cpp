// SPDX-License-Identifier: MIT

#include "faces/Pictogram.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

/// The longest straight edge that is not the flat base, in units.
double longestEdge(const QPainterPath& cloud)
{
    double longest = 0;
    for (const QPolygonF& outline : cloud.toSubpathPolygons()) {
        for (qsizetype index = 1; index < outline.size(); ++index) {
            const QLineF edge(outline[index - 1], outline[index]);
            if (std::abs(edge.dy()) > 0.01)
                longest = std::max(longest, edge.length());
        }
    }
    return longest;
}

} // namespace

TEST(Pictogram, CloudsAreRoundWhateverIsUnitedAndCutFromThem)
{
    constexpr double unseen = 2.2; // an edge so long strays a fifteenth of a unit from its arc
    for (const Sky sky : {Sky::partly, Sky::cloudy, Sky::fog, Sky::rain})
        EXPECT_LT(longestEdge(Pictogram::of(sky).cloud), unseen) << static_cast<int>(sky);
    EXPECT_GT(longestEdge(Pictogram::straightOf(Sky::cloudy).cloud), unseen);
}

} // namespace ambrelle
