// SPDX-License-Identifier: MIT

#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasStyle.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QStringList lettersOfCompass(double fraction)
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    CanvasRecord record;
    Canvas canvas(painter, {.record = &record});
    atlas::compass(canvas, atlas::makeStyle({}), Box(0, 0, 100, 100), fraction, Qt::red);
    QStringList letters;
    for (const CanvasMark& mark : record)
        letters += mark.text;
    return letters;
}

} // namespace

TEST(Atlas, GridReferencesNameHemispheresAndWholeMinutes)
{
    EXPECT_EQ(atlas::gridReference(u"Reykjavík"_s), u"64°09′N 21°56′W"_s);
    EXPECT_EQ(atlas::gridReference(u"Sydney"_s), u"33°52′S 151°13′E"_s);
    EXPECT_EQ(atlas::gridReference(u"Quito"_s), u"0°11′S 78°28′W"_s); // less than a degree keeps its side
    EXPECT_EQ(atlas::gridReference(u"Atlantis"_s), QString());
}

TEST(Atlas, TheNeedleStandsOnNoLetter)
{
    EXPECT_EQ(lettersOfCompass(0), (QStringList{u"E"_s, u"S"_s, u"W"_s}));
    EXPECT_EQ(lettersOfCompass(0.13), (QStringList{u"N"_s, u"E"_s, u"S"_s, u"W"_s}));
    EXPECT_EQ(lettersOfCompass(0.76), (QStringList{u"N"_s, u"E"_s, u"S"_s}));
    EXPECT_EQ(lettersOfCompass(0.99), (QStringList{u"E"_s, u"S"_s, u"W"_s}));
}

TEST(Atlas, SummitsFollowTheAccent)
{
    EXPECT_NE(atlas::summit(atlas::makeStyle(QColor(128, 56, 166))), atlas::summit(atlas::makeStyle({})));
}

} // namespace ambrelle
