// SPDX-License-Identifier: MIT

#include "window/frame/SheetTable.h"

#include "window/look/TextLabel.h"

#include <QGridLayout>

namespace ambrelle {

namespace {

constexpr int tableGap = 16;
constexpr int tableLineGap = 4;
constexpr int subjectLetters = 20; // of the widest keys

} // namespace

QLayout* makeSheetTable(const QList<SheetLine>& lines)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(tableGap);
    grid->setVerticalSpacing(tableLineGap);
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < lines.size(); ++row) {
        auto* subject = new TextLabel(TextRole::name, lines[row].subject);
        auto* text = new TextLabel(TextRole::body, lines[row].text);
        text->setTone(TextLabel::Tone::soft);
        subject->setBuddy(text);
        for (TextLabel* label : {subject, text})
            label->setWordWrap(true);
        subject->setMinimumWidth(subject->fontMetrics().averageCharWidth() * subjectLetters);
        grid->addWidget(subject, row, 0, Qt::AlignTop);
        grid->addWidget(text, row, 1, Qt::AlignTop);
    }
    return grid;
}

} // namespace ambrelle
