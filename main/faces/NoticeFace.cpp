// SPDX-License-Identifier: MIT

#include "faces/NoticeFace.h"

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "faces/TiltedFace.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double controlSize = 22;
constexpr int mostLines = 7;

/// Symbol, gap below it, and how far controls without a player are faded.
struct Measures {
    double symbol = 28;
    double gap = 6;
    double idle = 0.35;
};

Measures measures(Finish finish)
{
    // In whole pixels symbols are clearest in the size of their own grid, and less than a checkerboard is noise.
    return finish == Finish::smooth ? Measures{} : Measures{.symbol = 24, .gap = 4, .idle = 0.5};
}

/// The sentence at the size of rows, or at the floor where it would take more than five lines.
TextStyle sentenceStyle(const SkinStyle& style, const QString& sentence, double width, double floor)
{
    TextStyle text = style.caption().sized(std::max(floor, 11.5)).aligned(Align::centre).wrapped(5);
    const QStringList lines = wrapped(sentence, text, width);
    if (!lines.isEmpty() && lines.last().endsWith(u'…') && !sentence.endsWith(u'…'))
        text = text.sized(floor).wrapped(mostLines);
    return text;
}

} // namespace

void drawNotice(Canvas& canvas, const FaceRenderer& skin, const Notice& notice, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const Measures measure = measures(style.finish);
    Box content = skin.framed(canvas, face);
    if (face.kind == WidgetKind::nowPlaying) {
        const Box keys = content.cutBottom(controlSize + 4).centred(3 * 44, controlSize);
        const auto idle = [&](const Box& place, const QString& symbol, bool) {
            canvas.symbol(place, symbol, controlSize, faded(style.ink, measure.idle));
        };
        controls(canvas, keys, false, idle, false);
    }
    const QString sentence = style.words(notice.sentence);
    TextStyle text = sentenceStyle(style, sentence, content.width(), textFloor(skin, face));
    const double lines = static_cast<double>(wrapped(sentence, text, content.width()).size());
    text.lineHeight = std::clamp(content.height() / (lines * text.size), 1.0, text.lineHeight);
    const double symbol = measure.symbol + measure.gap;
    const double height = lines * text.size * text.lineHeight;
    // Where there is no room for both, the sentence says more.
    const bool both = symbol + height <= content.height();
    Box block = content.centred(content.width(), std::min(height + (both ? symbol : 0), content.height()));
    if (both) {
        canvas.symbol(block.cutTop(measure.symbol), notice.symbol, measure.symbol, style.soft);
        block.cutTop(measure.gap);
    }
    canvas.paragraph(block, sentence, text);
}

} // namespace ambrelle
