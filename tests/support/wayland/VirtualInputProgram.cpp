// SPDX-License-Identifier: MIT
// A pointer and a keyboard for scripts. Every line of standard input is a step, answered by a line "done" once the
// compositor has taken note of it, or by what is wrong with it:
//     move X Y LEFT TOP WIDTH HEIGHT    to a point; the area that all outputs lie in
//     moveby X Y
//     press|release left|right|middle
//     scroll STEPS
//     keydown|keyup NAME

#include "support/wayland/VirtualInput.h"

#include <QHash>
#include <QStringList>

#include <cstdlib>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;
using ambrelle::test::VirtualInput;

namespace {

bool numbers(const QStringList& words, qsizetype count, QList<double>& values)
{
    for (const QString& word : words) {
        bool isNumber = false;
        values.append(word.toDouble(&isNumber));
        if (!isNumber)
            return false;
    }
    return values.size() == count;
}

bool button(const QStringList& words, Qt::MouseButton& which)
{
    static const QHash<QString, Qt::MouseButton> buttons{
        {u"left"_s, Qt::LeftButton}, {u"right"_s, Qt::RightButton}, {u"middle"_s, Qt::MiddleButton}};
    which = words.size() == 1 ? buttons.value(words.first(), Qt::NoButton) : Qt::NoButton;
    return which != Qt::NoButton;
}

bool carryOut(VirtualInput& input, const QString& step, const QStringList& words)
{
    QList<double> values;
    Qt::MouseButton which = Qt::NoButton;
    if (step == "move"_L1 && numbers(words, 6, values))
        input.move({values[0], values[1]}, {values[2], values[3], values[4], values[5]});
    else if (step == "moveby"_L1 && numbers(words, 2, values))
        input.moveBy({values[0], values[1]});
    else if (step == "press"_L1 && button(words, which))
        input.press(which);
    else if (step == "release"_L1 && button(words, which))
        input.release(which);
    else if (step == "scroll"_L1 && numbers(words, 1, values))
        input.scroll(values[0]);
    else if ((step == "keydown"_L1 || step == "keyup"_L1) && words.size() == 1)
        return input.setKey(words.first(), step == "keydown"_L1);
    else
        return false;
    return true;
}

} // namespace

int main()
{
    const std::unique_ptr<VirtualInput> input = VirtualInput::plugIn();
    if (!input) {
        std::cerr << "the compositor has no virtual devices\n";
        return EXIT_FAILURE;
    }
    std::cout << "done" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        QStringList words = QString::fromStdString(line).split(u' ', Qt::SkipEmptyParts);
        const QString step = words.isEmpty() ? QString() : words.takeFirst();
        const bool isDone = carryOut(*input, step, words);
        std::cout << (isDone ? "done" : "what is: " + line) << std::endl;
    }
    return EXIT_SUCCESS;
}
