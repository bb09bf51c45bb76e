// SPDX-License-Identifier: MIT

#include "window/AppLook.h"

#include "window/WindowStyle.h"

#include <QApplication>
#include <QFont>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct Colours {
    QRgb ground;
    QRgb field; ///< of lists and text entries
    QRgb button;
    QRgb text;
    QRgb faint; ///< text that cannot be chosen
    QRgb chosen;
    QRgb onChosen;
};

constexpr Colours light{0xfff6f4f1, 0xffffffff, 0xffebe8e4, 0xff1f1c1a, 0xff736d67, 0xff9a5510, 0xffffffff};
constexpr Colours dark{0xff26242b, 0xff1d1b21, 0xff36333d, 0xfff1eee9, 0xff9a949f, 0xffe79a35, 0xff1d1408};

} // namespace

QPalette appPalette(bool isDark)
{
    const Colours& colours = isDark ? dark : light;
    QPalette palette(QColor(colours.button), QColor(colours.ground));
    for (const QPalette::ColorRole role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, colours.text);
    palette.setColor(QPalette::Base, colours.field);
    palette.setColor(QPalette::AlternateBase, colours.ground);
    palette.setColor(QPalette::ToolTipBase, colours.field);
    palette.setColor(QPalette::PlaceholderText, colours.faint);
    palette.setColor(QPalette::Highlight, colours.chosen);
    palette.setColor(QPalette::HighlightedText, colours.onChosen);
    palette.setColor(QPalette::Link, isDark ? colours.chosen : QRgb(0xff8a4a0c));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.faint);
    return palette;
}

void applyAppLook(bool isDark)
{
    WindowStyle::apply();
    constexpr double points = 10;
    QFont font(u"Inter"_s);
    font.setPointSizeF(points);
    QApplication::setFont(font);
    QApplication::setPalette(appPalette(isDark));
}

} // namespace ambrelle
