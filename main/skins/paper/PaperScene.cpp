// SPDX-License-Identifier: MIT

#include "drawing/Pens.h"
#include "foundation/Wording.h"
#include "skins/paper/PaperStyle.h"
#include "skins/SceneRecipes.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double columnInk = 0.35; // opacity of the rules between columns
constexpr double aboveItems = 18; // of the double rule, points
constexpr double betweenRules = 3;
constexpr double titleSize = 22;
constexpr double leastTitleSize = 13; // over a narrow column
constexpr double editionSize = 12;
constexpr double aboveRule = 8; // of the title's line: its tails hang below
constexpr double titleGap = 12; // between what stands at the two ends of the line

void columnRules(SceneOrnament& on, const SkinStyle& style)
{
    const QPen pen = flatPen(faded(style.ink, columnInk), on.scaled(paper::Rules::light));
    for (const SceneGutter& gutter : on.gutters(Qt::Horizontal)) {
        const double x = gutter.area.center().x();
        on.line(u"column-rule"_s, {x, gutter.area.top()}, {x, gutter.area.bottom()}, pen);
    }
}

double widthOf(const TextStyle& style, const QString& text)
{
    return shape(style.face, style.size, text)->width;
}

/// The head of the page, above all columns where the screen leaves room for it.
void masthead(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF columns = on.bounds() & on.screen().adjusted(8, 0, -8, 0);
    const double lower = columns.top() - on.scaled(aboveItems);
    const double upper = lower - on.scaled(betweenRules + paper::Rules::light / 2 + paper::Rules::heavy / 2);
    const QString title = Wording::tr("The Ambrelle Daily");
    TextStyle heading = paper::bold(style, on.scaled(titleSize)).coloured(style.ink);
    heading.size = std::min(heading.size, heading.size * columns.width() / (widthOf(heading, title) + 1));
    Box line(columns.left(), upper - on.scaled(aboveRule) - heading.size, columns.width(), heading.size);
    if (heading.size < leastTitleSize || !on.isFree(line.adjusted(0, -heading.size / 2, 0, 0)))
        return;
    on.label(u"title"_s, line, title, heading);
    line.cutLeft(widthOf(heading, title) + on.scaled(titleGap));
    const TextStyle small = paper::italic(style, on.scaled(editionSize)).coloured(style.soft).aligned(Align::right);
    on.label(u"edition"_s, line, Wording::tr("Desktop edition"), small);
    for (const auto& [y, width] : {std::pair(upper, paper::Rules::heavy), std::pair(lower, paper::Rules::light)})
        on.line(u"head-rule"_s, {columns.left(), y}, {columns.right(), y}, flatPen(style.ink, on.scaled(width)));
}

} // namespace

/// A page of a newspaper: its head, and rules between its columns.
Scene paperScene(SceneOrnament on)
{
    const SkinStyle style = paper::makeStyle(on.accent());
    masthead(on, style);
    columnRules(on, style);
    return on.scene();
}

} // namespace ambrelle
