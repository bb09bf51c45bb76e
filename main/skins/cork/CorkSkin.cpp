// SPDX-License-Identifier: MIT

#include "skins/cork/CorkSkin.h"

#include "drawing/SeededRandom.h"
#include "skins/cork/CorkPaper.h"
#include "skins/cork/CorkStyle.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cork;

namespace {

constexpr double pinHeight = 2.5; // of its centre below the upper edge
constexpr double clipInset = 24; // from the right edge
constexpr double clipRoom = 22; // of the content that a title leaves to it

constexpr double cardText = 6; // from the margin line to what is written
constexpr double cardRight = 14;
constexpr double headerLine = 14;

QPointF pinOn(const Box& paper)
{
    return {paper.center().x(), paper.top() + pinHeight};
}

QPointF clipOn(const Box& paper)
{
    return {paper.right() - clipInset, paper.top() + 0.5};
}

Box pictureOn(const Box& paper)
{
    return paper.adjusted(9, 14, -9, -26);
}

} // namespace

CorkSkin::CorkSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

double CorkSkin::tilt(const FaceContext& face) const
{
    constexpr double most = 1.6;
    constexpr double least = 0.5;
    SeededRandom random{static_cast<std::uint64_t>(face.kind) * 7 + 3};
    const double degrees = random.in(least, most);
    const double side = static_cast<int>(face.kind) % 2 == 0 ? -1 : 1;
    return side * degrees * (face.medium() ? 0.5 : 1); // the corners of wide ones swing twice as far
}

QPainterPath CorkSkin::silhouette(const FaceContext& face) const
{
    const Box& paper = face.bounds;
    switch (paperOf(face.kind)) {
    case Paper::card: return cardOutline(paper).united(clipOutline(clipOn(paper)));
    case Paper::note: return noteOutline(paper).united(pinOutline(pinOn(paper)));
    case Paper::instantPhoto: return roundedPath(paper, style().corner).united(pinOutline(pinOn(paper)));
    }
    Q_UNREACHABLE();
}

Box CorkSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const Box& paper = face.bounds;
    const Paper kind = paperOf(face.kind);
    canvas.still(u"plate"_s, paper.inset(-8), [&](Canvas& layer) {
        switch (kind) {
        case Paper::note: stickyNote(layer, paper, colourOf(face.kind)); break;
        case Paper::card: ruledCard(layer, paper); break;
        case Paper::instantPhoto: photoPaper(layer, paper, {}); break;
        }
        if (kind == Paper::card)
            paperClip(layer, clipOn(paper));
        else
            pin(layer, pinOn(paper));
    });
    canvas.setGround(colourOf(face.kind));
    Box content = paper.inset(style().inset);
    if (kind == Paper::card) {
        // Down to the last line that is written on.
        content.setLeft(paper.left() + marginLine + cardText);
        content.setRight(paper.right() - cardRight);
        content.setBottom(paper.top() + firstRule + 7 * rulePitch + rulePitch / 2 - belowCapitals);
    }
    return content;
}

void CorkSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    Box line = content.cutTop(headerLine);
    if (paperOf(face.kind) == Paper::card) {
        line.cutRight(clipRoom);
        content.setTop(face.bounds.top() + firstRule + rulePitch / 2 - belowCapitals);
    } else {
        line = line.moved(0, -2); // large figures follow closely
        content.cutTop(style().titleGap);
    }
    canvas.text(line, title, style().header());
}

Box CorkSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    const Box picture = pictureOn(face.bounds);
    canvas.still(u"photo"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        photoPaper(layer, face.bounds, picture);
        pin(layer, {face.bounds.center().x(), face.bounds.top() + pinHeight});
    });
    return picture;
}

FigureStyle CorkSkin::figure(double cap) const
{
    const FigureStyle figure = style().figure(cap);
    return cap == style().temperatureCap ? figure.kerned() : figure; // it changes by the hour
}

std::shared_ptr<const FaceRenderer> corkSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<CorkSkin>(accent);
}

} // namespace ambrelle
