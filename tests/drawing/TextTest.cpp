// SPDX-License-Identifier: MIT

#include "drawing/Text.h"

#include "drawing/Kept.h"

#include <QPainter>
#include <QPainterPath>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const Typeface inter{.family = u"Inter"_s, .weight = 500, .capRatio = 0.73};
const TextStyle style{.face = inter, .size = 12.5};

double widthOf(const QString& text)
{
    return shape(inter, style.size, text)->width;
}

} // namespace

TEST(Text, WidthGrowsInProportionToTheSizeSoThatLinesBreakAlikeAtEveryScale)
{
    const QString text = u"The quick brown fox, 0123456789"_s;
    const double unit = shape(inter, 10, text)->width / 10;
    for (const double size : {9.0, 10.5, 12.5, 13.5, 17.0, 33.0})
        EXPECT_NEAR(shape(inter, size, text)->width / size, unit, unit * 0.002) << size;
}

TEST(Text, ElidedTextFitsAndHasOneSign)
{
    const QString text = u"Österreichische Dampfschifffahrtsgesellschaft 𝄞𝄞𝄞𝄞𝄞𝄞"_s;
    for (const Qt::TextElideMode mode : {Qt::ElideRight, Qt::ElideMiddle}) {
        for (double room = 4; room < widthOf(text) + 10; room += 7) {
            const QString shown = elided(text, style.elided(mode), room);
            EXPECT_LE(widthOf(shown), std::max(room, widthOf(u"…"_s)) + 0.1) << qPrintable(shown);
            EXPECT_EQ(shown.count(u'…'), shown == text ? 0 : 1) << qPrintable(shown);
            for (const QChar unit : shown)
                EXPECT_FALSE(unit.isNull());
            EXPECT_EQ(shown, QString::fromUtf8(shown.toUtf8())) << "half a surrogate pair was left at room " << room;
        }
    }
    EXPECT_EQ(elided(text, style, widthOf(text)), text);
    EXPECT_EQ(elided({}, style, 0), QString());
}

TEST(Text, WrappedTextKeepsEveryWordUntilTheLastLineIsFull)
{
    const QString text = u"It is not because things are difficult that we do not dare"_s;
    const QStringList whole = wrapped(text, style.wrapped(9), 120);
    EXPECT_EQ(whole.join(u' '), text);
    for (const QString& line : whole)
        EXPECT_LE(widthOf(line), 120.1);
    const QStringList cut = wrapped(text, style.wrapped(2), 120);
    ASSERT_EQ(cut.size(), 2);
    EXPECT_TRUE(cut.last().endsWith(u'…'));
    EXPECT_EQ(wrapped(u"Donaudampfschifffahrtsgesellschaft"_s, style.wrapped(3), 60).size(), 1);
    EXPECT_TRUE(wrapped(u"  "_s, style.wrapped(3), 60).isEmpty());
}

TEST(Text, LooksTheSameAfterWhatWasKeptIsForgotten)
{
    const auto picture = [](const ShapedText& shaped) {
        QImage image(200, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.fillPath(outlineOf(shaped).translated(4, 20), Qt::black);
        return image;
    };
    const auto before = shape(inter, 12.5, u"Österreich 08:15"_s);
    const QImage seen = picture(*before);
    forgetKept();
    EXPECT_EQ(picture(*before), seen) << "somebody still has it";
    const auto after = shape(inter, 12.5, u"Österreich 08:15"_s);
    EXPECT_NE(after, before) << "it was kept";
    EXPECT_EQ(after->width, before->width);
    EXPECT_EQ(picture(*after), seen);
}

} // namespace ambrelle
