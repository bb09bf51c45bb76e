// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "skins/SkinRegistry.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const Skin auditedSkins[] = {Skin::glass, Skin::polar, Skin::mono, Skin::slate, Skin::lumen, Skin::field,
    Skin::fieldDark, Skin::hifi, Skin::classic};

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
    if (!face.adjusted(2, 2, -2, -2).contains(mark.ink))
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

QString overlapping(const CanvasRecord& record, qsizetype index)
{
    const auto core = [](const CanvasMark& mark) { return mark.ink.adjusted(0.5, 1, -0.5, -1); };
    for (qsizetype other = index + 1; other < record.size(); ++other) {
        if (isText(record[other]) && core(record[index]).intersects(core(record[other])))
            return u"overlaps “%1”"_s.arg(record[other].text);
    }
    return {};
}

QStringList faults(const CanvasRecord& record, const FaceView& view)
{
    QStringList found;
    for (qsizetype index = 0; index < record.size(); ++index) {
        const CanvasMark& mark = record[index];
        if (!isText(mark) || mark.ink.isEmpty())
            continue;
        for (const QString& fault : {outside(mark, view.face().bounds), tooSmall(mark, view.style().floor),
                 tooFaint(mark), overlapping(record, index)}) {
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

} // namespace

class LayoutAudit : public testing::TestWithParam<Skin> { };

TEST_P(LayoutAudit, EveryTextIsWholeApartAndLegible)
{
    qsizetype texts = 0;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        for (const FaceState state : faceStates) {
            for (const QLocale& locale : {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German)}) {
                const Reading reading = stateReading(kind, state, locale);
                for (const double scale : {0.75, 1.0, 1.5, 2.0}) {
                    const FaceView face = view(GetParam(), kind);
                    const CanvasRecord record = recordOf(face, reading, scale);
                    texts += record.size();
                    for (const QString& fault : faults(record, face))
                        ADD_FAILURE() << rawValue(kind).data() << ", state " << static_cast<int>(state) << ", "
                                      << qPrintable(locale.name()) << ", scale " << scale << ": " << qPrintable(fault);
                }
            }
        }
    }
    EXPECT_GT(texts, 20 * 5 * 2 * 4) << "the faces wrote next to nothing";
}

INSTANTIATE_TEST_SUITE_P(Skins, LayoutAudit, testing::ValuesIn(auditedSkins),
    [](const auto& tested) { return rawValue(tested.param).toString().toStdString(); });

} // namespace ambrelle
