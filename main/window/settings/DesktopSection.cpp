// SPDX-License-Identifier: MIT

#include "window/settings/DesktopSection.h"

#include "foundation/Wording.h"
#include "window/look/Button.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

template <typename E> QList<RowChoice<E>> titledChoices()
{
    QList<RowChoice<E>> choices;
    for (const auto& row : rawRows<E>)
        choices.append({row.value, Wording::tr(row.title)});
    return choices;
}

QString captionOf(OverlapBehavior behavior)
{
    switch (behavior) {
    case OverlapBehavior::show: return Wording::tr("It stays on top");
    case OverlapBehavior::fade: return Wording::tr("A faded widget lets clicks through to the window beneath");
    case OverlapBehavior::hide: return Wording::tr("It comes back when the window moves away");
    }
    return {};
}

} // namespace

DesktopSection::DesktopSection(
    AppSettings& settings, const QString& whyNeverCovered, std::function<void()> edit, QWidget* parent)
    : SettingsSection(settings, parent)
{
    addWindows(whyNeverCovered);
    addWidgets(std::move(edit));
    addLook();
}

void DesktopSection::addWindows(const QString& whyNeverCovered)
{
    addGroup(Wording::tr("Windows"));
    addChoice({.name = Wording::tr("Widgets stand"), .caption = Wording::tr("A pinned widget always floats")},
        settings().layer, titledChoices<WidgetLayer>());
    SettingsRow* overlap =
        addSegments({.name = Wording::tr("When a window covers a floating widget"),
                        .caption = whyNeverCovered.isEmpty() ? captionOf(settings().overlap()) : whyNeverCovered,
                        .spoken = Wording::tr("Overlap")},
            settings().overlap, titledChoices<OverlapBehavior>());
    if (whyNeverCovered.isEmpty())
        follow(settings().overlap.key(), [this, overlap] { overlap->setCaption(captionOf(settings().overlap())); });
}

void DesktopSection::addWidgets(std::function<void()> edit)
{
    addGroup(Wording::tr("Widgets"));
    addSwitch({.name = Wording::tr("Lock Widget Positions"),
                  .caption = Wording::tr("Dragging a widget does nothing while this is on")},
        settings().locked);
    addSwitch({.name = Wording::tr("Click a widget to open its app"),
                  .caption = Wording::tr("The clock opens the clock, the calendar your calendar, and so on")},
        settings().clickToOpen);
    auto* button = new Button(Wording::tr("Edit & Move Widgets"));
    button->setSymbol(u"hand.draw"_s);
    addButton({.name = Wording::tr("Arrange widgets"),
                  .caption = Wording::tr("Drag widgets anywhere. Click an empty space or press Esc to finish.")},
        button, std::move(edit));
}

void DesktopSection::addLook()
{
    addGroup(Wording::tr("Look"));
    addSwitch({.name = Wording::tr("Scene decorations"),
                  .caption = Wording::tr("Rings, rules and frames that tie a theme's widgets together")},
        settings().showScene);
    addSwitch({.name = Wording::tr("Animations"),
                  .caption = Wording::tr("Radar sweeps, flickering tubes and dancing needles. "
                                         "Pauses while widgets are covered")},
        settings().animations);
}

} // namespace ambrelle
