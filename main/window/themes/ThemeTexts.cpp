// SPDX-License-Identifier: MIT

#include "window/themes/ThemeTexts.h"

#include "foundation/Wording.h"
#include "model/Composition.h"
#include "model/ThemeAccent.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString lightOrDark(Skin skin)
{
    return isLight(skin) ? Wording::tr("Light") : Wording::tr("Dark");
}

QString titlesOf(const QSet<WidgetKind>& kinds)
{
    QStringList titles;
    for (const WidgetKind kind : kinds)
        titles.append(title(kind));
    return titles.join(u'\n');
}

QString sentences(QStringList parts, bool onDesktop, const QString& accent)
{
    if (onDesktop)
        parts.append(Wording::tr("On your desktop"));
    if (!accent.isEmpty())
        parts.append(Wording::tr("Accent %1").arg(accent));
    return parts.join(u". "_s) + u'.';
}

/// The name of the colour that the user gave the skin; empty while it has its own.
QString accentName(Skin skin, const ThemeAccent& accents)
{
    const std::optional<QColor> colour = accents.color(skin);
    if (!colour || !supportsAccent(skin))
        return {};
    for (const AccentChoice& choice : accentChoices(skin)) {
        if (choice.color && hexText(*choice.color) == hexText(*colour))
            return choice.name;
    }
    return Wording::tr("Custom colour");
}

} // namespace

QString mediumDate(const QDate& day)
{
    const QLocale locale;
    // The toolkit knows a long form, with the weekday, and a short one, in digits.
    QString format = locale.dateFormat(QLocale::LongFormat);
    static const QRegularExpression weekday(u"[,\\s]*\\bdddd?\\b[,\\s]*"_s);
    format = format.replace(weekday, u" "_s).trimmed().replace(u"MMMM"_s, u"MMM"_s);
    return locale.toString(day, format);
}

QString searchedText(Skin skin)
{
    QSet<WidgetKind> kinds;
    for (const Spot& spot : Composition::preset(skin).spots)
        kinds.insert(spot.kind);
    return QStringList{title(skin), tagline(skin), title(group(skin)), lightOrDark(skin), titlesOf(kinds)}.join(u'\n');
}

QString searchedText(const SavedTheme& theme)
{
    QSet<WidgetKind> kinds;
    for (const SavedWidget& widget : theme.widgets)
        kinds.insert(widget.config.kind);
    return QStringList{theme.name, Wording::tr("My Themes"), lightOrDark(theme.dominantSkin()), titlesOf(kinds)}.join(
        u'\n');
}

QString captionOf(const SavedTheme& theme)
{
    const QString widgets = Wording::tr("%n widgets", nullptr, static_cast<int>(theme.widgets.size()));
    return Wording::tr("%1 · %2", "10 widgets · 14 Nov 2026")
        .arg(widgets, mediumDate(theme.created.toLocalTime().date()));
}

QString spokenOf(Skin skin, bool onDesktop, const ThemeAccent& accents)
{
    return sentences({tagline(skin), lightOrDark(skin)}, onDesktop, accentName(skin, accents));
}

QString spokenOf(const SavedTheme& theme, bool onDesktop)
{
    return sentences({captionOf(theme), lightOrDark(theme.dominantSkin())}, onDesktop, {});
}

} // namespace ambrelle
