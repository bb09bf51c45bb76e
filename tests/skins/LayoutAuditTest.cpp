// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "skins/SkinRegistry.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double axisFloor = 9; // no text anywhere is smaller
constexpr double largeCap = 24; // figures from this cap on are large text

bool isText(const CanvasMark& mark)
{
    return mark.kind != CanvasMark::Kind::symbol;
}

/// Figures are noted with the size of an average face of their cap.
double capOf(const CanvasMark& mark)
{
    return mark.size * 0.72;
}

QString outside(const CanvasMark& mark, const QRectF& face)
{
    const double slant = std::max(1.0, mark.size * 0.08); // what an italic may lean over its advance
    if (mark.ink.left() < mark.box.left() - slant || mark.ink.right() > mark.box.right() + slant)
        return u"stands outside its box"_s;
    if (!face.adjusted(1.9, 1.9, -1.9, -1.9).contains(mark.ink)) // 2 points, less what whole pixels round away
        return u"touches the edge of the face"_s;
    return {};
}

QString tooSmall(const CanvasMark& mark, double floor)
{
    constexpr double rounding = 0.01;
    const double least = mark.axis || mark.kind == CanvasMark::Kind::figure ? axisFloor : floor;
    return mark.size < least - rounding ? u"is smaller than %1 px"_s.arg(least) : QString();
}

QString tooFaint(const CanvasMark& mark)
{
    const bool large = mark.kind == CanvasMark::Kind::figure && capOf(mark) >= largeCap;
    const double ratio = contrast(over(mark.colour, mark.ground), mark.ground);
    constexpr double rounding = 0.02;
    if (ratio >= (large ? 3.0 : 4.5) - rounding)
        return {};
    return u"has a contrast of %1 : 1 (%2 on %3)"_s.arg(ratio, 0, 'f', 2).arg(mark.colour.name(), mark.ground.name());
}

/// How thick the part is that two turned texts share, points.
double sharedThickness(const CanvasMark& one, const CanvasMark& other)
{
    const QPolygonF part = one.corners.intersected(other.corners);
    double twice = 0;
    for (qsizetype index = 0; index < part.size(); ++index) {
        const QPointF a = part[index];
        const QPointF b = part[(index + 1) % part.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(twice) / 2 / std::max(1.0, part.boundingRect().width());
}

QString overlapping(const CanvasRecord& record, qsizetype index)
{
    const auto core = [](const CanvasMark& mark) { return mark.ink.adjusted(0.5, 1, -0.5, -1); };
    for (qsizetype other = index + 1; other < record.size(); ++other) {
        if (isText(record[other]) && core(record[index]).intersects(core(record[other]))
            && (record[index].corners.isEmpty() || sharedThickness(record[index], record[other]) > 2))
            return u"overlaps “%1”"_s.arg(record[other].text);
    }
    return {};
}

/// Only what users wrote may be shortened, and in paragraphs at the end of a line.
QString cutShort(const CanvasMark& mark, const QStringList& foreign)
{
    if (!mark.cut)
        return {};
    const QStringList kept = mark.text.split(u'…');
    const bool allowed = std::ranges::any_of(foreign, [&](const QString& text) {
        return text.simplified().contains(kept.first().trimmed()) && text.endsWith(kept.last().trimmed());
    });
    return allowed ? QString() : u"is cut"_s;
}

QStringList faults(const CanvasRecord& record, const FaceView& view, const QStringList& foreign)
{
    QStringList found;
    for (qsizetype index = 0; index < record.size(); ++index) {
        const CanvasMark& mark = record[index];
        if (!isText(mark) || mark.ink.isEmpty())
            continue;
        for (const QString& fault : {outside(mark, view.face().bounds), tooSmall(mark, view.style().floor),
                 tooFaint(mark), overlapping(record, index), cutShort(mark, foreign)}) {
            if (!fault.isEmpty())
                found.append(u"“%1” %2"_s.arg(mark.text, fault));
        }
    }
    return found;
}

CanvasRecord recordOf(const FaceView& view, const Reading& reading, double scale)
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.scale(scale, scale);
    CanvasRecord record;
    view.draw(painter, reading, {.record = &record});
    return record;
}

/// All that a face is scaled by: its widget's scale on screens of several pixel ratios.
QList<double> allScales()
{
    QList<double> scales;
    for (const double scale : {1.0, 0.75, 1.25, 1.5, 2.06}) {
        for (const double ratio : {1.0, 1.25, 2.0}) {
            if (!scales.contains(scale * ratio))
                scales.append(scale * ratio);
        }
    }
    return scales;
}

/// Whether texts stand on whole pixels, so that a layout differs from scale to scale.
bool isSnapped(const SkinStyle& style)
{
    return style.finish != Finish::smooth || style.title.pixel || style.body.pixel || style.number.pixel;
}

/// How far from the face the farthest pixel is that is not quite transparent; 0: all inside.
double reach(const FaceView& view, const Reading& reading)
{
    constexpr int margin = 24;
    QImage image((view.size() + QSizeF(2 * margin, 2 * margin)).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(margin, margin);
    view.draw(painter, reading, {});
    painter.end();
    int farthest = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const int down = std::max({0, margin - y, y - (image.height() - 1 - margin)});
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) > 0)
                farthest = std::max({farthest, down, margin - x, x - (image.width() - 1 - margin)});
        }
    }
    return farthest;
}

