#include "faces/NoticeFace.h"

#include "drawing/Colours.h"

#include <algorithm>
#include <array>

namespace ambrelle {

namespace {

constexpr double symbolSize = 28;
constexpr double controlSize = 22;

/// The sentence at the size of rows, or at the floor where it would take more than five lines.
TextStyle sentenceStyle(const SkinStyle& style, const QString& sentence, double width)
{
    TextStyle text = style.caption().sized(std::max(style.floor, 11.5)).aligned(Align::centre).wrapped(5);
    const QStringList lines = wrapped(sentence, text, width);
    if (!lines.isEmpty() && lines.last().endsWith(u'…') && !sentence.endsWith(u'…'))
        text = text.sized(style.floor);
    return text;
}

} // namespace

void drawControls(Canvas& canvas, const Box& box, double size, const QBrush& fill, bool playing, bool active)
{
    struct Control {
        QString symbol;
        FaceAction::Verb verb;
    };
    const std::array controls{
        Control{QStringLiteral("backward.fill"), FaceAction::Verb::previousTrack},
        Control{playing ? QStringLiteral("pause.fill") : QStringLiteral("play.fill"), FaceAction::Verb::playPause},
        Control{QStringLiteral("forward.fill"), FaceAction::Verb::nextTrack},
    };
    for (int index = 0; index < 3; ++index) {
        const Control& control = controls[static_cast<std::size_t>(index)];
        const Box column = box.column(index, 3);
        canvas.symbol(column, control.symbol, size, fill);
        if (active)
            canvas.hit(column, {control.verb});
    }
}

void drawNotice(Canvas& canvas, const FaceRenderer& skin, const Notice& notice, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box content = skin.framed(canvas, face);
    if (face.kind == WidgetKind::nowPlaying) {
        const Box controls = content.cutBottom(controlSize + 4).centred(3 * 44, controlSize);
        drawControls(canvas, controls, controlSize, faded(style.ink, 0.35), false, false);
    }
    const TextStyle text = sentenceStyle(style, notice.sentence, content.width());
    const double lines = static_cast<double>(wrapped(notice.sentence, text, content.width()).size());
    const double height = symbolSize + 6 + lines * text.size * text.lineHeight;
    Box block = content.centred(content.width(), std::min(height, content.height()));
    canvas.symbol(block.cutTop(symbolSize), notice.symbol, symbolSize, style.soft);
    block.cutTop(6);
    canvas.paragraph(block, notice.sentence, text);
}

} // namespace ambrelle