const QLocale locales[] = {
    QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German)}; // 12 and 24 hours

} // namespace

class LayoutAudit : public testing::TestWithParam<Skin> { };

TEST_P(LayoutAudit, EveryTextIsWholeApartAndLegible)
{
    qsizetype texts = 0;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(GetParam(), kind);
        const QList<double> scales = isSnapped(face.style()) ? allScales() : QList<double>{1};
        for (const FaceState state : faceStates) {
            for (const QLocale& locale : locales) {
                const Reading reading = stateReading(kind, state, locale);
                QStringList known; // a fault at one scale is most often one at all
                for (const double scale : scales) {
                    const CanvasRecord record = recordOf(face, reading, scale);
                    texts += record.size();
                    for (const QString& fault : faults(record, face, foreignTexts(reading))) {
                        if (known.contains(fault))
                            continue;
                        known += fault;
                        ADD_FAILURE() << rawValue(kind).data() << ", state " << static_cast<int>(state) << ", "
                                      << qPrintable(locale.name()) << ", scale " << scale << ": " << qPrintable(fault);
                    }
                }
            }
        }
    }
    EXPECT_GT(texts, 20 * 6 * 2 * 3) << "the faces wrote next to nothing";
}

TEST_P(LayoutAudit, NoScaleMovesWhatIsNotSetOnPixels)
{
    const auto placesAt = [](const FaceView& face, double scale) {
        QList<QPair<QString, QRectF>> places;
        for (const CanvasMark& mark :
            recordOf(face, stateReading(face.face().kind, FaceState::extreme, QLocale::c()), scale))
            places.append({mark.text, mark.ink});
        return places;
    };
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(GetParam(), kind);
        if (isSnapped(face.style()))
            continue;
        for (const double scale : {0.75, 1.875, 4.12})
            EXPECT_EQ(placesAt(face, scale), placesAt(face, 1)) << rawValue(kind).data() << " at " << scale;
    }
}

TEST_P(LayoutAudit, NothingReachesFartherThanAShadow)
{
    constexpr double allowed = 8;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        for (const FaceState state : {FaceState::sample, FaceState::extreme}) {
            const FaceView face = view(GetParam(), kind);
            EXPECT_LE(reach(face, stateReading(kind, state, QLocale::c())), allowed + 1)
                << rawValue(kind).data() << ", state " << static_cast<int>(state);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, LayoutAudit, testing::ValuesIn(allCases<Skin>()),
    [](const auto& tested) { return rawValue(tested.param).toString().toStdString(); });

} // namespace ambrelle
